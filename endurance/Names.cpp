// Each of the bad texts, and names about as long as a path may be, as the name of a configuration: a message
// or just one regular file of just that name, and nothing anywhere else.
#include "app/Blanks.h"
#include "endurance/BadText.h"
#include "endurance/Scene.h"
#include "endurance/Soak.h"
#include "tools/driver/Walker.h"

#include "tests/support/DemoSuite.h"

#include <algorithm>

namespace {

constexpr std::size_t kLongestPath = 259;
constexpr std::size_t kFileSize = 5449;

std::wstring Shown(const std::wstring& text) {
    std::wstring shown;
    for (const wchar_t c : text.substr(0, 40)) {
        wchar_t code[8];
        if (c >= L' ' && c < 0x7F)
            shown += c;
        else if (swprintf(code, 8, L"\\x%04X", static_cast<unsigned>(c)) > 0)
            shown += code;
    }
    return L"\"" + shown + L"\" (" + std::to_wstring(text.size()) + L")";
}

std::vector<BadText> AllNames(std::size_t longest) {
    std::vector<BadText> names = BadTexts();
    for (const std::size_t length : {std::size_t{1}, longest - 1, longest})
        names.push_back({std::wstring(length, length == longest ? L'm' : L'l'), As::File});
    names.push_back({std::wstring(longest + 1, L'l'), As::Refused});
    return names;
}

void Try(Tally& tally, const DemoSuite& suite, Walker& walker, const BadText& name) {
    const std::wstring shown = Shown(name.text);
    walker.name = name.text;
    const auto before = Tree(suite.Folder());
    const std::wstring message = walker.CreateConfiguration();
    const auto changes = Changes(before, Tree(suite.Folder()));
    const std::wstring made = changes.empty() ? L"nothing" : changes[0];
    if (walker.Heading() == L"Finished") {
        const std::wstring path = suite.Settings() + TrimBlanks(name.text) + L".DCP";
        tally.Expect(name.name == As::File && changes.size() == 1 &&
                         made == path + L"|" + std::to_wstring(kFileSize),
                     shown + L" made " + std::to_wstring(changes.size()) + L": " + made);
        SendNotifyMessageW(walker.Button(L"&New"), BM_CLICK, 0, 0);
        tally.Expect(walker.Walk().trouble.empty(), shown + L": no way back to the name page");
    } else {
        tally.Expect(changes.empty() && name.name == As::Refused && !message.empty(),
                     shown + L" was refused with \"" + message + L"\" and made " + made);
    }
}

} // namespace

void CheckNames(Tally& tally) {
    const DemoSuite suite;
    for (const wchar_t* name : kTakenNames)
        WriteFileBytes(suite.Settings() + name + L".DCP", "taken");
    const std::size_t longest = kLongestPath - suite.Settings().size() - 4;
    const WizardDriver wizard(suite.CommandLine(L"/NDW"));
    Walker walker(wizard);
    walker.stopAt = L"Configuration Name";
    tally.Expect(walker.Walk().trouble.empty(), L"the way to the name page");
    const auto drive = Tree(L"C:\\");
    const auto names = AllNames(longest);
    const std::size_t step = tally.Quick() ? 4 : 1;
    for (std::size_t i = tally.Seed() % step; i < names.size(); i += step)
        Try(tally, suite, walker, names[i]);
    for (const std::wstring& change : Changes(drive, Tree(L"C:\\")))
        tally.Expect(change.starts_with(suite.Settings()) || change.find(L".log|") != std::wstring::npos,
                     L"changed elsewhere: " + change);
    // Ports of the prefix lead to a plain file: whoever opens them for writing leaves a trace.
    tally.Expect(FileBytes(FromEnvironment(L"SOAK_DEVICE")) == "untouched\n", L"a port was written to");
    tally.Note(std::to_string(names.size()) + " names");
}

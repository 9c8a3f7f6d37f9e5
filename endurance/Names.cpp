// Texts that break programs, and names about as long as a path may be, as the name of a configuration: a
// message or just one regular file of just that name, and nothing anywhere else.
#include "app/Blanks.h"
#include "endurance/Soak.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <set>

namespace {

// clang-format off
constexpr const wchar_t* kRefused[] = {
    // devices and ways elsewhere
    L"CON", L"nul.txt", L"COM1", L" COM1", L"COM1 .x", L"LPT0", L"lpt9.nc", L"COM\x00B9", L"conout$", L"\\\\.\\COM1", L"AUX .DCP",
    L"..", L"...", L"..\\x", L"../x", L"C:x", L"\\\\?\\x", L"\\\\host\\share", L"x:stream", L"x::$DATA", L"\\", L".. ", L" .",
    // tails that get lost, wildcards, control characters, nothing
    L"abc.", L"abc. ", L"tab\t", L"a*b", L"a?b", L"a\"b", L"a|b", L"*.*", L"<b>x</b>",
    L"a\x01z", L"a\x08z", L"a\x1Fz", L"a\x7Fz", L"a\x81z", L"", L" ", L"\t", L"\x3000",
    // outside the code page, best-fit characters among them; there already, or equal to these but for case
    L"\xD83D\xDE00", L"a\xD83Dz", L"\x05E9\x05DC", L"a\x202Egpj.z", L"e\x0301", L"\xFF21\xFF22", L"a\x2215z", L"a\xFF0Fz",
    L"\xFF23\xFF2F\xFF2D\xFF11", L"a\xFFFFz", L"a\x2028z", L"a\xE000z", L"MIXED CASE", L"\x00FC\x00D6\x00DF",
};
constexpr const wchar_t* kFiles[] = {
    L"COM10", L"NULL", L"x.COM1", L"CLOCK$", L"tail blank ", L" head blank", L".head", L"\x00A0", L"%TEMP%", L"%s%n%x", L"\x20AC 5",
    L"a&b", L"a'b", L"a;b", L"a=b", L"[General]", L"$(x)", L"a^b", L"x.DCP", L"VarnelDnc.ini", L"two  blanks", L"-x", L"0",
};
// clang-format on
constexpr const wchar_t* kTakenNames[] = {L"Mixed Case", L"\x00DC\x00F6\x00DF"};

constexpr std::size_t kLongestPath = 259;

// What a name of that text has to become.
enum class As { File, Refused };
using Names = std::vector<std::pair<std::wstring, As>>;

Names AllNames(std::size_t longest) {
    Names names = {{std::wstring(longest - 1, L'l'), As::File},
                   {std::wstring(longest, L'm'), As::File},
                   {std::wstring(longest + 1, L'l'), As::Refused},
                   {std::wstring(30000, L'\\'), As::Refused}};
    for (const wchar_t* text : kRefused)
        names.emplace_back(text, As::Refused);
    for (const wchar_t* text : kFiles)
        names.emplace_back(text, As::File);
    return names;
}

// Every file (with its size) and folder below `folder`.
std::set<std::wstring> Tree(const std::wstring& folder) {
    std::set<std::wstring> tree;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
        tree.insert(entry.path().wstring() +
                    (entry.is_directory() ? L"\\" : L"|" + std::to_wstring(entry.file_size())));
    return tree;
}

// What has come, gone or another size.
std::vector<std::wstring> Changes(const std::set<std::wstring>& before, const std::set<std::wstring>& after) {
    std::vector<std::wstring> changes;
    std::ranges::set_symmetric_difference(before, after, std::back_inserter(changes));
    return changes;
}

void Try(const DemoSuite& suite, Walker& walker, const std::wstring& name, As wanted) {
    SCOPED_TRACE(Utf8(name.substr(0, 40)) + " (" + std::to_string(name.size()) + ")");
    walker.name = name;
    const auto before = Tree(suite.Folder());
    const std::wstring message = walker.CreateConfiguration();
    const auto changes = Changes(before, Tree(suite.Folder()));
    const std::wstring made = changes.empty() ? L"nothing" : changes[0];
    if (walker.Heading() == L"Finished") {
        const std::wstring file = suite.Settings() + TrimBlanks(name) + L".DCP|5449"; // with its size
        EXPECT_TRUE(wanted == As::File && changes.size() == 1 && made == file)
            << "made " << changes.size() << ": " << Utf8(made);
        SendNotifyMessageW(walker.Button(L"&New"), BM_CLICK, 0, 0);
        EXPECT_EQ(Utf8(walker.Walk().trouble), "") << "no way back to the name page";
    } else {
        EXPECT_TRUE(changes.empty() && wanted == As::Refused && !message.empty())
            << "refused with \"" << Utf8(message) << "\" and made " << Utf8(made);
    }
}

TEST(Soak, names) {
    const DemoSuite suite;
    for (const wchar_t* name : kTakenNames)
        WriteFileBytes(suite.Settings() + name + L".DCP", "taken");
    const std::size_t longest = kLongestPath - suite.Settings().size() - 4;
    const WizardDriver wizard(suite.CommandLine(L"/NDW"));
    Walker walker(wizard);
    walker.stopAt = L"Configuration Name";
    ASSERT_EQ(Utf8(walker.Walk().trouble), "") << "on the way to the name page";
    const auto drive = Tree(L"C:\\");
    const auto names = AllNames(longest);
    const std::size_t step = IsShort() ? 4 : 1;
    for (std::size_t i = Seed() % step; i < names.size(); i += step)
        Try(suite, walker, names[i].first, names[i].second);
    for (const std::wstring& change : Changes(drive, Tree(L"C:\\")))
        EXPECT_TRUE(change.starts_with(suite.Settings()) || change.find(L".log|") != std::wstring::npos)
            << "changed elsewhere: " << Utf8(change);
    // Ports of the prefix lead to a plain file: whoever opens them for writing leaves a trace.
    EXPECT_EQ(FileBytes(Given("SOAK_DEVICE")), "untouched\n") << "a port was written to";
}

} // namespace

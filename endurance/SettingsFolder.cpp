// The settings folder full of other configurations, some of them damaged.
#include "endurance/Scene.h"
#include "endurance/Soak.h"
#include "tests/support/DemoSuite.h"
#include "tools/driver/Clock.h"
#include "tools/driver/Walker.h"

#include <algorithm>
#include <map>

namespace {

constexpr std::size_t kFileSize = 5449;
constexpr std::size_t kPortOffset = 178;

std::wstring PathOf(const DemoSuite& suite, const std::wstring& name) {
    return suite.Settings() + name + L".DCP";
}

// The bytes of a configuration that a whole undisturbed run makes.
std::string MakeReference(const DemoSuite& suite) {
    const Journey journey = WalkWhole(suite.CommandLine(L"/NDW"));
    if (!journey.Passed(L"Finished")) Fail(L"no configuration to begin with: " + journey.Story());
    std::string bytes = FileBytes(PathOf(suite, L"Walked"));
    DeleteFileW(PathOf(suite, L"Walked").c_str());
    return bytes;
}

// What the port page says of each port that is in use: "COM3 is used by A, B, C and 4 more." gives A, B, C
// and 7.
struct Use {
    std::vector<std::wstring> names;
    std::size_t count = 0;
};

Use UseIn(std::wstring text) {
    Use use;
    const std::size_t last = text.rfind(L" and ");
    const bool more = text.ends_with(L" more.");
    if (more) use.count = std::stoul(text.substr(last + 5));
    if (last != std::wstring::npos) text.replace(last, more ? text.npos : 5, more ? L"." : L", ");
    text.back() = L',';
    for (text += L' '; !text.empty(); text.erase(0, text.find(L", ") + 2))
        use.names.push_back(text.substr(0, text.find(L", ")));
    use.count += use.names.size();
    return use;
}

std::map<int, Use> PortUses(const Walker& walker) {
    std::map<int, Use> uses;
    const HWND list = ControlsOf(walker.Main(), L"ComboBox").at(0);
    for (WPARAM i = 0; i < Ask(list, CB_GETCOUNT); ++i) {
        std::wstring item(Ask(list, CB_GETLBTEXTLEN, i) + 1, L'\0');
        item.resize(Ask(list, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(item.data())));
        if (!item.ends_with(L"in use")) continue;
        Ask(list, CB_SETCURSEL, i);
        Notify(list, CBN_SELCHANGE);
        for (const HWND label : ControlsOf(walker.Main(), L"Static")) {
            const std::wstring text = TextOf(label);
            const std::size_t by = text.find(L" is used by ");
            if (by != std::wstring::npos) uses[static_cast<int>(i) + 1] = UseIn(text.substr(by + 12));
        }
    }
    return uses;
}

} // namespace

void CheckFolder(Tally& tally) {
    const DemoSuite suite;
    const std::string reference = MakeReference(suite);
    const auto write = [&](const std::wstring& name, int port, std::size_t size = kFileSize) {
        std::string bytes = reference;
        bytes[kPortOffset] = static_cast<char>(port);
        bytes.resize(size, 'x');
        WriteFileBytes(PathOf(suite, name), bytes);
    };
    const int count = tally.Of(5000, 300);
    for (int i = 0; i < count; ++i)
        write(L"M" + std::to_wstring(i), i % 200 + 1);
    write(L"Locked", 201);
    const win::UniqueKernelHandle locked = Spoil(PathOf(suite, L"Locked"), Spoilt::Locked);
    write(L"Empty", 201, 0);
    write(L"Short", 201, kFileSize - 1);
    write(L"Long", 201, kFileSize + 1);
    WriteFileBytes(PathOf(suite, L"Other") + L"x", reference);
    WriteFileBytes(PathOf(suite, L"Damaged"), "x" + reference.substr(1));
    CreateDirectoryW(PathOf(suite, L"X").c_str(), nullptr);

    const WizardDriver wizard(suite.CommandLine(L"/NDW"));
    Walker walker(wizard);
    walker.stopAt = L"Before You Begin";
    tally.Expect(walker.Walk().trouble.empty(), L"the way to the port page");
    double best = 1e9;
    for (int i = 0; i < 5; ++i) {
        best = std::min(best, TimeOf([&] { walker.Press(walker.Next()); }));
        const auto uses = PortUses(walker);
        tally.Expect(uses.size() == 200, std::to_wstring(uses.size()) + L" ports are used");
        for (const auto& [port, use] : uses)
            for (const std::wstring& name : use.names)
                tally.Expect(name.starts_with(L"M") && std::stoi(name.substr(1)) % 200 + 1 == port,
                             L"COM" + std::to_wstring(port) + L" used by " + name);
        walker.Press(walker.Back());
    }
    const std::string time = std::to_string(static_cast<int>(best)) + " ms";
    tally.Expect(best <= 300, FromUtf8("the port page took " + time));
    tally.Note(std::to_string(count) + " configurations, port page in " + time);
}

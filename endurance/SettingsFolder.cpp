// The settings folder: full of other configurations, unable to hold a new one, and left by a wizard that was
// ended while it wrote.
#include "benchmark/Clock.h"
#include "benchmark/LinuxProcess.h"
#include "endurance/Scene.h"
#include "endurance/Soak.h"
#include "endurance/Walker.h"
#include "tests/support/DemoSuite.h"

#include <algorithm>
#include <map>

namespace {

constexpr std::size_t kFileSize = 5449;
constexpr std::size_t kPortOffset = 178;
constexpr wchar_t kNamePage[] = L"Configuration Name";

std::wstring PathOf(const DemoSuite& suite, const std::wstring& name) {
    return suite.Settings() + name + L".DCP";
}

std::string BytesOf(const DemoSuite& suite, const std::wstring& name) {
    const std::wstring path = PathOf(suite, name);
    return Exists(path) ? FileBytes(path) : "";
}

// The bytes of a configuration that a whole undisturbed run makes.
std::string MakeReference(const DemoSuite& suite) {
    WalkWhole(suite, L"/NDW");
    std::string bytes = BytesOf(suite, L"Walked");
    if (bytes.size() != kFileSize) Fail(L"no configuration to begin with");
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

// A file size limit for a running wizard, "unlimited" to take it away.
void LimitFiles(int process, const std::wstring& bytes) {
    const std::wstring mark = L"C:\\limited";
    std::wstring line = L"sh -c \"prlimit --pid " + std::to_wstring(process) + L" --fsize=" + bytes +
                        L": && touch '" + FromEnvironment(L"WINEPREFIX") + L"/drive_c/limited'\"";
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION started{};
    DeleteFileW(mark.c_str());
    if (!CreateProcessW(L"Z:\\bin\\sh", line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &started))
        Fail(L"cannot start a shell");
    for (int i = 0; !Exists(mark); ++i, Sleep(5))
        if (i > 2000) Fail(L"the limit did not come");
}

// Walks to the name page and types `name`.
std::wstring GoToNamePage(Walker& walker, const std::wstring& name) {
    walker.stopAt = kNamePage;
    walker.name = name;
    std::wstring trouble = walker.Walk().trouble;
    walker.TypeName();
    return trouble;
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

    const WizardDriver wizard(suite, L"/NDW");
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

void CheckFileLimit(Tally& tally) {
    const DemoSuite suite;
    const std::string reference = MakeReference(suite);
    for (const std::size_t limit : {0, 1, 511, 512, 5448, 5449}) {
        const std::wstring name = L"Limit" + std::to_wstring(limit);
        const WizardDriver wizard(suite, L"/NDW " + name); // a mark to find the process by
        Walker walker(wizard);
        GoToNamePage(walker, name);
        const int process = LinuxProcess(Utf8(name));
        LimitFiles(process, std::to_wstring(limit));
        std::wstring told = walker.CreateConfiguration();
        const std::size_t size = BytesOf(suite, name).size();
        LimitFiles(process, L"unlimited");
        std::wstring what = name + L": ";
        what.append(std::to_wstring(size)).append(L" bytes, told ").append(told);
        if (limit < kFileSize) {
            tally.Expect(told.starts_with(L"The configuration file could not be written:") && size <= limit &&
                             walker.Heading() == kNamePage,
                         what);
            told = walker.CreateConfiguration();
        }
        tally.Expect(told.empty() && walker.Heading() == L"Finished" && BytesOf(suite, name) == reference,
                     what.append(L", then without a limit: told ").append(told));
    }
    tally.Note("6 limits of the file's size");
}

// Half of the wizards are ended as soon as the file is there, the others at any moment while it is made.
void CheckKills(Tally& tally) {
    const DemoSuite suite;
    const std::string reference = MakeReference(suite);
    std::mt19937 random(tally.Seed());
    double usual = 20000; // ms from the click to the file: the first time it is waited for
    const int count = tally.Of(200, 6);
    for (int i = 0; i < count; ++i) {
        const std::wstring name = L"K" + std::to_wstring(i), path = PathOf(suite, name);
        const WizardDriver wizard(suite, L"/NDW");
        Walker walker(wizard);
        tally.Expect(GoToNamePage(walker, name).empty(), name + L": the way to the name page");
        const double begin = Now();
        const double last = i % 2 == 0 ? 20000 : usual * 2 * static_cast<double>(random() % 1000) / 1000;
        const double after = static_cast<double>(random() % 1000) / 1000;
        SendNotifyMessageW(walker.Next(), BM_CLICK, 0, 0);
        while (!Exists(path) && Now() < begin + last)
            if (HWND icons = walker.Modal()) SendNotifyMessageW(GetDlgItem(icons, IDOK), BM_CLICK, 0, 0);
        if (Exists(path)) usual = Now() - begin;
        for (const double seen = Now(); i % 4 == 0 && Now() < seen + after;) {
        }
    }
    // Only now: a wizard that is being ended may still write.
    std::size_t whole = 0;
    int partial = 0;
    for (int i = 0; i < count; ++i) {
        const std::wstring name = L"K" + std::to_wstring(i);
        const std::string bytes = BytesOf(suite, name);
        tally.Expect(bytes.size() < kFileSize || bytes == reference, name + L" has wrong bytes");
        whole += bytes.size() == kFileSize;
        partial += bytes.size() < kFileSize && Exists(PathOf(suite, name));
    }
    for (const std::size_t size : {0, 512})
        WriteFileBytes(PathOf(suite, L"Partial" + std::to_wstring(size)), reference.substr(0, size));
    const WizardDriver wizard(suite, L"/NDW");
    Walker walker(wizard);
    walker.stopAt = L"COM Port";
    walker.Walk();
    auto uses = PortUses(walker);
    tally.Expect(uses[1].count == whole && uses.size() == 1,
                 std::to_wstring(uses[1].count) + L" configurations are noted");
    tally.Note(std::to_string(count) + " kills, " + std::to_string(whole) + " whole, " +
               std::to_string(partial) + " partial files");
}

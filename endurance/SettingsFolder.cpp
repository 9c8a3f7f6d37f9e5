// The settings folder: full of other configurations, unable to hold a new one, and left by a wizard that was
// ended while it wrote.
#include "benchmark/Clock.h"
#include "benchmark/LinuxProcess.h"
#include "endurance/Soak.h"
#include "endurance/Walker.h"

#include "tests/support/DemoSuite.h"

#include <algorithm>
#include <functional>
#include <map>
#include <stdexcept>

namespace {

constexpr std::size_t kFileSize = 5449;
constexpr std::size_t kPortOffset = 178;
constexpr wchar_t kNamePage[] = L"Configuration Name";

std::wstring PathOf(const DemoSuite& suite, const std::wstring& name) {
    return suite.Settings() + name + L".DCP";
}

std::string BytesOf(const DemoSuite& suite, const std::wstring& name) {
    const std::wstring path = PathOf(suite, name);
    return GetFileAttributesW(path.c_str()) == INVALID_FILE_ATTRIBUTES ? "" : FileBytes(path);
}

// The bytes of a configuration that a whole undisturbed run makes.
std::string MakeReference(const DemoSuite& suite) {
    WalkWhole(suite, L"/NDW");
    std::string bytes = BytesOf(suite, L"Walked");
    if (bytes.size() != kFileSize) throw std::runtime_error("no configuration to begin with");
    DeleteFileW(PathOf(suite, L"Walked").c_str());
    return bytes;
}

// What the port page says behind each port.
std::map<int, std::wstring> PortUses(const Walker& walker) {
    std::map<int, std::wstring> uses;
    for (HWND child : ChildrenOf(walker.Main())) {
        if (ClassOf(child) != L"ComboBox") continue;
        const auto count = static_cast<int>(Ask(child, CB_GETCOUNT));
        for (int i = 0; i < count; ++i) {
            std::wstring item(Ask(child, CB_GETLBTEXTLEN, static_cast<WPARAM>(i)) + 1, L'\0');
            item.resize(
                Ask(child, CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(item.data())));
            const std::size_t by = item.find(L"used by ");
            if (by != std::wstring::npos) uses[i + 1] = item.substr(by + 8);
        }
    }
    return uses;
}

// "A, B, C and 4 more": the names, and how many there are in all.
std::vector<std::wstring> NamesIn(std::wstring text, std::size_t& count) {
    std::vector<std::wstring> names;
    const std::size_t more = text.find(L" and ");
    count = more == std::wstring::npos ? 0 : std::stoul(text.substr(more + 5));
    text.resize(std::min(more, text.size()));
    for (std::size_t at = 0; at != std::wstring::npos; ++count) {
        const std::size_t comma = text.find(L", ", at);
        names.push_back(text.substr(at, comma - at));
        at = comma == std::wstring::npos ? comma : comma + 2;
    }
    return names;
}

// A file size limit for a running wizard; -1 takes it away.
void LimitFiles(int process, int bytes) {
    const std::string limit = bytes < 0 ? "unlimited" : std::to_string(bytes);
    std::wstring line = L"prlimit --pid " + std::to_wstring(process) + L" --fsize=";
    line.append(limit.begin(), limit.end()).append(L":");
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION started{};
    if (!CreateProcessW(L"Z:\\usr\\bin\\prlimit", line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &startup, &started))
        throw std::runtime_error("cannot start prlimit");
    const std::wstring limits = L"Z:\\proc\\" + std::to_wstring(process) + L"\\limits";
    for (int i = 0; i < 2000; ++i, Sleep(5)) {
        char text[2048] = "";
        DWORD read = 0;
        const HANDLE file = CreateFileW(limits.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                        nullptr, OPEN_EXISTING, 0, nullptr);
        ReadFile(file, text, sizeof text - 1, &read, nullptr);
        CloseHandle(file);
        const std::string_view all(text, read);
        const std::size_t row = all.find("Max file size");
        if (row == std::string_view::npos) continue;
        const std::size_t value = all.find_first_not_of(' ', row + 13);
        if (all.substr(value, all.find(' ', value) - value) == limit) return;
    }
    throw std::runtime_error("the limit did not come");
}

} // namespace

void CheckFolder(Tally& tally) {
    const DemoSuite suite;
    const std::string reference = MakeReference(suite);
    const int count = tally.Of(5000, 300);
    for (int i = 0; i < count; ++i) {
        std::string bytes = reference;
        bytes[kPortOffset] = static_cast<char>(i % 200 + 1);
        WriteFileBytes(PathOf(suite, L"M" + std::to_wstring(i)), bytes);
    }
    std::string bad = reference;
    bad[kPortOffset] = static_cast<char>(201);
    const HANDLE locked = CreateFileW(PathOf(suite, L"Locked").c_str(), GENERIC_WRITE, 0, nullptr,
                                      CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    DWORD written = 0;
    WriteFile(locked, bad.data(), static_cast<DWORD>(bad.size()), &written, nullptr);
    WriteFileBytes(PathOf(suite, L"Empty"), "");
    WriteFileBytes(PathOf(suite, L"Short"), bad.substr(0, kFileSize - 1));
    WriteFileBytes(PathOf(suite, L"Long"), bad + "x");
    WriteFileBytes(PathOf(suite, L"Other") + L"x", bad);
    bad[0] = 'x';
    WriteFileBytes(PathOf(suite, L"Damaged"), bad);
    CreateDirectoryW(PathOf(suite, L"X").c_str(), nullptr);

    const WizardDriver wizard(suite, L"/NDW");
    Walker walker(wizard);
    walker.stopAt = L"Before You Begin";
    tally.Expect(walker.Walk().trouble.empty(), L"the way to the port page");
    ULONGLONG best = ~0ULL;
    for (int i = 0; i < 5; ++i) {
        const ULONGLONG begin = GetTickCount64();
        walker.Press(walker.Next());
        best = std::min(best, GetTickCount64() - begin);
        for (const auto& [port, text] : PortUses(walker)) {
            std::size_t all = 0;
            for (const std::wstring& name : NamesIn(text, all))
                tally.Expect(name.starts_with(L"M") && std::stoi(name.substr(1)) % 200 + 1 == port,
                             L"COM" + std::to_wstring(port) + L" used by " + name);
        }
        tally.Expect(!PortUses(walker).empty(), L"no use of a port is shown");
        walker.Press(walker.Button(L"< Back"));
    }
    tally.Expect(best <= 300, L"the port page took " + std::to_wstring(best) + L" ms");
    tally.Note(std::to_string(count) + " configurations, port page in " + std::to_string(best) + " ms");
    CloseHandle(locked);
}

void CheckFileLimit(Tally& tally) {
    const DemoSuite suite;
    const std::string reference = MakeReference(suite);
    for (const int limit : {0, 1, 511, 512, 5448, 5449}) {
        const std::wstring name = L"Limit" + std::to_wstring(limit);
        const WizardDriver wizard(suite, (L"/NDW " + name).c_str()); // a mark to find the process by
        Walker walker(wizard);
        walker.stopAt = kNamePage;
        walker.name = name;
        walker.Walk();
        const int process = LinuxProcess(Utf8(name));
        LimitFiles(process, limit);
        const std::wstring told = walker.CreateConfiguration();
        const std::string partial = BytesOf(suite, name);
        std::wstring what = name;
        what.append(L": ").append(std::to_wstring(partial.size())).append(L" bytes, told ").append(told);
        if (limit < static_cast<int>(kFileSize)) {
            tally.Expect(told.starts_with(L"The configuration file could not be written:") &&
                             walker.Heading() == kNamePage &&
                             partial.size() <= static_cast<std::size_t>(limit),
                         what);
            LimitFiles(process, -1);
            tally.Expect(walker.CreateConfiguration().empty(), what + L"; again");
        } else {
            tally.Expect(told.empty(), what);
            LimitFiles(process, -1);
        }
        tally.Expect(walker.Heading() == L"Finished" && BytesOf(suite, name) == reference, what + L"; bytes");
    }
}

// Begins to make the configuration `name` and ends the wizard when `over` says so.
void CreateAndEnd(Tally& tally, const DemoSuite& suite, const std::wstring& name,
                  const std::function<bool()>& over) {
    const WizardDriver wizard(suite, L"/NDW");
    Walker walker(wizard);
    walker.stopAt = kNamePage;
    walker.name = name;
    tally.Expect(walker.Walk().trouble.empty(), name + L": the way to the name page");
    walker.TypeName();
    SendNotifyMessageW(walker.Next(), BM_CLICK, 0, 0);
    while (!over())
        if (HWND modal = walker.Modal()) SendNotifyMessageW(GetDlgItem(modal, IDOK), BM_CLICK, 0, 0);
}

void CheckKills(Tally& tally) {
    const DemoSuite suite;
    const std::string reference = MakeReference(suite);
    std::mt19937 random(tally.Seed());
    double begin = 0;
    const double patience = 20000;
    // How long it takes undisturbed: the end comes at any moment up to twice as late.
    CreateAndEnd(tally, suite, L"First", [&] {
        if (begin == 0) begin = Now();
        return BytesOf(suite, L"First").size() == kFileSize || Now() > begin + patience;
    });
    const auto usual_us = static_cast<std::uint32_t>(1000 * (Now() - begin));
    const int count = tally.Of(200, 4);
    std::size_t whole = 1;
    int partial = 0;
    for (int i = 0; i < count; ++i) {
        const std::wstring name = L"K" + std::to_wstring(i);
        const double wait = static_cast<double>(random() % (2 * usual_us)) / 1000;
        begin = 0;
        CreateAndEnd(tally, suite, name, [&] {
            if (begin == 0) begin = Now();
            return Now() > begin + wait;
        });
        const std::string bytes = BytesOf(suite, name);
        tally.Expect(bytes.size() < kFileSize || bytes == reference, name + L" has wrong bytes");
        whole += bytes.size() == kFileSize;
        partial += bytes.size() < kFileSize &&
                   GetFileAttributesW(PathOf(suite, name).c_str()) != INVALID_FILE_ATTRIBUTES;
    }
    WriteFileBytes(PathOf(suite, L"Partial"), reference.substr(0, 512));
    const WizardDriver wizard(suite, L"/NDW");
    Walker walker(wizard);
    walker.stopAt = L"COM Port";
    walker.Walk();
    std::size_t listed = 0;
    const auto uses = PortUses(walker);
    if (uses.contains(1)) NamesIn(uses.at(1), listed);
    tally.Expect(listed == whole && uses.size() <= 1, std::to_wstring(listed) + L" configurations are noted");
    tally.Note(std::to_string(whole) + " whole, " + std::to_string(partial) + " partial files");
}

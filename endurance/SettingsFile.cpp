// Settings files through a whole run of both wizards, large ones and on full disks: every key of others reads
// as before, every comment line stands, and what cannot be written is told. A file that may not be written is
// a row of the unit tests and a walk.
#include "endurance/Soak.h"

#include <atomic>
#include <sstream>
#include <thread>

namespace {

enum class Ends { Finished, Denied, Told };
enum class Disk { Large, Full, FillsUp };

struct Row {
    const char* what;
    Ends ends;
    Disk disk;
    int full, few; // keys of others
} const kRows[] = {{"usual", Ends::Finished, Disk::Large, 0, 0},
                   {"many keys", Ends::Finished, Disk::Large, 100000, 1000},
                   {"full disk", Ends::Denied, Disk::Full, 0, 0},
                   {"disk that fills up", Ends::Told, Disk::FillsUp, 0, 0}};

// Keys of others around those of the wizard, with comments.
std::string Content(int keys) {
    std::string text = "; of the installer\r\n[General]\r\nSecurity=0\r\n;old\r\nFTSW_MaxProgress=3\r\n"
                       "Name=DNC\r\n[Install]\r\nOptions=7\r\n; last\r\n[Other]\r\nA=1\r\nB=\r\n[Many]\r\n";
    for (int i = 0; i < keys; ++i)
        text += "key" + std::to_string(i) + "=value " + std::to_string(i) + "\r\n";
    return text;
}

// Those lines of `content` that are not in `file` any more; the wizard's own key apart.
std::string Lost(const std::string& content, const std::string& file) {
    std::string lost;
    std::istringstream lines(content);
    for (std::string line; std::getline(lines, line);)
        if (!line.starts_with("FTSW_MaxProgress") && file.find(line) == std::string::npos) lost += line;
    return lost;
}

constexpr DWORD kDiskBlock = 4096;

// Takes what is free, to the last byte.
void FillUp(const std::wstring& disk) {
    const win::UniqueFile file(
        CreateFileW((disk + L"filler").c_str(), FILE_APPEND_DATA, 0, nullptr, OPEN_ALWAYS, 0, nullptr));
    const std::string block(kDiskBlock, 'f');
    for (DWORD size = kDiskBlock, written = 0; size > 0; size = written == size ? size : size / 2)
        if (!WriteFile(file.Get(), block.data(), size, &written, nullptr)) written = 0;
}

// Nothing is left then: neither on the disk nor in the last block of the file itself.
void FillUpWith(const std::wstring& disk, const std::wstring& file) {
    FillUp(disk);
    const std::size_t free = kDiskBlock - FileBytes(file).size() % kDiskBlock;
    if (free < 100 || free == kDiskBlock) return;
    WriteFileBytes(file, FileBytes(file) + ";" + std::string(free - 3, 'f') + "\r\n");
    FillUp(disk);
}

Ends EndOf(const Journey& journey) {
    if (journey.Passed(L"Permission denied!")) return Ends::Denied;
    const bool told = journey.Told(L"Unable to write data to configuration file: ") ||
                      journey.Told(L"The configuration file could not be written:");
    return told ? Ends::Told : Ends::Finished;
}

void Run(const DemoSuite& suite, const Row& row, const std::wstring& settings, const wchar_t* arguments) {
    if (row.disk == Disk::FillsUp) DeleteFileW((settings + L"filler").c_str());
    const WizardDriver wizard(suite.CommandLine(arguments), WizardDriver::Wait::No);
    Walker walker(wizard);
    if (row.disk == Disk::FillsUp)
        walker.onPage = [&](const std::wstring&) { FillUpWith(settings, settings + suite::kIniFile); };
    const Journey journey = walker.Walk();
    EXPECT_TRUE(journey.trouble.empty() && EndOf(journey) == row.ends &&
                (row.ends != Ends::Finished || journey.Passed(L"Finished")))
        << Utf8(arguments + journey.Story());
}

void Try(const Row& row) {
    SCOPED_TRACE(row.what);
    const DemoSuite suite;
    const std::wstring settings = row.disk == Disk::Large ? suite.Settings() : Given("SOAK_SMALL_DISK");
    if (settings.empty()) GTEST_SKIP() << row.what << " needs root, to mount a small disk";
    const std::wstring file = settings + suite::kIniFile;
    const std::string content = Content(Of(row.full, row.few));
    for (const std::wstring& old : FileNames(settings))
        DeleteFileW((settings + old).c_str());
    SetRegText(HKEY_CURRENT_USER, L"SOFTWARE\\Varnel\\Varnel DNC\\Paths", L"SettingsPath", settings);
    WriteFileBytes(file, content);
    if (row.disk == Disk::Full) FillUp(settings);
    for (const wchar_t* arguments : {L"", L"/NDW"})
        Run(suite, row, settings, arguments);
    EXPECT_EQ(Lost(content, FileBytes(file)), "");
}

TEST(Soak, ini) {
    for (const Row& row : kRows)
        Try(row);
}

// Another program of the suite writes a key every 20 ms: every start succeeds, and none of its writes is
// refused. That two writers never lose a key of each other is more than the profile calls promise.
TEST(Soak, writers) {
    const DemoSuite suite;
    const std::string file = Utf8(suite.Settings() + suite::kIniFile);
    WriteFileBytes(suite.Settings() + suite::kIniFile, Content(0));
    std::atomic<int> refused = 0;
    std::jthread writer([&](const std::stop_token& over) {
        for (int i = 0; !over.stop_requested(); ++i, Sleep(20))
            refused += !WritePrivateProfileStringA("Third", "Count", std::to_string(i).c_str(), file.c_str());
    });
    for (int i = 0; i < Of(80, 8); ++i) {
        const WizardDriver wizard(suite.CommandLine(i % 2 ? L"/NDW" : L""), WizardDriver::Wait::No);
        Walker walker(wizard);
        walker.stopAt = i % 2 ? L"New CNC Configuration" : L"Welcome";
        const Journey journey = walker.Walk();
        EXPECT_TRUE(journey.trouble.empty() && wizard.IsRunning() && walker.Heading() == walker.stopAt)
            << Utf8(journey.Story());
        if (wizard.IsRunning()) walker.Close();
    }
    writer.request_stop();
    writer.join();
    EXPECT_EQ(refused, 0) << "writes of the other program";
}

} // namespace

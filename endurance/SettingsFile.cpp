// Settings files of every kind, through a whole run of both wizards: every key of others reads as before,
// every comment line stands, and what cannot be written is told.
#include "endurance/Scene.h"
#include "endurance/Soak.h"
#include "endurance/Walker.h"
#include "tests/support/DemoSuite.h"

#include <algorithm>
#include <set>
#include <sstream>

namespace {

enum class Ends { Finished, Denied, Told };
enum class Disk { Large, Full, FillsUp };

struct Row {
    const wchar_t* what;
    std::string content;
    Ends ends;
    Spoilt how = Spoilt::Not;
    Disk disk = Disk::Large;
};

// Keys of others around those of the wizard, with comments.
const std::string kUsual = "; of the installer\r\n[General]\r\nSecurity=0\r\n;old\r\nFTSW_MaxProgress=3\r\n"
                           "Name=DNC\r\n[Install]\r\nOptions=7\r\n; last\r\n[Other]\r\nA=1\r\nB=\r\n";

// The usual keys and, so often, `before`, a number and `after`.
std::string Many(const char* section, const std::string& before, const std::string& after, int count) {
    std::string text = kUsual + section;
    for (int i = 0; i < count; ++i)
        text.append(before).append(std::to_string(i)).append(after);
    return text;
}

std::string Utf16(const std::string& ascii) {
    std::string text = "\xFF\xFE";
    for (const char c : ascii)
        (text += c) += '\0';
    return text;
}

std::string Readable(std::string content) {
    if (content.starts_with("\xFF\xFE")) std::erase(content.erase(0, 2), '\0');
    return content;
}

std::string UnixLines() {
    std::string text = kUsual;
    std::erase(text, '\r');
    return text;
}

// Made one at a time: some are large.
Row RowNumber(std::size_t number, int size) {
    const auto large = [](int count) {
        return Many("", "[s", "]\r\nk=" + std::string(1020, 'v') + "\r\n", count);
    };
    // clang-format off
    switch (number) {
    case 0:  return {L"usual",              kUsual,                                        Ends::Finished};
    case 1:  return {L"missing",            "",                                            Ends::Denied, Spoilt::Missing};
    case 2:  return {L"empty",              "",                                            Ends::Finished};
    case 3:  return {L"a folder",           "",                                            Ends::Denied, Spoilt::Folder};
    case 4:  return {L"locked",             kUsual,                                        Ends::Denied, Spoilt::Locked};
    case 5:  return {L"read-only",          kUsual,                                        Ends::Denied, Spoilt::ReadOnly};
    case 6:  return {L"many keys",          Many("[Many]\r\n", "key", "=value\r\n", size), Ends::Finished};
    case 7:  return {L"many sections",      Many("", "[s", "]\r\nk=v\r\n; c\r\n", size / 10), Ends::Finished};
    case 8:  return {L"10 MB",              large(10000),                                  Ends::Finished};
    case 9:  return {L"30 MB",              large(30000),                                  Ends::Finished};
    case 10: return {L"line of 64 kB",      kUsual + "[Long]\r\nk=" + std::string(65536, 'l') + "\r\nafter=1\r\n", Ends::Finished};
    case 11: return {L"UTF-16",             Utf16(kUsual),                                 Ends::Finished};
    case 12: return {L"UTF-8 mark",         "\xEF\xBB\xBF" + kUsual,                       Ends::Finished};
    case 13: return {L"sections twice",     kUsual + "[Install]\r\nOptions=9\r\n[Other]\r\nA=2\r\nA=3\r\n[other]\r\na=4\r\n", Ends::Finished};
    case 14: return {L"quotes and blanks",  kUsual + "[Quotes]\r\na=\"quoted\"\r\nb=  blanks  \r\nc=' x '\r\nd=\"half\r\n e = indented\r\n"
                                            "f=a=b\r\ng=x;y\r\nh=\"\"\"\"\r\n",            Ends::Finished};
    case 15: return {L"LF alone",           UnixLines(),                                   Ends::Finished};
    case 16: return {L"no last line end",   kUsual + "[End]\r\nk=v",                       Ends::Finished};
    case 17: return {L"stray lines",        "stray=1\r\n=x\r\nno key\r\n]\r\n" + kUsual + "[Open\r\nx=1\r\n", Ends::Finished};
    case 18: return {L"odd values",         "[General]\r\nSecurity=99999999999\r\nFTSW_MaxProgress=-32769\r\n[Install]\r\nOptions=abc\r\n"
                                            "[General2]\r\nSecurity=7\r\n",                Ends::Finished};
    case 19: return {L"umlauts",            kUsual + "[\xDCml]\r\nschl\xFCssel=\xE4\xF6\xFC\x80\x81\r\n", Ends::Finished};
    case 20: return {L"full disk",          Many("[Many]\r\n", "key", "=value\r\n", 1000), Ends::Denied, Spoilt::Not, Disk::Full};
    default: return {L"disk that fills up", Many("[Many]\r\n", "key", "=value\r\n", 1000), Ends::Told,   Spoilt::Not, Disk::FillsUp};
    }
    // clang-format on
}
constexpr std::size_t kRows = 22;

const std::set<std::string> kOwnKeys = {"FTSW_MaxProgress", "TransmitRoot", "RxNameMode",
                                        "RxChangeNameMode", "NavAutoStart", "AccessTest"};

std::string Trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(" \t\r");
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

// Some hundred keys of others that stand in `content`, evenly spread, as the profile call reads them.
std::vector<std::string> ValuesIn(const std::wstring& file, const std::string& content) {
    std::vector<std::pair<std::string, std::string>> keys;
    std::string section;
    std::istringstream lines(content);
    for (std::string line; std::getline(lines, line);) {
        line = Trimmed(line);
        if (line.starts_with('[') && line.ends_with(']')) section = line.substr(1, line.size() - 2);
        const std::string key = Trimmed(line.substr(0, line.find('=')));
        if (key.size() < line.size() && !key.empty() && line.find('=') != line.npos &&
            !kOwnKeys.contains(key))
            keys.emplace_back(section, key);
    }
    std::vector<std::string> values;
    for (std::size_t i = 0; i < keys.size(); i += 1 + keys.size() / 300) {
        std::string value(70000, '\0');
        const auto& [name, key] = keys[i];
        value.resize(GetPrivateProfileStringA(name.c_str(), key.c_str(), "(absent)", value.data(), 70000,
                                              Utf8(file).c_str()));
        values.push_back(key);
        values.back().append("=").append(value);
    }
    return values;
}

std::multiset<std::string> Comments(const std::string& content) {
    std::multiset<std::string> comments;
    std::istringstream lines(Readable(content));
    for (std::string line; std::getline(lines, line);)
        if (Trimmed(line).starts_with(';')) comments.insert(Trimmed(line));
    return comments;
}

constexpr DWORD kDiskBlock = 4096;

// Takes what is free, to the last byte.
void FillUp(const std::wstring& disk) {
    const HANDLE file =
        CreateFileW((disk + L"filler").c_str(), FILE_APPEND_DATA, 0, nullptr, OPEN_ALWAYS, 0, nullptr);
    const std::string block(kDiskBlock, 'f');
    for (DWORD size = kDiskBlock, written = 0; size > 0; size = written == size ? size : size / 2)
        if (!WriteFile(file, block.data(), size, &written, nullptr)) written = 0;
    CloseHandle(file);
}

// Nothing is left then: neither on the disk nor in the last block of the file itself.
void FillUpWith(const std::wstring& disk, const std::wstring& file, std::string& content) {
    FillUp(disk);
    const std::size_t free = kDiskBlock - FileBytes(file).size() % kDiskBlock;
    if (free < 100 || free == kDiskBlock) return;
    const std::string comment = ";" + std::string(free - 3, 'f') + "\r\n";
    WriteFileBytes(file, FileBytes(file) + comment);
    content += comment;
    FillUp(disk);
}

void Run(Tally& tally, const DemoSuite& suite, Row& row, const std::wstring& settings,
         const wchar_t* arguments) {
    const std::wstring named = row.what + std::wstring(L" ") + arguments + L": ";
    if (row.disk == Disk::FillsUp) DeleteFileW((settings + L"filler").c_str());
    const WizardDriver wizard(suite, arguments, WizardDriver::Wait::No);
    Walker walker(wizard);
    const ULONGLONG begin = GetTickCount64();
    walker.WaitUntilReady();
    const ULONGLONG start = GetTickCount64() - begin;
    tally.Expect(start < 10000, named + L"took " + std::to_wstring(start) + L" ms to start");
    if (row.disk == Disk::FillsUp)
        walker.onPage = [&](const std::wstring&) {
            FillUpWith(settings, settings + suite::kIniFile, row.content);
        };
    const Journey journey = walker.Walk();
    const bool told = journey.Told(L"Unable to write data to configuration file: ") ||
                      journey.Told(L"The configuration file could not be written:");
    const Ends ends = journey.Passed(L"Permission denied!") ? Ends::Denied
                      : told                                ? Ends::Told
                                                            : Ends::Finished;
    tally.Expect(journey.trouble.empty() && ends == row.ends &&
                     (ends != Ends::Finished || journey.Passed(L"Finished")),
                 named + journey.trouble + L" ended " + std::to_wstring(static_cast<int>(ends)));
    // The first run makes a missing file.
    if (row.how == Spoilt::Missing) row.ends = Ends::Finished;
}

void Try(Tally& tally, Row row) {
    const DemoSuite suite;
    const std::wstring settings =
        row.disk == Disk::Large ? suite.Settings() : FromEnvironment(L"SOAK_SMALL_DISK");
    if (settings.empty()) return tally.Skip(std::wstring(row.what) + L": needs root to mount a small disk");
    const std::wstring file = settings + suite::kIniFile;
    for (const std::wstring& old : FileNames(settings))
        DeleteFileW((settings + old).c_str());
    SetRegText(HKEY_CURRENT_USER, L"SOFTWARE\\Varnel\\Varnel DNC\\Paths", L"SettingsPath", settings);
    WriteFileBytes(file, row.content);
    const auto before = ValuesIn(file, Readable(row.content));
    {
        const win::UniqueKernelHandle lock = Spoil(file, row.how);
        if (row.disk == Disk::Full) FillUp(settings);
        for (const wchar_t* arguments : {L"", L"/NDW"})
            Run(tally, suite, row, settings, arguments);
    }
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
    if (row.how == Spoilt::Folder) return;
    const auto after = ValuesIn(file, Readable(row.content));
    for (std::size_t i = 0; i < before.size(); ++i)
        if (after.at(i) != before[i]) tally.Expect(false, row.what + (L": key " + FromUtf8(before[i])));
    tally.Expect(Comments(row.content) == Comments(FileBytes(file)), std::wstring(row.what) + L": comments");
}

} // namespace

void CheckSettingsFile(Tally& tally) {
    for (std::size_t number = 0; number < kRows; number += tally.Quick() && number < 18 ? 6 : 1)
        Try(tally, RowNumber(number, tally.Of(100000, 1000)));
    tally.Note(std::to_string(tally.Quick() ? 7 : kRows) + " settings files through both wizards");
}

// Settings files of every kind, through a whole run of both wizards: every key of others reads as before,
// every comment line stands, and what cannot be written is told.
#include "endurance/Soak.h"
#include "endurance/Walker.h"

#include "tests/support/DemoSuite.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <utility>

namespace {

using namespace std::string_literals;

enum class Ends { Finished, Denied, Told };
enum class Trick { None, Missing, Folder, Locked, ReadOnly, FullDisk, DiskFillsUp };

struct Row {
    const wchar_t* what;
    std::string (*content)(int size);
    Ends ends;
    Trick trick = Trick::None;
};

std::string Repeated(const std::string& before, const std::string& after, int count) {
    std::string text;
    for (int i = 0; i < count; ++i)
        text.append(before).append(std::to_string(i)).append(after);
    return text;
}

// Keys of others around those of the wizard, with comments.
std::string Usual(int) {
    return "; of the installer\r\n[General]\r\nSecurity=0\r\n;old\r\nFTSW_MaxProgress=3\r\nName=DNC\r\n"
           "[Install]\r\nOptions=7\r\n; last\r\n[Other]\r\nA=1\r\nB=\r\n"s;
}
std::string Empty(int) { return ""; }
std::string Keys(int size) { return Usual(0) + "[Many]\r\n" + Repeated("key", "=value\r\n", size); }
std::string Sections(int size) { return Usual(0) + Repeated("[s", "]\r\nk=v\r\n; c\r\n", size / 10); }
std::string Large(int size) {
    return Usual(0) + Repeated("[s", "]\r\nk=" + std::string(1020, 'v') + "\r\n", size);
}
std::string Third(int size) { return Large(size * 3 / 10); }
std::string LongLine(int) { return Usual(0) + "[Long]\r\nk=" + std::string(65536, 'l') + "\r\nafter=1\r\n"; }
std::string Utf16(int) {
    std::string text = "\xFF\xFE";
    for (const char c : Usual(0))
        (text += c) += '\0';
    return text;
}
std::string Utf8(int) { return "\xEF\xBB\xBF" + Usual(0); }
std::string Twice(int) {
    return Usual(0) + "[Install]\r\nOptions=9\r\n[Other]\r\nA=2\r\nA=3\r\n[other]\r\na=4\r\n";
}
std::string Quotes(int) {
    return Usual(0) + "[Quotes]\r\na=\"quoted\"\r\nb=  blanks  \r\nc=' x '\r\nd=\"half\r\n e = indented\r\n"
                      "f=a=b\r\ng=x;y\r\nh=\"\"\"\"\r\n";
}
std::string UnixLines(int) {
    std::string text = Usual(0);
    std::erase(text, '\r');
    return text;
}
std::string NoLastLine(int) { return Usual(0) + "[End]\r\nk=v"; }
std::string Stray(int) { return "stray=1\r\n=x\r\nno key\r\n]\r\n" + Usual(0) + "[Open\r\nx=1\r\n"; }
std::string Odd(int) {
    return "[General]\r\nSecurity=99999999999\r\nFTSW_MaxProgress=-32769\r\n[Install]\r\nOptions=abc\r\n"
           "[General2]\r\nSecurity=7\r\n"s;
}
std::string Umlauts(int) { return Usual(0) + "[\xDCml]\r\nschl\xFCssel=\xE4\xF6\xFC\x80\x81\r\n"; }

// clang-format off
constexpr Row kRows[] = {
    {L"usual",              Usual,      Ends::Finished},
    {L"missing",            Empty,      Ends::Denied,   Trick::Missing},
    {L"empty",              Empty,      Ends::Finished},
    {L"a folder",           Empty,      Ends::Denied,   Trick::Folder},
    {L"locked",             Usual,      Ends::Denied,   Trick::Locked},
    {L"read-only",          Usual,      Ends::Denied,   Trick::ReadOnly},
    {L"many keys",          Keys,       Ends::Finished},
    {L"many sections",      Sections,   Ends::Finished},
    {L"100 MB",             Large,      Ends::Denied},
    {L"30 MB",              Third,      Ends::Finished},
    {L"line of 64 kB",      LongLine,   Ends::Finished},
    {L"UTF-16",             Utf16,      Ends::Finished},
    {L"UTF-8 mark",         Utf8,       Ends::Finished},
    {L"sections twice",     Twice,      Ends::Finished},
    {L"quotes and blanks",  Quotes,     Ends::Finished},
    {L"LF alone",           UnixLines,  Ends::Finished},
    {L"no last line end",   NoLastLine, Ends::Finished},
    {L"stray lines",        Stray,      Ends::Finished},
    {L"odd values",         Odd,        Ends::Finished},
    {L"umlauts",            Umlauts,    Ends::Finished},
    {L"full disk",          Keys,       Ends::Denied,   Trick::FullDisk},
    {L"disk that fills up", Keys,       Ends::Told,     Trick::DiskFillsUp},
};
// clang-format on

constexpr const char* kOwnKeys[] = {"FTSW_MaxProgress", "TransmitRoot", "RxNameMode",
                                    "RxChangeNameMode", "NavAutoStart", "AccessTest"};

std::string Trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(" \t\r");
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

using Values = std::map<std::pair<std::string, std::string>, std::string>;

// Some hundred keys of others, evenly spread, as the profile call reads them.
Values ValuesOf(const std::wstring& file, const std::string& content) {
    std::vector<std::pair<std::string, std::string>> keys;
    std::string section;
    std::istringstream lines(content);
    for (std::string line; std::getline(lines, line);) {
        line = Trimmed(line);
        if (line.starts_with('[') && line.ends_with(']')) section = line.substr(1, line.size() - 2);
        const std::string key = Trimmed(line.substr(0, line.find('=')));
        const bool own = std::find(std::begin(kOwnKeys), std::end(kOwnKeys), key) != std::end(kOwnKeys);
        if (line.find('=') != std::string::npos && !key.empty() && !own) keys.emplace_back(section, key);
    }
    Values values;
    const std::string path(file.begin(), file.end());
    for (std::size_t i = 0; i < keys.size(); i += 1 + keys.size() / 300) {
        std::string value(70000, '\0');
        const auto& [name, key] = keys[i];
        value.resize(GetPrivateProfileStringA(name.c_str(), key.c_str(), "(absent)", value.data(), 70000,
                                              path.c_str()));
        values[keys[i]] = value;
    }
    return values;
}

std::multiset<std::string> Comments(const std::string& content) {
    std::multiset<std::string> comments;
    std::istringstream lines(content);
    for (std::string line; std::getline(lines, line);)
        if (Trimmed(line).starts_with(';')) comments.insert(Trimmed(line));
    return comments;
}

// A small disk, mounted by whoever runs this; L"" when there is none.
std::wstring SmallDisk() {
    wchar_t path[MAX_PATH] = L"";
    GetEnvironmentVariableW(L"SOAK_SMALL_DISK", path, MAX_PATH);
    return path;
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

class Scene {
  public:
    Scene(const Row& row, int size) : row_(row) {
        const bool small = row.trick == Trick::FullDisk || row.trick == Trick::DiskFillsUp;
        settings_ = small ? SmallDisk() : suite_.Settings();
        file_ = settings_ + L"VarnelDnc.ini";
        DeleteFileW((suite_.Settings() + L"VarnelDnc.ini").c_str());
        for (const std::wstring& old : small ? FileNames(settings_) : std::vector<std::wstring>())
            DeleteFileW((settings_ + old).c_str());
        RegSetKeyValueW(HKEY_CURRENT_USER, L"SOFTWARE\\Varnel\\Varnel DNC\\Paths", L"SettingsPath", REG_SZ,
                        settings_.c_str(), static_cast<DWORD>((settings_.size() + 1) * sizeof(wchar_t)));
        content_ = row.content(small ? 1000 : size);
        if (row.trick == Trick::Folder)
            CreateDirectoryW(file_.c_str(), nullptr);
        else if (row.trick != Trick::Missing)
            WriteFileBytes(file_, content_);
        if (row.trick != Trick::Folder && row.trick != Trick::Missing)
            before_ = ValuesOf(file_, Readable(content_));
        if (row.trick == Trick::ReadOnly) SetFileAttributesW(file_.c_str(), FILE_ATTRIBUTE_READONLY);
        if (row.trick == Trick::FullDisk) FillUp(settings_);
        if (row.trick == Trick::Locked)
            lock_ = CreateFileW(file_.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    }
    ~Scene() {
        if (lock_ != INVALID_HANDLE_VALUE) CloseHandle(lock_);
        SetFileAttributesW(file_.c_str(), FILE_ATTRIBUTE_NORMAL);
    }
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;

    void Run(Tally& tally, const wchar_t* arguments) {
        if (row_.trick == Trick::DiskFillsUp) DeleteFileW((settings_ + L"filler").c_str());
        const WizardDriver wizard(suite_, arguments, WizardDriver::Wait::No);
        Walker walker(wizard);
        const ULONGLONG begin = GetTickCount64();
        walker.WaitUntilReady();
        const ULONGLONG start = GetTickCount64() - begin;
        tally.Expect(start < 10000, Named(arguments) + L"took " + std::to_wstring(start) + L" ms to start");
        if (row_.trick == Trick::DiskFillsUp) walker.onPage = [&](const std::wstring&) { FillUpNow(); };
        const Journey journey = walker.Walk();
        const bool told = journey.Told(L"Unable to write data to configuration file: ") ||
                          journey.Told(L"The configuration file could not be written:");
        const bool denied = journey.Passed(L"Permission denied!");
        // The first run makes a missing file.
        const Ends expected = row_.trick == Trick::Missing && *arguments ? Ends::Finished : row_.ends;
        const bool right = expected == Ends::Denied ? denied
                           : expected == Ends::Told ? told
                                                    : !denied && !told && journey.Passed(L"Finished");
        tally.Expect(journey.trouble.empty() && right, Named(arguments) + journey.trouble +
                                                           (denied ? L" denied" : L"") +
                                                           (told ? L" told" : L""));
    }

    void Compare(Tally& tally) {
        if (lock_ != INVALID_HANDLE_VALUE) CloseHandle(std::exchange(lock_, INVALID_HANDLE_VALUE));
        if (row_.trick == Trick::Folder || row_.trick == Trick::Missing) return;
        const std::string content = FileBytes(file_);
        const Values after = ValuesOf(file_, Readable(content_));
        for (const auto& [key, value] : before_)
            if (after.at(key) != value)
                tally.Expect(false,
                             Named(L"") + L"key " + std::wstring(key.second.begin(), key.second.end()));
        tally.Expect(before_.size() == after.size(), Named(L"") + L"keys");
        tally.Expect(Comments(Readable(content_)) == Comments(Readable(content)), Named(L"") + L"comments");
    }

  private:
    // Nothing is left then: neither on the disk nor in the last block of the file itself.
    void FillUpNow() {
        FillUp(settings_);
        const std::size_t free = kDiskBlock - FileBytes(file_).size() % kDiskBlock;
        if (free < 100 || free == kDiskBlock) return;
        const std::string comment = ";" + std::string(free - 3, 'f') + "\r\n";
        WriteFileBytes(file_, FileBytes(file_) + comment);
        content_ += comment;
        FillUp(settings_);
    }

    std::wstring Named(const std::wstring& arguments) const { return row_.what + (L" " + arguments) + L": "; }
    static std::string Readable(std::string content) {
        if (content.starts_with("\xFF\xFE")) std::erase(content.erase(0, 2), '\0');
        return content;
    }

    const Row& row_;
    DemoSuite suite_;
    std::wstring settings_, file_;
    std::string content_;
    Values before_;
    HANDLE lock_ = INVALID_HANDLE_VALUE;
};

} // namespace

void CheckSettingsFile(Tally& tally) {
    for (const Row& row : kRows) {
        const bool small = row.trick == Trick::FullDisk || row.trick == Trick::DiskFillsUp;
        if (small && SmallDisk().empty()) {
            tally.Skip(std::wstring(row.what) + L": needs root to mount a small disk");
            continue;
        }
        if (tally.Quick() && !small && (&row - kRows) % 6 != 0) continue;
        Scene scene(row, tally.Of(100000, 1000));
        for (const wchar_t* arguments : {L"", L"/NDW"})
            scene.Run(tally, arguments);
        scene.Compare(tally);
    }
}

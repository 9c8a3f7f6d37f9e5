// What the registry may hold for the settings folder, and folders that are not as they should be: the wizard
// opens on its first page or says that it may not write, and puts nothing anywhere else.
#include "endurance/BadText.h"
#include "endurance/Scene.h"
#include "endurance/Soak.h"
#include "endurance/Walker.h"

#include "tests/support/DemoSuite.h"

#include <shlobj.h>

namespace {

enum class Opens { Own, Default, Denied, Either }; // the suite's settings folder, the common one, none

using Bytes = std::basic_string<unsigned char>;

struct Row {
    std::wstring what;
    DWORD type;
    Bytes bytes;
    Opens opens;
};

constexpr wchar_t kPaths[] = L"SOFTWARE\\Varnel\\Varnel DNC\\Paths";
constexpr wchar_t kRunOnce[] = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\RunOnce";

Bytes Wide(const std::wstring& text) {
    const auto* first = reinterpret_cast<const unsigned char*>(text.data());
    return {first, first + text.size() * sizeof(wchar_t)};
}
Bytes Narrow(const std::wstring& text) { return {text.begin(), text.end()}; }
const std::wstring kNul(1, L'\0');

// `path` with so many steps in place that it takes `size` bytes in 8-bit text, its NUL included.
std::wstring OfSize(const std::wstring& path, std::size_t size) {
    std::wstring text = path;
    while (text.size() + 3 <= size)
        text += L".\\";
    return text + (text.size() + 1 < size ? L"\\" : L"");
}

std::vector<Row> Rows(const DemoSuite& suite) {
    const std::wstring path = suite.Settings();
    const std::wstring bare = path.substr(0, path.size() - 1);
    // clang-format off
    std::vector<Row> rows = {
        {L"no value",             REG_NONE,      {},                                    Opens::Default},
        {L"with backslash",       REG_SZ,        Wide(path + kNul),                     Opens::Own},
        {L"without backslash",    REG_SZ,        Wide(bare + kNul),                     Opens::Own},
        {L"two backslashes",      REG_SZ,        Wide(path + L"\\" + kNul),             Opens::Own},
        {L"without NUL",          REG_SZ,        Wide(bare),                            Opens::Own},
        {L"two NULs",             REG_SZ,        Wide(bare + kNul + kNul),              Opens::Own},
        {L"text behind the NUL",  REG_SZ,        Wide(bare + kNul + L"more" + kNul),    Opens::Own},
        {L"odd length",           REG_SZ,        Wide(bare) + Bytes(1, 0),              Opens::Own},
        {L"one byte",             REG_SZ,        Bytes(1, 'C'),                         Opens::Either},
        {L"empty",                REG_SZ,        Wide(kNul),                            Opens::Default},
        {L"no bytes",             REG_SZ,        {},                                    Opens::Default},
        {L"expandable",           REG_EXPAND_SZ, Wide(bare + kNul),                     Opens::Own},
        {L"unexpanded",           REG_EXPAND_SZ, Wide(L"%TEMP%\\x" + kNul),             Opens::Denied},
        {L"several",              REG_MULTI_SZ,  Wide(bare + kNul + L"x" + kNul + kNul), Opens::Own},
        {L"binary, 8 bits",       REG_BINARY,    Narrow(bare),                          Opens::Own},
        {L"binary, with NUL",     REG_BINARY,    Narrow(bare + kNul),                   Opens::Own},
        {L"binary, 16 bits",      REG_BINARY,    Wide(bare),                            Opens::Denied},
        {L"number",               REG_DWORD,     Bytes(4, 'x'),                         Opens::Denied},
        {L"number 0",             REG_DWORD,     Bytes(4, 0),                           Opens::Default},
        {L"unknown type",         4711,          Narrow(bare),                          Opens::Own},
        {L"255 x FF",             REG_BINARY,    Bytes(255, 0xFF),                      Opens::Denied},
        {L"1023 bytes",           REG_BINARY,    Narrow(OfSize(path, 1023) + kNul),     Opens::Either},
        {L"1024 bytes",           REG_BINARY,    Narrow(OfSize(path, 1024) + kNul),     Opens::Either},
        {L"1025 bytes",           REG_BINARY,    Narrow(OfSize(path, 1025) + kNul),     Opens::Default},
        {L"1023 characters",      REG_SZ,        Wide(OfSize(path, 1023) + kNul),       Opens::Either},
        {L"1024 characters",      REG_SZ,        Wide(OfSize(path, 1024) + kNul),       Opens::Either},
        {L"1025 characters",      REG_SZ,        Wide(OfSize(path, 1025) + kNul),       Opens::Default},
        {L"3 MB",                 REG_SZ,        Wide(std::wstring(3 << 19, L'x')),     Opens::Default},
        {L"no such folder",       REG_SZ,        Wide(path + L"none" + kNul),           Opens::Denied},
        {L"no such drive",        REG_SZ,        Wide(L"Q:\\x" + kNul),                 Opens::Denied},
        {L"below a file",         REG_SZ,        Wide(path + L"VarnelDnc.ini\\x" + kNul), Opens::Denied},
        {L"a file",               REG_SZ,        Wide(path + L"VarnelDnc.ini" + kNul),  Opens::Denied},
        {L"no such server",       REG_SZ,        Wide(L"\\\\nohost\\share" + kNul),     Opens::Denied},
        {L"server alone",         REG_SZ,        Wide(L"\\\\nohost" + kNul),            Opens::Denied},
        {L"relative",             REG_SZ,        Wide(L"Settings" + kNul),              Opens::Either},
        {L"relative to nothing",  REG_SZ,        Wide(L"none\\x" + kNul),               Opens::Denied},
        {L"slashes",              REG_SZ,        Wide(L"c:/none/x" + kNul),             Opens::Denied},
        {L"parent steps",         REG_SZ,        Wide(path + L"..\\Settings" + kNul),   Opens::Own},
    };
    // clang-format on
    for (const BadText& bad : BadTexts())
        rows.push_back({L"bad text " + bad.text.substr(0, 12), REG_SZ, Wide(bad.text + kNul), Opens::Either});
    return rows;
}

const std::string kIni = "[General]\r\nSecurity=0\r\n";

bool Touched(const std::wstring& folder) {
    const bool touched = FileBytes(folder + suite::kIniFile) != kIni;
    WriteFileBytes(folder + suite::kIniFile, kIni);
    return touched;
}

void Try(Tally& tally, const DemoSuite& suite, const std::wstring& common, const Row& row) {
    const auto set = [&](HKEY root, const wchar_t* key, const wchar_t* value) {
        RegSetKeyValueW(root, key, value, row.type, row.bytes.data(), static_cast<DWORD>(row.bytes.size()));
    };
    RegDeleteKeyValueW(HKEY_CURRENT_USER, kPaths, L"SettingsPath");
    if (row.type != REG_NONE) set(HKEY_CURRENT_USER, kPaths, L"SettingsPath");
    set(HKEY_LOCAL_MACHINE, kRunOnce, L"Varnel_DNC_FTSW");
    // Relative paths lead to here: an empty folder below others.
    SetCurrentDirectoryW((suite.Folder() + L"Here\\Deep").c_str());
    const auto before = Tree(suite.Folder());
    const WizardDriver wizard(suite, L"", WizardDriver::Wait::No);
    Walker walker(wizard);
    walker.stopAt = L"Welcome";
    const Journey journey = walker.Walk();
    if (journey.trouble.empty() && wizard.IsRunning()) walker.Close();
    const Opens opened = Touched(suite.Settings()) ? Opens::Own
                         : Touched(common)         ? Opens::Default
                                                   : Opens::Denied;
    tally.Expect(journey.trouble.empty() &&
                     journey.Passed(L"Permission denied!") == (opened == Opens::Denied) &&
                     (row.opens == Opens::Either || row.opens == opened),
                 row.what + L": " + std::to_wstring(static_cast<int>(opened)) + L" " + journey.trouble);
    SetCurrentDirectoryW(L"C:\\");
    for (const std::wstring& change : Changes(before, Tree(suite.Folder()))) {
        const bool relative = row.opens == Opens::Either && change.starts_with(suite.Folder() + L"Here\\");
        tally.Expect(relative, row.what + L" changed " + change);
        DeleteFileW(change.substr(0, change.find(L'|')).c_str());
    }
    RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, kRunOnce, L"Varnel_DNC_FTSW");
}

} // namespace

void CheckRegistry(Tally& tally) {
    const DemoSuite suite;
    wchar_t path[MAX_PATH] = L"";
    SHGetSpecialFolderPathW(nullptr, path, CSIDL_COMMON_APPDATA, TRUE);
    const std::wstring common = path + std::wstring(L"\\Varnel DNC\\Settings\\");
    for (const std::wstring& folder : {suite.Settings(), common, suite.Folder() + L"Here\\Deep"})
        SHCreateDirectoryExW(nullptr, folder.c_str(), nullptr);
    for (const std::wstring& folder : {suite.Settings(), common})
        WriteFileBytes(folder + suite::kIniFile, kIni);
    const auto rows = Rows(suite);
    const std::size_t step = tally.Quick() ? 12 : 1;
    for (std::size_t i = tally.Seed() % step; i < rows.size(); i += step)
        Try(tally, suite, common, rows[i]);
    tally.Note(std::to_string(rows.size()) + " values");
}

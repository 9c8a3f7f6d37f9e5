#include "tests/support/DemoSuite.h"

#include <windows.h>

#include <shellapi.h>

#include <algorithm>
#include <stdexcept>

namespace {

constexpr const wchar_t* kCompanions[] = {L"VConfig.exe",  L"VDNAV.EXE",     L"VLinkMgr.exe",
                                          L"VFileMgr.exe", L"VTerminal.exe", L"VRemote.EXE",
                                          L"HH.exe",       L"DocViewer.exe"};

constexpr const wchar_t* kDocuments[] = {L"QuickTour.chm",        L"LinkCheck.chm",
                                         L"CharCodes.chm",        L"TechNotes.chm",
                                         L"Setup Reference.pdf",  L"Varnel DNC Setup Reference.pdf",
                                         L"Quick Tour Guide.pdf", L"Operator Guide.pdf"};

constexpr DWORD kPatience = 20000; // milliseconds

[[noreturn]] void Fail(const std::wstring& what) { throw std::runtime_error(Utf8(what)); }

std::wstring Environment(const wchar_t* name) {
    std::wstring value(1024, L'\0');
    value.resize(GetEnvironmentVariableW(name, value.data(), 1024));
    if (value.empty()) Fail(std::wstring(L"the environment variable is missing: ") + name);
    // The script that starts the tests gives paths of the host system.
    if (value.front() == L'/') value.insert(0, L"Z:");
    std::replace(value.begin(), value.end(), L'/', L'\\');
    return value;
}

std::wstring FolderOf(const std::wstring& path) { return path.substr(0, path.find_last_of(L'\\') + 1); }

void Copy(const std::wstring& from, const std::wstring& to) {
    if (!CopyFileW(from.c_str(), to.c_str(), FALSE)) Fail(L"cannot copy " + from + L" to " + to);
}

void CopyAll(const std::wstring& from, const wchar_t* pattern, const std::wstring& to) {
    CreateDirectoryW(to.c_str(), nullptr);
    const auto names = FileNames(from, pattern);
    if (names.empty()) Fail(L"nothing to copy in " + from);
    for (const std::wstring& name : names)
        Copy(from + name, to + name);
}

void SetText(HKEY root, const std::wstring& key, const wchar_t* value, const std::wstring& text) {
    const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    if (RegSetKeyValueW(root, key.c_str(), value, REG_SZ, text.c_str(), bytes) != ERROR_SUCCESS)
        Fail(L"cannot write the registry key " + key);
}

std::wstring Wide(const std::string& bytes) {
    const int size = static_cast<int>(bytes.size());
    std::wstring text(bytes.size(), L'\0');
    text.resize(
        static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, bytes.data(), size, text.data(), size)));
    return text;
}

// The value of the line that begins with `key`, from `from` on; moves `from` behind it.
std::wstring Take(const std::string& log, const std::string& key, std::size_t& from) {
    const std::size_t start = log.find(key, from) + key.size();
    const std::size_t end = log.find("\r\n", start);
    from = end;
    return Wide(log.substr(start, end - start));
}

} // namespace

DemoSuite::DemoSuite() {
    static int count = 0;
    std::wstring temp(MAX_PATH, L'\0');
    temp.resize(GetTempPathW(MAX_PATH, temp.data()));
    folder_ =
        temp + L"Varnel " + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++count) + L"\\";
    CreateDirectoryW(folder_.c_str(), nullptr);
    CreateDirectoryW(Settings().c_str(), nullptr);
    Copy(Environment(L"VWIZARD_EXE"), folder_ + L"VWizard.exe");
    for (const wchar_t* name : kCompanions)
        Copy(Environment(L"STANDIN_EXE"), folder_ + name);
    for (const wchar_t* name : kDocuments)
        WriteFileBytes(folder_ + name, "placeholder\r\n");
    WriteFileBytes(Settings() + L"VarnelDnc.ini", "[General]\r\n");
    SetText(HKEY_CURRENT_USER, L"SOFTWARE\\Varnel\\Varnel DNC\\Paths", L"SettingsPath", Settings());
    for (const wchar_t* extension : {L".chm", L".pdf"})
        SetText(HKEY_CLASSES_ROOT, extension, nullptr, L"VarnelDocument");
    SetText(HKEY_CLASSES_ROOT, L"VarnelDocument\\shell\\open\\command", nullptr,
            Quoted(L"DocViewer.exe") + L" \"%1\"");
}

DemoSuite::~DemoSuite() {
    std::wstring list = folder_.substr(0, folder_.size() - 1);
    list += L'\0';
    SHFILEOPSTRUCTW operation{};
    operation.wFunc = FO_DELETE;
    operation.pFrom = list.c_str();
    operation.fFlags = FOF_NO_UI;
    SHFileOperationW(&operation);
}

void DemoSuite::AddIcons() const {
    CopyAll(FolderOf(Environment(L"VWIZARD_EXE")) + L"Icons\\", L"*.ico", folder_ + L"Icons\\");
}

void DemoSuite::AddSamples() const {
    CopyAll(FolderOf(Environment(L"VWIZARD_EXE")) + L"Samples\\", L"*.dcp", folder_ + L"Samples\\");
}

std::vector<Start> DemoSuite::Starts(const wchar_t* program) const {
    const std::wstring path = folder_ + program + L".log";
    std::vector<Start> starts;
    if (GetFileAttributesW(path.c_str()) == INVALID_FILE_ATTRIBUTES) return starts;
    const std::string log = FileBytes(path);
    for (std::size_t from = 0; log.find("command=", from) != std::string::npos;) {
        Start start;
        start.commandLine = Take(log, "command=", from);
        start.show = std::stoi(Take(log, "show=", from));
        start.folder = Take(log, "folder=", from);
        starts.push_back(start);
    }
    return starts;
}

std::vector<Start> DemoSuite::WaitForStarts(const wchar_t* program, std::size_t count) const {
    const DWORD begin = GetTickCount();
    for (;;) {
        auto starts = Starts(program);
        if (starts.size() >= count) return starts;
        if (GetTickCount() - begin > kPatience) Fail(std::wstring(L"was not started: ") + program);
        Sleep(10);
    }
}

std::size_t DemoSuite::StartCount() const {
    std::size_t count = 0;
    for (const wchar_t* name : kCompanions)
        count += Starts(name).size();
    return count;
}

std::wstring DemoSuite::Setting(const wchar_t* key, const wchar_t* section) const {
    std::wstring value(1024, L'\0');
    value.resize(GetPrivateProfileStringW(section, key, L"", value.data(), 1024,
                                          (Settings() + L"VarnelDnc.ini").c_str()));
    return value;
}

void DemoSuite::SetSetting(const wchar_t* key, const wchar_t* value, const wchar_t* section) const {
    if (!WritePrivateProfileStringW(section, key, value, (Settings() + L"VarnelDnc.ini").c_str()))
        Fail(std::wstring(L"cannot write the setting ") + key);
}

std::vector<std::wstring> FileNames(const std::wstring& folder, const wchar_t* pattern) {
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW data{};
    HANDLE search = FindFirstFileW((folder + pattern).c_str(), &data);
    if (search == INVALID_HANDLE_VALUE) return names;
    do {
        const std::wstring name = data.cFileName;
        if (name != L"." && name != L"..") names.push_back(name);
    } while (FindNextFileW(search, &data));
    FindClose(search);
    std::sort(names.begin(), names.end());
    return names;
}

std::string FileBytes(const std::wstring& path) {
    HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                              OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) Fail(L"cannot read " + path);
    std::string bytes(GetFileSize(file, nullptr), '\0');
    DWORD read = 0;
    const BOOL ok = ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
    CloseHandle(file);
    if (!ok || read != bytes.size()) Fail(L"cannot read all of " + path);
    return bytes;
}

void WriteFileBytes(const std::wstring& path, std::string_view bytes) {
    HANDLE file =
        CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) Fail(L"cannot make " + path);
    DWORD written = 0;
    WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    CloseHandle(file);
    if (written != bytes.size()) Fail(L"cannot write " + path);
}

std::string Utf8(std::wstring_view text) {
    const int size = static_cast<int>(text.size());
    std::string bytes(text.size() * 3, '\0');
    bytes.resize(static_cast<std::size_t>(
        WideCharToMultiByte(CP_UTF8, 0, text.data(), size, bytes.data(), size * 3, nullptr, nullptr)));
    return bytes;
}

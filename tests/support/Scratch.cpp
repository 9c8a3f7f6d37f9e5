#include "tests/support/Scratch.h"

#include "app/Files.h"
#include "app/Settings.h"
#include "tools/driver/Windows.h"

#include <algorithm>
#include <thread>

namespace {

constexpr int kBoxText = 65535; // the id of a message box's text

std::wstring UniqueName() {
    static int count = 0;
    return L"Varnel test " + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++count);
}

// Of this process: other tests may run beside this one.
HWND OwnBox() {
    HWND box = nullptr;
    while ((box = FindWindowExW(nullptr, box, L"#32770", nullptr)) != nullptr) {
        DWORD process = 0;
        GetWindowThreadProcessId(box, &process);
        if (process == GetCurrentProcessId() && IsWindowVisible(box)) return box;
    }
    return nullptr;
}

// The button asked for, or any one that lets the program go on.
HWND ButtonOf(HWND box, int wanted) {
    for (const int id : {wanted, IDOK, IDNO, IDCANCEL})
        if (HWND button = GetDlgItem(box, id)) return button;
    return nullptr;
}

// A file or a folder with all in it; read-only files too, which the shell leaves.
void Remove(const std::wstring& path) {
    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    if (DeleteFileW(path.c_str())) return;
    for (const std::wstring& name : FileNames(path + L"\\"))
        Remove(path + L"\\" + name);
    RemoveDirectoryW(path.c_str());
}

win::UniqueKernelHandle Open(const std::wstring& path, DWORD access, DWORD share = 0,
                             DWORD how = OPEN_EXISTING) {
    const HANDLE file =
        CreateFileW(path.c_str(), access, share, nullptr, how, FILE_ATTRIBUTE_NORMAL, nullptr);
    return win::UniqueKernelHandle(file == INVALID_HANDLE_VALUE ? nullptr : file);
}

} // namespace

std::vector<std::wstring> FileNames(const std::wstring& folder, const wchar_t* pattern) {
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW data{};
    const win::UniqueFind search(FindFirstFileW((folder + pattern).c_str(), &data));
    if (search.Get() == INVALID_HANDLE_VALUE) return names;
    do
        if (const std::wstring name = data.cFileName; name != L"." && name != L"..") names.push_back(name);
    while (FindNextFileW(search.Get(), &data));
    std::sort(names.begin(), names.end());
    return names;
}

std::string FileBytes(const std::wstring& path) {
    const auto file = Open(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE);
    if (!file) Fail(L"cannot read " + path);
    std::string bytes(GetFileSize(file.Get(), nullptr), '\0');
    DWORD read = 0;
    if (!ReadFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr) ||
        read != bytes.size())
        Fail(L"cannot read all of " + path);
    return bytes;
}

void WriteFileBytes(const std::wstring& path, std::string_view bytes) {
    const auto file = Open(path, GENERIC_WRITE, 0, CREATE_ALWAYS);
    DWORD written = 0;
    if (file) WriteFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    if (!file || written != bytes.size()) Fail(L"cannot write " + path);
}

void Copy(const std::wstring& from, const std::wstring& to) {
    if (!CopyFileW(from.c_str(), to.c_str(), FALSE)) Fail(L"cannot copy " + from + L" to " + to);
}

std::wstring TestFolder() {
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
    return path.substr(0, path.rfind(L'\\') + 1);
}

void SetRegText(HKEY root, const std::wstring& key, const wchar_t* value, const std::wstring& text) {
    const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof text[0]);
    if (RegSetKeyValueW(root, key.c_str(), value, REG_SZ, text.c_str(), bytes) != ERROR_SUCCESS)
        Fail(L"cannot write the registry key " + key);
}

ScratchFolder::ScratchFolder() {
    std::wstring temp(MAX_PATH, L'\0');
    temp.resize(GetTempPathW(MAX_PATH, temp.data()));
    const std::wstring folder = temp + UniqueName();
    Remove(folder); // left by a run that broke off
    path_ = folder + L"\\";
    if (!CreateDirectoryW(path_.c_str(), nullptr)) Fail(L"no scratch folder");
}

ScratchFolder::~ScratchFolder() { Remove(path_.substr(0, path_.size() - 1)); }

ScratchSuite::ScratchSuite() {
    ProgramLocations scratch = locations;
    scratch.SettingsPath = scratch.AppPath = scratch.ProgramFolder = Path();
    scratch.IniFile = Path() + suite::kIniFile;
    UseLocations(scratch);
}

ScratchSuite::~ScratchSuite() {
    FlushIni();
    UseLocations(before_);
}

ScratchKey::ScratchKey() : path_(L"Software\\" + UniqueName()) {
    if (RegCreateKeyW(HKEY_CURRENT_USER, path_.c_str(), &key_) != ERROR_SUCCESS) Fail(L"no scratch key");
}

ScratchKey::~ScratchKey() {
    RegCloseKey(key_);
    RegDeleteTreeW(HKEY_CURRENT_USER, path_.c_str());
}

void ScratchKey::Set(const std::string& name, DWORD type, std::string_view bytes) const {
    const std::string guarded = std::string(bytes) + "#"; // else the call counts a NUL that follows
    RegSetValueExA(key_, name.c_str(), 0, type, reinterpret_cast<const BYTE*>(guarded.data()),
                   static_cast<DWORD>(bytes.size()));
}

void ScratchKey::Set(const std::wstring& name, DWORD type, std::wstring_view text) const {
    RegSetValueExW(key_, name.c_str(), 0, type, reinterpret_cast<const BYTE*>(text.data()),
                   static_cast<DWORD>(text.size() * sizeof text[0]));
}

win::UniqueKernelHandle Spoil(const std::wstring& path, Spoilt how) {
    if (how == Spoilt::Missing || how == Spoilt::Folder || how == Spoilt::File) Remove(path);
    const bool wantsFile = how == Spoilt::File || how == Spoilt::ReadOnly || how == Spoilt::Locked;
    if (wantsFile && !FileExists(path)) WriteFileBytes(path, "something longer than the probe file");
    if (how == Spoilt::Folder) CreateDirectoryW(path.c_str(), nullptr);
    if (how == Spoilt::ReadOnly) SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY);
    return how == Spoilt::Locked ? Open(path, GENERIC_READ) : win::UniqueKernelHandle();
}

bool ReadOnlyStops() {
    const ScratchFolder folder;
    Spoil(folder.Path() + L"a", Spoilt::ReadOnly);
    return !Open(folder.Path() + L"a", GENERIC_WRITE);
}

std::vector<std::wstring> Answering(std::initializer_list<int> buttons, const std::function<void()>& act) {
    std::vector<std::wstring> boxes;
    std::jthread answering([&](const std::stop_token& over) {
        while (!over.stop_requested()) {
            const HWND box = OwnBox();
            const int wanted = boxes.size() < buttons.size() ? buttons.begin()[boxes.size()] : IDOK;
            const HWND button = box ? ButtonOf(box, wanted) : nullptr;
            Sleep(1);
            if (!button) continue;
            boxes.push_back(TextOf(box) + L"\r\n" + TextOf(GetDlgItem(box, kBoxText)));
            PostMessageW(button, BM_CLICK, 0, 0);
            while (!over.stop_requested() && IsWindowVisible(box))
                Sleep(1);
        }
    });
    act();
    answering.request_stop();
    answering.join();
    return boxes;
}

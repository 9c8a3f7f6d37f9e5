#include "tests/support/Scratch.h"

#include "app/Files.h"
#include "app/Settings.h"
#include "tools/driver/Windows.h"

#include <shlwapi.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>

namespace fs = std::filesystem;

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

// A file or a folder with all in it; read-only files too, which the system leaves.
void Remove(const std::wstring& path) {
    std::error_code none;
    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    for (const auto& entry : fs::recursive_directory_iterator(path, none))
        SetFileAttributesW(entry.path().c_str(), FILE_ATTRIBUTE_NORMAL);
    fs::remove_all(path, none);
}

} // namespace

std::vector<std::wstring> FileNames(const std::wstring& folder, const wchar_t* pattern) {
    std::vector<std::wstring> names;
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(folder, none))
        if (const auto name = entry.path().filename(); PathMatchSpecW(name.c_str(), pattern))
            names.push_back(name);
    std::sort(names.begin(), names.end());
    return names;
}

std::string FileBytes(const std::wstring& path) {
    std::ifstream file(fs::path(path), std::ios::binary);
    if (!file) Fail(L"cannot read " + path);
    return {std::istreambuf_iterator<char>(file), {}};
}

void WriteFileBytes(const std::wstring& path, std::string_view bytes) {
    if (!(std::ofstream(fs::path(path), std::ios::binary) << bytes << std::flush))
        Fail(L"cannot write " + path);
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
    const fs::path folder = fs::temp_directory_path() / UniqueName();
    Remove(folder); // left by a run that broke off
    if (!fs::create_directory(folder)) Fail(L"no scratch folder");
    path_ = folder.wstring() + L"\\";
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

win::UniqueFile Spoil(const std::wstring& path, Spoilt how) {
    if (how == Spoilt::Missing || how == Spoilt::Folder || how == Spoilt::File) Remove(path);
    const bool wantsFile = how == Spoilt::File || how == Spoilt::ReadOnly || how == Spoilt::Locked;
    if (wantsFile && !FileExists(path)) WriteFileBytes(path, "something longer than the probe file");
    if (how == Spoilt::Folder) CreateDirectoryW(path.c_str(), nullptr);
    if (how == Spoilt::ReadOnly) SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY);
    if (how != Spoilt::Locked) return {};
    return win::UniqueFile(CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
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

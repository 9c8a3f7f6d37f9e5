#include "tests/support/Scratch.h"

#include "app/Files.h"
#include "app/Settings.h"
#include "tests/support/DemoSuite.h"

#include <stdexcept>
#include <thread>

namespace {

std::wstring UniqueName() {
    static int count = 0;
    return L"Varnel test " + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++count);
}

std::wstring TextOf(HWND window) {
    std::wstring text(1024, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), 1024)));
    return text;
}

BOOL CALLBACK FindBox(HWND window, LPARAM found) {
    DWORD process = 0;
    wchar_t name[16] = L"";
    GetWindowThreadProcessId(window, &process);
    GetClassNameW(window, name, 16);
    const bool box =
        process == GetCurrentProcessId() && IsWindowVisible(window) && name == std::wstring(L"#32770");
    if (box) *reinterpret_cast<HWND*>(found) = window;
    return !box;
}

// A file or a folder with all in it; read-only files too, which the shell leaves.
void Remove(const std::wstring& path) {
    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    if (DeleteFileW(path.c_str())) return;
    for (const std::wstring& name : FileNames(path + L"\\"))
        Remove(path + L"\\" + name);
    RemoveDirectoryW(path.c_str());
}

win::UniqueKernelHandle Open(const std::wstring& path, DWORD access) {
    const HANDLE file = CreateFileW(path.c_str(), access, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    return win::UniqueKernelHandle(file == INVALID_HANDLE_VALUE ? nullptr : file);
}

// The button asked for, or any one that lets the program go on.
HWND ButtonOf(HWND box, int wanted) {
    for (const int id : {wanted, IDOK, IDNO, IDCANCEL})
        if (HWND button = GetDlgItem(box, id)) return button;
    return nullptr;
}

} // namespace

ScratchFolder::ScratchFolder() {
    std::wstring temp(MAX_PATH, L'\0');
    temp.resize(GetTempPathW(MAX_PATH, temp.data()));
    const std::wstring folder = temp + UniqueName();
    Remove(folder); // left by a run that broke off
    path_ = folder + L"\\";
    if (!CreateDirectoryW(path_.c_str(), nullptr)) throw std::runtime_error("no scratch folder");
}

ScratchFolder::~ScratchFolder() { Remove(path_.substr(0, path_.size() - 1)); }

ScratchSuite::ScratchSuite()
    : settings_(locations.SettingsPath), ini_(locations.IniFile), program_(locations.AppPath) {
    locations.SettingsPath = locations.AppPath = Path();
    locations.IniFile = Path() + kIniName;
}

ScratchSuite::~ScratchSuite() {
    FlushIni();
    locations.SettingsPath = settings_;
    locations.IniFile = ini_;
    locations.AppPath = program_;
}

void ScratchSuite::Ini(std::string_view bytes) const { WriteFileBytes(locations.IniFile, bytes); }
std::string ScratchSuite::Ini() const { return FileBytes(locations.IniFile); }

void ScratchSuite::AddStandIn(const std::wstring& file) const {
    std::wstring own(MAX_PATH, L'\0');
    own.resize(GetModuleFileNameW(nullptr, own.data(), MAX_PATH));
    const std::wstring standIn = own.substr(0, own.rfind(L'\\') + 1) + L"standin.exe";
    if (!CopyFileW(standIn.c_str(), (Path() + file).c_str(), FALSE)) throw std::runtime_error("no stand-in");
}

std::string ScratchSuite::StartsOf(const std::wstring& file) const {
    const std::wstring log = Path() + file + L".log";
    for (int i = 0; i < 2000 && FileSize(log).value_or(0) == 0; ++i)
        Sleep(5);
    return FileBytes(log);
}

ScratchKey::ScratchKey() : path_(L"Software\\" + UniqueName()) {
    if (RegCreateKeyW(HKEY_CURRENT_USER, path_.c_str(), &key_) != ERROR_SUCCESS)
        throw std::runtime_error("no scratch key");
}

ScratchKey::~ScratchKey() {
    RegCloseKey(key_);
    RegDeleteTreeW(HKEY_CURRENT_USER, path_.c_str());
}

void ScratchKey::Set(const char* name, DWORD type, std::string_view bytes) const {
    const std::string guarded = std::string(bytes) + "#"; // else the call counts a NUL that follows
    RegSetValueExA(key_, name, 0, type, reinterpret_cast<const BYTE*>(guarded.data()),
                   static_cast<DWORD>(bytes.size()));
}

void ScratchKey::SetWide(const std::wstring& name, DWORD type, std::wstring_view text) const {
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

std::vector<Box> Answering(std::initializer_list<int> buttons, const std::function<void()>& act) {
    std::vector<Box> boxes;
    std::jthread answering([&](const std::stop_token& over) {
        while (!over.stop_requested()) {
            HWND box = nullptr;
            EnumWindows(FindBox, reinterpret_cast<LPARAM>(&box));
            const int wanted = boxes.size() < buttons.size() ? buttons.begin()[boxes.size()] : IDOK;
            HWND button = box ? ButtonOf(box, wanted) : nullptr;
            Sleep(1);
            if (!button) continue;
            HWND text = GetDlgItem(box, 65535);
            boxes.push_back({TextOf(box), text ? TextOf(text) : L""});
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

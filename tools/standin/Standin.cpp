// Stands in for the companion programs of the suite in demonstrations and tests. Each start appends one
// record to "<own path>.log"; with a file "standin.show" beside it, it also tells the person at the screen.
#include "win/Handles.h"

#include <windows.h>

#include <string>

namespace {

std::wstring OwnPath() {
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
    return path;
}

std::wstring CurrentFolder() {
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetCurrentDirectoryW(MAX_PATH, path.data()));
    return path;
}

// The show state asked for by the starter; SW_SHOWDEFAULT when it left the choice open.
WORD ShowState() {
    STARTUPINFOW info{};
    info.cb = sizeof info;
    GetStartupInfoW(&info);
    return (info.dwFlags & STARTF_USESHOWWINDOW) != 0 ? info.wShowWindow : static_cast<WORD>(SW_SHOWDEFAULT);
}

std::string ToUtf8(const std::wstring& text) {
    const int length = static_cast<int>(text.size());
    std::string bytes(text.size() * 3, '\0');
    bytes.resize(static_cast<size_t>(
        WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(), length * 3, nullptr, nullptr)));
    return bytes;
}

bool Append(const std::wstring& file, const std::string& bytes) {
    const win::UniqueFile log(CreateFileW(file.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                          nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    // One call, so that records of programs started together never mix.
    DWORD written = 0;
    return WriteFile(log.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) &&
           written == bytes.size();
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    const std::wstring path = OwnPath();
    const std::wstring folder = path.substr(0, path.find_last_of(L'\\') + 1);
    const std::wstring commandLine = GetCommandLineW();
    const std::string record = "command=" + ToUtf8(commandLine) + "\r\nshow=" + std::to_string(ShowState()) +
                               "\r\nfolder=" + ToUtf8(CurrentFolder()) + "\r\n\r\n";
    if (!Append(path + L".log", record)) return 1;
    if (GetFileAttributesW((folder + L"standin.show").c_str()) != INVALID_FILE_ATTRIBUTES) {
        const std::wstring text =
            L"In the real suite this program would have opened now.\r\n\r\nCommand line:\r\n" + commandLine;
        MessageBoxW(nullptr, text.c_str(), path.substr(folder.size()).c_str(), MB_OK | MB_ICONINFORMATION);
    }
    return 0;
}

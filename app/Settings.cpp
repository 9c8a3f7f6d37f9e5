#include "app/Settings.h"

#include "app/Blanks.h"
#include "app/CodePage.h"
#include "app/Paths.h"
#include "app/Suite.h"

#include <windows.h>

#include <algorithm>
#include <iterator>
#include <string_view>

namespace {

// A buffer without a NUL is one that the call has not written to: no value.
std::wstring ReadValue(const std::wstring& file, const std::wstring& section, const std::wstring& key) {
    char buffer[255];
    std::fill(std::begin(buffer), std::end(buffer), ' ');
    GetPrivateProfileStringA(ToAnsi(section).c_str(), ToAnsi(key).c_str(), "", buffer, sizeof buffer,
                             ToAnsi(file).c_str());
    const std::string_view text(buffer, sizeof buffer);
    const std::size_t end = text.find('\0');
    return end == std::string_view::npos ? std::wstring() : FromAnsi(text.substr(0, end));
}

// Each write makes the whole file anew. On a full disk the profile function has been seen to report success
// and to lose the keys that no longer fitted. Other programs write the file, too, so it is not opened here.
bool HasRoom(const std::wstring& file) {
    constexpr ULONGLONG kSpare = 8192; // bytes
    WIN32_FILE_ATTRIBUTE_DATA data{};
    ULARGE_INTEGER size{}, free{};
    if (GetFileAttributesExW(file.c_str(), GetFileExInfoStandard, &data)) {
        size.LowPart = data.nFileSizeLow;
        size.HighPart = data.nFileSizeHigh;
    }
    const std::wstring folder = SplitPath(file, kDriveAndFolder);
    if (!GetDiskFreeSpaceExW(folder.c_str(), &free, nullptr, nullptr)) return true; // the write will tell
    return free.QuadPart >= size.QuadPart + kSpare;
}

} // namespace

std::wstring ReadIniString(const std::wstring& section, const std::wstring& key,
                           const std::wstring& defaultText, const std::wstring& file) {
    std::wstring value = ReadValue(file, section, key);
    return value.empty() ? defaultText : value;
}

std::wstring ReadWholeIniString(const std::wstring& section, const std::wstring& key,
                                const std::wstring& file) {
    constexpr std::size_t kLongest = 1 << 24; // far beyond what the system reads
    std::string buffer(1024, '\0');
    for (;;) {
        const std::size_t length =
            GetPrivateProfileStringA(ToAnsi(section).c_str(), ToAnsi(key).c_str(), "", buffer.data(),
                                     static_cast<DWORD>(buffer.size()), ToAnsi(file).c_str());
        // A value that does not fit is cut to one byte less than the buffer; nothing else tells of it.
        const bool isCut = length + 1 >= buffer.size();
        if (!isCut || buffer.size() >= kLongest) return FromAnsi({buffer.data(), length});
        buffer.resize(buffer.size() * 2);
    }
}

std::wstring ReadProfileString(const std::wstring& file, const std::wstring& section, const std::wstring& key,
                               const std::wstring& defaultText) {
    std::wstring value = TrimBlanks(ReadValue(file, section, key));
    return value.empty() ? defaultText : value;
}

void WriteIniString(const std::wstring& key, const std::wstring& value, const std::wstring& file) {
    constexpr std::size_t kLongest = 32000; // bytes; beyond 32,766 the profile function fails or crashes
    const std::string bytes = ToAnsi(value);
    if (bytes.size() > kLongest || !HasRoom(file) ||
        !WritePrivateProfileStringA(ToAnsi(suite::kGeneral).c_str(), ToAnsi(key).c_str(), bytes.c_str(),
                                    ToAnsi(file).c_str()))
        ReportIniWriteError(file);
}

win::AppError IniWriteError(const std::wstring& file) {
    return {kIniWriteErrorNumber, L"VWizard",
            L"Unable to write data to configuration file: \r\n" + file +
                L".\r\n\r\nFile may be READ ONLY or may be locked by another application."};
}

void ReportIniWriteError(const std::wstring& file) { throw IniWriteError(file); }

// The result means nothing: this form of the call returns FALSE after a success, too.
void FlushIni(const std::wstring& file) {
    WritePrivateProfileStringA(nullptr, nullptr, nullptr, ToAnsi(file).c_str());
}

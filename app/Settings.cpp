#include "app/Settings.h"

#include "app/CodePage.h"
#include "app/IniRoom.h"
#include "app/Names.h"
#include "app/modLocations.h"

#include <windows.h>

#include <string_view>

namespace {

constexpr char kWrittenSection[] = "General";

std::wstring ReadValue(const std::wstring& file, const std::wstring& section, const std::wstring& key) {
    char buffer[255];
    std::fill(std::begin(buffer), std::end(buffer), ' ');
    GetPrivateProfileStringA(ToAnsi(section).c_str(), ToAnsi(key).c_str(), "", buffer, sizeof buffer,
                             ToAnsi(file).c_str());
    const std::string_view text(buffer, sizeof buffer);
    const std::size_t end = text.find('\0');
    return end == std::string_view::npos ? std::wstring() : FromAnsi(text.substr(0, end));
}

} // namespace

std::wstring ReadIniString(const std::wstring& section, const std::wstring& key,
                           const std::wstring& defaultText) {
    std::wstring value = ReadValue(locations.IniFile, section, key);
    return value.empty() ? defaultText : value;
}

std::wstring ReadWholeIniString(const std::wstring& section, const std::wstring& key) {
    constexpr std::size_t kLongest = 1 << 24; // far beyond what the system reads
    std::string buffer(1024, '\0');
    for (;;) {
        const std::size_t length =
            GetPrivateProfileStringA(ToAnsi(section).c_str(), ToAnsi(key).c_str(), "", buffer.data(),
                                     static_cast<DWORD>(buffer.size()), ToAnsi(locations.IniFile).c_str());
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

bool TryWriteIniString(const std::wstring& key, const std::wstring& value) {
    constexpr std::size_t kSyntax = 64; // section line, "=", line ends
    const std::string ansiKey = ToAnsi(key);
    const std::string ansiValue = ToAnsi(value);
    if (!HasRoomToRewrite(locations.IniFile, ansiKey.size() + ansiValue.size() + kSyntax)) return false;
    return WritePrivateProfileStringA(kWrittenSection, ansiKey.c_str(), ansiValue.c_str(),
                                      ToAnsi(locations.IniFile).c_str()) != FALSE;
}

void WriteIniString(const std::wstring& key, const std::wstring& value) {
    if (!TryWriteIniString(key, value)) ReportIniWriteError();
}

win::AppError IniWriteError() {
    std::wstring text = L"Unable to write data to configuration file: \r\n" + locations.IniFile +
                        L".\r\n\r\nFile may be READ ONLY or may be locked by another application.";
    if (IsTooLargeToRewrite(locations.IniFile))
        text += L"\r\n\r\nIt is too large: nothing can be added to it.";
    return {kIniWriteErrorNumber, L"VWizard", text};
}

void ReportIniWriteError() { throw IniWriteError(); }

void FlushIni() { WritePrivateProfileStringA(nullptr, nullptr, nullptr, ToAnsi(locations.IniFile).c_str()); }

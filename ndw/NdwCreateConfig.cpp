#include "ndw/NdwCreateConfig.h"

#include "app/Blanks.h"
#include "app/CodePage.h"
#include "app/FileNames.h"
#include "app/Files.h"
#include "app/modLocations.h"
#include "ndw/DcpFile.h"
#include "ndw/DcpFromAnswers.h"
#include "ndw/NdwPages.h"
#include "ndw/modDcp.h"
#include "shell/frmIcons.h"
#include "wizard/frmWizard.h"

#include <algorithm>

namespace {

constexpr std::size_t kLongestPath = 259; // characters, without the NUL

constexpr wchar_t kTryAgain[] = L"\r\n\r\nTry a different name.";

std::wstring InvalidCharactersMessage() {
    // Far from each other: side by side they would read like one strange word.
    std::wstring list(10, L' ');
    for (const wchar_t c : kInvalidNameChars)
        list += std::wstring(1, c) + L"  ";
    return L"The name you specified contains one or more\r\nof the following invalid characters:\r\n" + list;
}

// The place of a path among this run's failed files; the end when it is none of them.
auto FailedFile(const std::wstring& path) {
    auto& failed = ndwSession.failedFiles;
    return std::find_if(failed.begin(), failed.end(),
                        [&](const auto& other) { return lstrcmpiW(path.c_str(), other.c_str()) == 0; });
}

// This run's own file that could not be written whole may be tried again under its name. A device, which
// the system lists as a file in every folder, is refused by its own words.
bool IsUsed(const std::wstring& name, const std::wstring& path) {
    return FileExists(path) && !IsReservedName(name) && FailedFile(path) == ndwSession.failedFiles.end();
}

std::wstring TooLongMessage(std::size_t excess, std::size_t length) {
    std::wstring message = L"The name you specified is too long.";
    if (excess < length)
        message += L"\r\nIt may have up to " + std::to_wstring(length - excess) + L" characters.";
    return message;
}

// What is wrong with a name, "" when nothing is. The last checks keep the file from going to a port, and the
// name from meaning another one where it stands without its extension or in 8 bits.
std::wstring NameProblem(const std::wstring& name, const std::wstring& path) {
    if (name.empty()) return L"You must specify a valid name to continue.";
    // Before the file is looked for: with a backslash in the name that would be a look into another folder.
    if (!IsValidName(name)) return InvalidCharactersMessage() + kTryAgain;
    if (IsUsed(name, path))
        return std::wstring(L"The configuration name you specified is already used.") + kTryAgain;
    if (IsReservedName(name))
        return std::wstring(L"The name you specified is reserved by Windows for a device.") + kTryAgain;
    if (EndsInDot(name)) return std::wstring(L"The name you specified ends in a dot.") + kTryAgain;
    if (HasControlChar(name))
        return std::wstring(L"The name you specified contains a control character.") + kTryAgain;
    if (const auto foreign = FirstNotInAnsi(name))
        return L"The name you specified contains the character \"" + *foreign +
               L"\", which Varnel DNC cannot store." + kTryAgain;
    if (path.size() > kLongestPath)
        return TooLongMessage(path.size() - kLongestPath, name.size()) + kTryAgain;
    return {};
}

// The write itself, told when it fails.
bool Write(frmWizard& form, const std::wstring& path) {
    auto& failedFiles = ndwSession.failedFiles;
    const auto before = FailedFile(path);
    if (WriteDcpFile(path)) {
        if (before != failedFiles.end()) failedFiles.erase(before);
        return true;
    }
    if (before == failedFiles.end()) failedFiles.push_back(path);
    win::ShowMessageBox(form.Hwnd(), L"The configuration file could not be written:\r\n" + path,
                        MB_OK | MB_ICONEXCLAMATION);
    return false;
}

} // namespace

void NdwCreateConfig(frmWizard& form) {
    const std::wstring name = TrimBlanks(ndwSession.answers.name);
    const std::wstring path = ConfigurationFile(name);
    const std::wstring problem = NameProblem(name, path);
    form.StayOnPage = true; // until the file is there, and so also after an error on the way
    if (!problem.empty()) {
        win::ShowMessageBox(form.Hwnd(), problem, MB_OK | MB_ICONEXCLAMATION);
        return;
    }
    SetDcpHeaderDefaults(dcpRecords.header);
    SetDcpRecord4Defaults(dcpRecords.record4);
    // The icon comes after every check of the name: nobody picks one for a name that is refused.
    FillDcpRecords(dcpRecords, ndwSession.answers, NdwPickIcon(form.Hwnd()));
    if (!Write(form, path)) return;
    form.StayOnPage = false;
    form.ConfigWritten = true;
    form.ConfigName = name;
    // "New" keeps the other answers; this one is in use now.
    ndwSession.answers.name.clear();
}

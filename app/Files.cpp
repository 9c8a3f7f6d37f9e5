#include "app/Files.h"

#include "app/Blanks.h"
#include "app/Paths.h"
#include "win/Com.h"
#include "win/Handles.h"

#include <shellapi.h>

#include <algorithm>

namespace {

bool ShellOperation(UINT function, const std::wstring& from, const std::wstring* to, unsigned flags,
                    HWND owner) {
    if (!FitsShell(from) || (to && !FitsShell(*to))) return false;
    StartOle();
    const std::wstring source = from + L'\0'; // the shell wants a list that ends in two NULs
    const std::wstring target = (to ? *to : std::wstring()) + L'\0';
    SHFILEOPSTRUCTW operation{};
    operation.hwnd = owner;
    operation.wFunc = function;
    operation.pFrom = source.c_str();
    operation.pTo = to ? target.c_str() : nullptr;
    operation.fFlags = static_cast<FILEOP_FLAGS>(flags);
    // A user who refuses is no failure to the shell.
    return SHFileOperationW(&operation) == 0 && !operation.fAnyOperationsAborted;
}

// As the file system compares names: without case.
bool HasExtension(const std::wstring& name, const std::wstring& extension) {
    return name.size() >= extension.size() &&
           lstrcmpiW(name.c_str() + name.size() - extension.size(), extension.c_str()) == 0;
}

} // namespace

// By its attributes, without opening it: a file that another program keeps to itself exists, too.
bool FileExists(const std::wstring& path) {
    if (TrimBlanks(SplitPath(path, kNameWithoutExtension)).empty()) return false;
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

bool FolderExists(const std::wstring& path) {
    if (path.empty()) return false;
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

std::vector<std::wstring> ListFiles(const std::wstring& folder, const std::wstring& extension) {
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW found{};
    const win::UniqueFind search(FindFirstFileW((folder + L"*" + extension).c_str(), &found));
    if (!search) return names;
    do { // the system's pattern also matches longer extensions
        const std::wstring name = found.cFileName;
        if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) && HasExtension(name, extension))
            names.push_back(name);
    } while (FindNextFileW(search.Get(), &found));
    return names;
}

// Each path of the list is measured for itself, the one behind the last NUL included.
bool FitsShell(const std::wstring& files) {
    std::size_t start = 0;
    for (std::size_t end = 0; end != files.npos; start = end + 1) {
        end = files.find(L'\0', start);
        if (std::min(end, files.size()) - start >= MAX_PATH) return false;
    }
    return !files.empty() && files.front() != L'\0';
}

// With nothing but undo the shell asks before it replaces a file, and shows how far it is.
bool CopyFiles(const std::wstring& files, const std::wstring& folder, std::int16_t flags, HWND owner) {
    return ShellOperation(FO_COPY, files, &folder, flags == 0 ? FOF_ALLOWUNDO : static_cast<unsigned>(flags),
                          owner);
}

bool DeleteAnyFile(const std::wstring& files, std::int16_t flags, HWND owner) {
    return ShellOperation(FO_DELETE, files, nullptr, static_cast<unsigned>(flags) | FOF_ALLOWUNDO, owner);
}

// Linked in front of the wizard's own objects: puts calls that can fail in the place of functions that the
// program imports; one that it does not import ends it. The environment says which: VWIZARD_FAIL is the
// number of the call, from 1, with a "+" behind it when every later one is to fail too. At the end the calls
// are listed in VWIZARD_FAIL_LOG, behind the names of all functions that can fail, each with a "?" in front.
#include "tests/support/Imports.h"
#include "win/Handles.h"

#include <windows.h>

#include <objbase.h>
#include <shellapi.h>
#include <shlobj.h>

#include <cstdlib>
#include <cstring>
#include <deque>
#include <string>
#include <vector>

namespace {

long failing = 0;
bool everAfter = false;
std::vector<const char*> calls; // of the program's one thread

bool FailsNow(const char* name) {
    calls.push_back(name);
    const long number = static_cast<long>(calls.size());
    return number == failing || (everAfter && failing != 0 && number > failing);
}

// The name of a function as a template argument.
template <std::size_t N> struct Name {
    char text[N]{};
    constexpr Name(const char (&name)[N]) { // NOLINT(google-explicit-constructor)
        for (std::size_t i = 0; i < N; ++i)
            text[i] = name[i];
    }
};

// Stands in for the function of that name: `kResult` and `kError` when the call is to fail.
template <Name kName, std::uintptr_t kResult, DWORD kError, class Function> struct Failing;
template <Name kName, std::uintptr_t kResult, DWORD kError, class Result, class... Arguments>
struct Failing<kName, kResult, kError, Result(WINAPI*)(Arguments...)> {
    static inline void* original = nullptr;
    static Result WINAPI Call(Arguments... arguments) {
        if (!FailsNow(kName.text))
            return reinterpret_cast<Result(WINAPI*)(Arguments...)>(original)(arguments...);
        SetLastError(kError);
        return (Result)kResult; // an integer or a handle
    }
};

struct Row {
    const char* name;
    void* replacement;
    void** original;
};

template <Name kName, std::uintptr_t kResult, DWORD kError, class Function> Row Fails(Function*) {
    using Replaced = Failing<kName, kResult, kError, Function*>;
    return {kName.text, reinterpret_cast<void*>(&Replaced::Call), &Replaced::original};
}

#define FAILS(function, result, error) Fails<#function, result, error>(&(function))

constexpr std::uintptr_t kNoHandle = static_cast<std::uintptr_t>(-1);
constexpr std::uintptr_t kNoAttributes = INVALID_FILE_ATTRIBUTES;
constexpr std::uintptr_t kFailed = static_cast<std::uintptr_t>(E_FAIL);

// A full disk is an error, or takes the half and calls it a success.
constexpr char kHalfWrite[] = "WriteFile";
void* originalWrite = nullptr;
BOOL WINAPI WriteHalf(HANDLE file, const void* bytes, DWORD size, DWORD* written, OVERLAPPED* overlapped) {
    if (FailsNow(kHalfWrite)) {
        SetLastError(ERROR_DISK_FULL);
        return FALSE;
    }
    const auto write = reinterpret_cast<decltype(&WriteFile)>(originalWrite);
    return write(file, bytes, FailsNow("WriteFile, a half") ? size / 2 : size, written, overlapped);
}

// clang-format off
const Row kRows[] = {
    FAILS(CreateFileW,                kNoHandle,           ERROR_ACCESS_DENIED),
    FAILS(ReadFile,                   FALSE,               ERROR_READ_FAULT),
    FAILS(DeleteFileW,                FALSE,               ERROR_SHARING_VIOLATION),
    FAILS(CreateDirectoryW,           FALSE,               ERROR_ACCESS_DENIED),
    FAILS(SetCurrentDirectoryW,       FALSE,               ERROR_PATH_NOT_FOUND),
    FAILS(GetFileAttributesW,         kNoAttributes,       ERROR_ACCESS_DENIED),
    FAILS(GetFileAttributesExW,       FALSE,               ERROR_ACCESS_DENIED),
    FAILS(GetFileSizeEx,              FALSE,               ERROR_INVALID_HANDLE),
    FAILS(GetFileType,                FILE_TYPE_UNKNOWN,   ERROR_INVALID_HANDLE),
    FAILS(FindFirstFileW,             kNoHandle,           ERROR_ACCESS_DENIED),
    FAILS(FindNextFileW,              FALSE,               ERROR_NO_MORE_FILES),
    FAILS(GetPrivateProfileStringA,   0,                   ERROR_FILE_NOT_FOUND),
    FAILS(WritePrivateProfileStringA, FALSE,               ERROR_ACCESS_DENIED),
    FAILS(RegOpenKeyExA,              ERROR_ACCESS_DENIED, 0),
    FAILS(RegOpenKeyExW,              ERROR_ACCESS_DENIED, 0),
    FAILS(RegQueryValueExA,           ERROR_MORE_DATA,     0),
    FAILS(RegEnumValueW,              ERROR_ACCESS_DENIED, 0),
    FAILS(RegDeleteValueA,            ERROR_ACCESS_DENIED, 0),
    FAILS(SHGetSpecialFolderLocation, kFailed,             0),
    FAILS(SHGetPathFromIDListW,       FALSE,               0),
    FAILS(SHFileOperationW,           ERROR_ACCESS_DENIED, 0),
    FAILS(ShellExecuteExW,            FALSE,               ERROR_ACCESS_DENIED),
    FAILS(CreateProcessW,             FALSE,               ERROR_FILE_NOT_FOUND),
    FAILS(OleInitialize,              kFailed,             0),
    FAILS(CoCreateInstance,           kFailed,             0),
    FAILS(LoadImageW,                 0,                   ERROR_RESOURCE_NAME_NOT_FOUND),
    {kHalfWrite, reinterpret_cast<void*>(&WriteHalf), &originalWrite},
};
// clang-format on

#undef FAILS

class Injector {
  public:
    Injector() {
        const char* which = std::getenv("VWIZARD_FAIL");
        failing = which ? std::strtol(which, nullptr, 10) : 0;
        everAfter = which && std::strchr(which, '+') != nullptr;
        calls.reserve(4096);
        for (const Row& row : kRows)
            *row.original = replaced_.emplace_back(row.name, row.replacement).Original<void*>();
    }
    ~Injector() {
        const char* path = std::getenv("VWIZARD_FAIL_LOG");
        if (!path) return;
        failing = 0;
        std::string list;
        for (const Row& row : kRows)
            list += "?" + std::string(row.name) + "\n";
        for (const char* name : calls)
            list += std::string(name) + "\n";
        const win::UniqueFile file(CreateFileA(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
        DWORD written = 0;
        WriteFile(file.Get(), list.data(), static_cast<DWORD>(list.size()), &written, nullptr);
    }

  private:
    std::deque<ReplacedImport> replaced_;
};

const Injector injector;

} // namespace

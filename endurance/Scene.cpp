#include "endurance/Scene.h"

#include "tests/support/DemoSuite.h"

#include <windows.h>

#include <algorithm>
#include <iterator>

namespace {

void AddTree(const std::wstring& folder, std::set<std::wstring>& tree) {
    WIN32_FIND_DATAW found{};
    const win::UniqueFind search(FindFirstFileW((folder + L"*").c_str(), &found));
    if (search.Get() == INVALID_HANDLE_VALUE) return;
    do {
        const std::wstring name = found.cFileName;
        if (name == L"." || name == L"..") continue;
        const bool isFolder = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        tree.insert(folder + name + (isFolder ? L"\\" : L"|" + std::to_wstring(found.nFileSizeLow)));
        if (isFolder) AddTree(folder + name + L"\\", tree);
    } while (FindNextFileW(search.Get(), &found));
}

} // namespace

std::wstring FromEnvironment(const wchar_t* name) {
    std::wstring value(1024, L'\0');
    value.resize(GetEnvironmentVariableW(name, value.data(), 1024));
    return value;
}

bool Exists(const std::wstring& path) { return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES; }

void ReplaceProgram(const DemoSuite& suite, const wchar_t* variable) {
    Copy(FromEnvironment(variable), suite.Folder() + L"VWizard.exe");
}

void AddSamples(const DemoSuite& suite, std::initializer_list<const wchar_t*> names) {
    CreateDirectoryW((suite.Folder() + L"Samples").c_str(), nullptr);
    for (const wchar_t* name : names)
        WriteFileBytes(suite.Folder() + L"Samples\\" + name + L".dcp", "sample");
}

std::set<std::wstring> Tree(const std::wstring& folder) {
    std::set<std::wstring> tree;
    AddTree(folder, tree);
    return tree;
}

std::vector<std::wstring> Changes(const std::set<std::wstring>& before, const std::set<std::wstring>& after) {
    std::vector<std::wstring> changes;
    std::set_difference(after.begin(), after.end(), before.begin(), before.end(),
                        std::back_inserter(changes));
    for (const std::wstring& entry : before)
        if (!after.contains(entry)) changes.push_back(L"-" + entry);
    return changes;
}

#include "endurance/Tree.h"

#include <windows.h>

#include <algorithm>
#include <iterator>

namespace {

void AddTree(const std::wstring& folder, std::set<std::wstring>& tree) {
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW((folder + L"*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return;
    do {
        const std::wstring name = found.cFileName;
        if (name == L"." || name == L"..") continue;
        const bool isFolder = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        tree.insert(folder + name + (isFolder ? L"\\" : L"|" + std::to_wstring(found.nFileSizeLow)));
        if (isFolder) AddTree(folder + name + L"\\", tree);
    } while (FindNextFileW(search, &found));
    FindClose(search);
}

} // namespace

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

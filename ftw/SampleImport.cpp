#include "ftw/SampleImport.h"

#include "app/Paths.h"

std::vector<std::wstring> SampleEntries(const std::vector<std::wstring>& fileNames) {
    std::vector<std::wstring> entries;
    for (const std::wstring& name : fileNames)
        entries.push_back(SplitPath(name, kNameWithoutExtension));
    if (entries.empty()) entries.emplace_back(kNoSamples);
    return entries;
}

std::wstring ImportQuestion(int count) {
    return L"Import " + std::to_wstring(count) + L" sample configuration file" + (count == 1 ? L"" : L"s") +
           L"?\r\nAre you sure?";
}

std::wstring SampleFileList(std::wstring_view folder, const std::vector<std::wstring>& entries) {
    std::wstring files;
    for (const std::wstring& entry : entries)
        files += std::wstring(folder) + entry + L".DCP" + L'\0';
    return files;
}

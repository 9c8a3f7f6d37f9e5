#include "ftw/SampleImport.h"

#include "app/Paths.h"
#include "app/Suite.h"

#include <algorithm>

std::vector<std::wstring> SampleEntries(const std::vector<std::wstring>& fileNames) {
    std::vector<std::wstring> entries;
    for (const std::wstring& name : fileNames)
        entries.push_back(SplitPath(name, kNameWithoutExtension));
    // An empty list would look like one that is still being filled.
    if (entries.empty()) entries.emplace_back(kNoSamples);
    return entries;
}

std::wstring ImportQuestion(int count) {
    return L"Import " + std::to_wstring(count) + L" sample configuration file" + (count == 1 ? L"" : L"s") +
           L"?\r\nAre you sure?";
}

std::wstring LeftOutMessage(const std::vector<std::wstring>& entries) {
    constexpr std::size_t kMostNamed = 10; // the box stays on the screen
    std::wstring text = entries.size() == 1
                            ? L"This sample was not imported, because its path is too long:\r\n"
                            : L"These samples were not imported, because their paths are too long:\r\n";
    for (std::size_t i = 0; i < std::min(entries.size(), kMostNamed); ++i)
        text += L"\r\n" + entries[i];
    if (entries.size() > kMostNamed)
        text += L"\r\nand " + std::to_wstring(entries.size() - kMostNamed) + L" more";
    return text;
}

// The extension is put back in capitals, however the file spells it: Windows finds it either way.
std::wstring SampleFileList(std::wstring_view folder, const std::vector<std::wstring>& entries) {
    std::wstring files;
    for (const std::wstring& entry : entries)
        files += std::wstring(folder) + entry + suite::kConfigurationExtension + L'\0';
    return files;
}

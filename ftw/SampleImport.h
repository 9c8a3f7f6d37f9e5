#pragma once

// The sample configurations that the import page lists, and what is asked and copied when it is left.

#include <string>
#include <string_view>
#include <vector>

// The one entry of a list without samples. It can be selected like others and then names no file.
inline constexpr std::wstring_view kNoSamples = L"(No sample files were found)";

// The entries of the list for the file names found, in their order: names without extension.
std::vector<std::wstring> SampleEntries(const std::vector<std::wstring>& fileNames);

// `count` is at least 1.
std::wstring ImportQuestion(int count);

// Tells of the selected samples (at least one) that are left out because a path is too long for the shell. Of
// many the first ones are named.
std::wstring LeftOutMessage(const std::vector<std::wstring>& entries);

// The files of the entries below `folder` (ends in a backslash), each path followed by a NUL.
std::wstring SampleFileList(std::wstring_view folder, const std::vector<std::wstring>& entries);

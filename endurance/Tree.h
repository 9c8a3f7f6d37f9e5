#pragma once

#include <set>
#include <string>
#include <vector>

// Every file (with its size) and folder below `folder`, which ends in a backslash.
std::set<std::wstring> Tree(const std::wstring& folder);

// What is only in `after`, or has another size there; what has gone carries a "-".
std::vector<std::wstring> Changes(const std::set<std::wstring>& before, const std::set<std::wstring>& after);

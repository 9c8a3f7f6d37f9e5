#pragma once

// What the checks set up around a suite, and how they see what has become of it.

#include <initializer_list>
#include <set>
#include <string>
#include <vector>

class DemoSuite;

// The value of an environment variable, "" when it is not set.
std::wstring FromEnvironment(const wchar_t* name);
bool Exists(const std::wstring& path);

// Puts the program that the environment variable names in the wizard's place.
void ReplaceProgram(const DemoSuite& suite, const wchar_t* variable);
// Sample configurations of these names.
void AddSamples(const DemoSuite& suite, std::initializer_list<const wchar_t*> names);

// Every file (with its size) and folder below `folder`, which ends in a backslash.
std::set<std::wstring> Tree(const std::wstring& folder);

// What is only in `after`, or has another size there; what has gone carries a "-".
std::vector<std::wstring> Changes(const std::set<std::wstring>& before, const std::set<std::wstring>& after);

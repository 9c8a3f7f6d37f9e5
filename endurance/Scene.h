#pragma once

// What the checks set up around a suite, and how they see what has become of it.

#include <initializer_list>
#include <string>

class DemoSuite;

// The value of an environment variable, "" when it is not set.
std::wstring FromEnvironment(const wchar_t* name);

// Sample configurations of these names.
void AddSamples(const DemoSuite& suite, std::initializer_list<const wchar_t*> names);

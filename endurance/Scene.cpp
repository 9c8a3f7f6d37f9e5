#include "endurance/Scene.h"

#include "tests/support/DemoSuite.h"

#include <windows.h>

std::wstring FromEnvironment(const wchar_t* name) {
    std::wstring value(1024, L'\0');
    value.resize(GetEnvironmentVariableW(name, value.data(), 1024));
    return value;
}

void AddSamples(const DemoSuite& suite, std::initializer_list<const wchar_t*> names) {
    CreateDirectoryW((suite.Folder() + L"Samples").c_str(), nullptr);
    for (const wchar_t* name : names)
        WriteFileBytes(suite.Folder() + L"Samples\\" + name + L".dcp", "sample");
}

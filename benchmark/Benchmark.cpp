// Prints the figures of speed, size and cost, each beside a peer measured in the same run.
//   benchmark.exe SUITE SCRATCH RUNS [FIGURE...]   folders as Windows sees them, without a last backslash

#include "app/StartUp.h"
#include "app/modLocations.h"
#include "benchmark/Figures.h"
#include "benchmark/Table.h"
#include "win/Handles.h"

#include <windows.h>

#include <cstdio>
#include <exception>
#include <string_view>

namespace {

struct Figure {
    const wchar_t* name;
    void (*measure)(const Bench&);
};

// clang-format off
constexpr Figure kFigures[] = {
    {L"start",  MeasureStart},
    {L"pages",  MeasurePageChange},
    {L"files",  MeasureFiles},
    {L"search", MeasureSearch},
    {L"size",   MeasureSize},
    {L"idle",   MeasureIdle},
};
// clang-format on

void WriteSettings() {
    const win::UniqueFile file(
        CreateFileW(locations.IniFile.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    constexpr char kText[] = "[General]\r\nSecurity=0\r\n";
    DWORD written = 0;
    WriteFile(file.Get(), kText, sizeof kText - 1, &written, nullptr);
}

bool IsAskedFor(const wchar_t* name, int count, wchar_t** words) {
    for (int i = 0; i < count; ++i)
        if (std::wstring_view(words[i]) == name) return true;
    return count == 0;
}

int Run(int count, wchar_t** words) {
    if (count == 2 && std::wstring_view(words[1]) == L"--windows") return OpenManyWindows();
    if (count < 4) return 2;
    InitLocations();
    const Bench bench{locations.AppPath, std::wstring(words[1]) + L"\\", std::wstring(words[2]) + L"\\",
                      _wtoi(words[3])};
    ProgramLocations scratch = locations;
    scratch.SettingsPath = bench.scratch;
    scratch.IniFile = bench.scratch + suite::kIniFile;
    UseLocations(scratch);
    WriteSettings();
    PrintHead();
    for (const Figure& figure : kFigures)
        if (IsAskedFor(figure.name, count - 4, words + 4)) figure.measure(bench);
    return 0;
}

} // namespace

int wmain(int count, wchar_t** words) {
    try {
        return Run(count, words);
    } catch (const std::exception& error) {
        std::printf("%s\n", error.what());
        return 1;
    }
}

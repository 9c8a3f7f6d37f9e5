#pragma once

#include <string>
#include <vector>

// What a stand-in wrote down when it was started.
struct Start {
    std::wstring commandLine; // whole, with the program's own quoted path in front
    std::wstring folder;      // the current folder
    int show = 0;             // SW_... asked for by the starter
};

// All starts of the stand-in at this path, the oldest first; none when it was never started.
std::vector<Start> StartsOf(const std::wstring& program);

#include "tools/driver/LinuxProcess.h"

#include "win/Handles.h"

#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string_view>
#include <vector>

namespace {

const std::wstring kProc = L"Z:\\proc\\";

struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

// Such files have no length: they are read until they end.
std::string ReadAll(const std::wstring& path) {
    const std::unique_ptr<std::FILE, Closer> file(_wfopen(path.c_str(), L"rb"));
    std::string text;
    char block[4096];
    while (file) {
        const std::size_t count = std::fread(block, 1, sizeof block, file.get());
        if (count == 0) break;
        text.append(block, count);
    }
    return text;
}

std::vector<std::wstring> NumbersIn(const std::wstring& folder) {
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW found{};
    const win::UniqueFind search(FindFirstFileW((folder + L"*").c_str(), &found));
    for (bool more = static_cast<bool>(search); more; more = FindNextFileW(search.Get(), &found))
        if (_wtoi(found.cFileName) > 0) names.emplace_back(found.cFileName);
    return names;
}

// The sum of the numbers behind each occurrence of `label` at the start of a line.
long SumOf(const std::string& text, std::string_view label) {
    long sum = 0;
    for (std::size_t at = text.find(label); at != std::string::npos; at = text.find(label, at + 1))
        if (at == 0 || text[at - 1] == '\n')
            sum += std::strtol(text.c_str() + at + label.size(), nullptr, 10);
    return sum;
}

// Fields 14 and 15 of "stat": user and system time. The name before them may hold blanks.
long TicksOf(const std::string& stat) {
    std::size_t at = stat.rfind(')');
    for (int field = 3; field <= 14 && at != std::string::npos; ++field)
        at = stat.find(' ', at + 1);
    if (at == std::string::npos) return 0;
    char* end = nullptr;
    const long user = std::strtol(stat.c_str() + at, &end, 10);
    return user + std::strtol(end, nullptr, 10);
}

} // namespace

int LinuxProcess(const std::string& mark) {
    for (const std::wstring& number : NumbersIn(kProc))
        if (ReadAll(kProc + number + L"\\cmdline").find(mark) != std::string::npos)
            return _wtoi(number.c_str());
    throw std::runtime_error("no process: " + mark);
}

long PrivateMemory(int process) {
    const std::string map = ReadAll(kProc + std::to_wstring(process) + L"\\smaps");
    return SumOf(map, "Private_Clean:") + SumOf(map, "Private_Dirty:");
}

Effort EffortOf(int process) {
    const std::wstring folder = kProc + std::to_wstring(process) + L"\\";
    Effort effort;
    effort.ticks = TicksOf(ReadAll(folder + L"stat"));
    for (const std::wstring& thread : NumbersIn(folder + L"task\\")) {
        std::wstring path = folder + L"task\\";
        path += thread;
        const std::string status = ReadAll(path + L"\\status");
        effort.switches +=
            SumOf(status, "voluntary_ctxt_switches:") + SumOf(status, "nonvoluntary_ctxt_switches:");
    }
    return effort;
}

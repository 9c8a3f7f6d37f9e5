#include "benchmark/Figures.h"
#include "benchmark/Programs.h"
#include "benchmark/Table.h"
#include "tools/driver/Clock.h"
#include "tools/driver/LinuxProcess.h"

#include <vector>

namespace {

constexpr wchar_t kNext[] = L"&Next >";

struct Runs {
    Program program;
    bool hasMemory = true;
    double wanted = 0; // of a peer: the greatest ratio of our start and our memory to its; 0: only shown
    std::vector<double> start = {}, memory = {};
};

Program Wizard(const Bench& bench, const char* name, const wchar_t* arguments) {
    return {name, L"\"" + bench.suite + L"VWizard.exe\" " + arguments, L"VWizardForm", L"Button", kNext};
}

Program FirstTimeSetup(const Bench& bench) { return Wizard(bench, "First-Time Setup", L""); }
Program NewDevice(const Bench& bench) { return Wizard(bench, "New Device", L"/NDW"); }

std::vector<Runs> Peers(const Bench& bench) {
    const std::wstring bare = L"\"" + bench.programs + L"bare_";
    return {
        {{"bare window", bare + L"window.exe\"", L"BareWindow", nullptr, nullptr}, true},
        {{"bare controls", bare + L"controls.exe\"", L"BareWindow", L"Button", kNext}, true, 1.15},
        {{"Wine's notepad", L"notepad.exe", L"Notepad", L"Edit", nullptr}, false},
        {{"Wine's winecfg", L"winecfg.exe", L"#32770", L"Button", L"OK"}, false},
    };
}

// A mark in the command line by which the process is found; programs do not mind words unknown to them.
std::string Mark(Program& program) {
    static int count = 0;
    std::string mark = "/mark" + std::to_string(GetCurrentProcessId()) + "." + std::to_string(++count);
    program.commandLine += L" " + std::wstring(mark.begin(), mark.end());
    return mark;
}

// Memory is compared with that of our own peers only: Wine's programs would open the mark as a file.
void RunOnce(Runs& runs) {
    Program program = runs.program;
    const std::string mark = runs.hasMemory ? Mark(program) : std::string();
    const Running running(program);
    runs.start.push_back(running.StartTime());
    if (runs.hasMemory) runs.memory.push_back(static_cast<double>(PrivateMemory(LinuxProcess(mark))));
}

void PrintStart(const Runs& ours, const Runs& theirs, double wanted) {
    PrintRatio(std::string("start, ") + ours.program.name, theirs.program.name, Median(ours.start),
               Median(theirs.start), "ms", wanted);
}

void PrintMemory(const Runs& ours, const Runs& theirs, double wanted) {
    PrintRatio(std::string("private memory, ") + ours.program.name, theirs.program.name, Median(ours.memory),
               Median(theirs.memory), "kB", wanted);
}

// A program that waits does nothing at all: a timer left running would show as wake-ups.
void MeasureIdleOf(Program program) {
    constexpr DWORD kSettle_ms = 2000;
    constexpr DWORD kIdle_ms = 10000;
    const std::string mark = Mark(program);
    const Running running(program);
    const int process = LinuxProcess(mark);
    Sleep(kSettle_ms);
    const Effort before = EffortOf(process);
    Sleep(kIdle_ms);
    const Effort after = EffortOf(process);
    const std::string figure = std::string("idle 10 s, ") + program.name;
    PrintValue(figure + ", wake-ups", static_cast<double>(after.switches - before.switches), "", 0);
    PrintValue(figure + ", CPU", static_cast<double>(after.ticks - before.ticks) * 10, "ms", 0);
}

} // namespace

// All programs in turn, run after run, so that each of them meets the same state of the machine.
void MeasureStart(const Bench& bench) {
    std::vector<Runs> ours = {{FirstTimeSetup(bench)}, {NewDevice(bench)}};
    std::vector<Runs> theirs = Peers(bench);
    for (int run = -1; run < bench.runs; ++run) { // the first fills the caches
        for (std::vector<Runs>* group : {&theirs, &ours})
            for (Runs& runs : *group)
                RunOnce(runs);
        if (run >= 0) continue;
        for (std::vector<Runs>* group : {&theirs, &ours})
            for (Runs& runs : *group)
                runs.start.clear(), runs.memory.clear();
    }
    for (const Runs& wizard : ours)
        for (const Runs& peer : theirs)
            PrintStart(wizard, peer, peer.wanted);
    // What no program with these controls gets below.
    const Runs &window = theirs[0], &controls = theirs[1];
    for (const Runs& peer : theirs)
        if (&peer != &controls) PrintStart(controls, peer, 0);
    PrintMemory(controls, window, 0);
    for (const Runs& wizard : ours)
        for (const Runs* peer : {&window, &controls})
            PrintMemory(wizard, *peer, peer->wanted);
}

void MeasureIdle(const Bench& bench) {
    MeasureIdleOf(FirstTimeSetup(bench));
    MeasureIdleOf(NewDevice(bench));
}

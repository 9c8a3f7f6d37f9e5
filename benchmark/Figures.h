#pragma once

// The figures, each group in a file of its own. Every one prints its rows.

#include <string>

struct Bench {
    std::wstring programs; // folder of the built programs, ends in a backslash
    std::wstring suite;    // the laid out suite with the wizard to be started
    std::wstring scratch;  // ours: files are made and deleted there
    int runs;              // of each, interleaved with its peer's
};

void MeasureStart(const Bench& bench);      // start, private memory
void MeasurePageChange(const Bench& bench); // beside a property sheet
void MeasureFiles(const Bench& bench);      // configuration file, samples
void MeasureSearch(const Bench& bench);     // for another copy
void MeasureIdle(const Bench& bench);       // timers, wake-ups, processor time
void MeasureSize(const Bench& bench);       // of the program's file
int OpenManyWindows();                      // the other half of MeasureSearch, a process of its own

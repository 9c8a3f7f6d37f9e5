#pragma once

// What Linux knows of a process that runs under Wine. Wine's own counters of memory are always 0.

#include <string>

// Linux' number of the process whose command line holds `mark`; std::runtime_error when there is none.
int LinuxProcess(const std::string& mark);

long PrivateMemory(int process); // kB that no other process shares

struct Effort {
    long switches = 0; // context switches of all threads, asked for or not
    long ticks = 0;    // processor time, 10 ms each
};
Effort EffortOf(int process);

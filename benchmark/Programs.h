#pragma once

// Starting a program as a user would and finding out when it can be used.

#include "tools/driver/RunningProgram.h"

#include <string>

struct Program {
    const char* name;
    std::wstring commandLine;
    const wchar_t* windowClass;
    const wchar_t* readyClass; // a control that must be visible and enabled; null: none
    const wchar_t* readyText;  // its text; null: any
};

class Running {
  public:
    // Starts the program; returns when its window and its control are there, it answers a message and
    // nothing is left to be painted. Throws std::runtime_error when that does not come.
    explicit Running(const Program& program);

    double StartTime() const { return startTime_; } // milliseconds
    HWND Window() const { return window_; }

  private:
    double startTime_; // before the process is made: when it was begun
    RunningProgram process_;
    HWND window_ = nullptr;
};

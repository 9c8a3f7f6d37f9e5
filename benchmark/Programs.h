#pragma once

// Starting a program as a user would and finding out when it can be used.

#include <windows.h>

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
    // nothing is left to be painted. Throws std::runtime_error after 20 s.
    explicit Running(const Program& program);
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;
    ~Running(); // ends the process, whatever it does

    double StartTime() const { return startTime_; } // milliseconds
    HWND Window() const { return window_; }

  private:
    HWND FindWindow(const Program& program) const;

    PROCESS_INFORMATION process_{};
    HWND window_ = nullptr;
    double startTime_ = 0;
};

#pragma once
#include <windows.h>

#include <functional>
#include <string>

// A program that was started, and its windows as another process sees them. Nothing here pauses blindly: what
// is not there yet is waited for, and std::runtime_error tells what the program showed instead when it does
// not come. A program that still runs at the end of this object is ended.
class RunningProgram {
  public:
    explicit RunningProgram(std::wstring commandLine);
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;
    ~RunningProgram();

    DWORD ProcessId() const { return process_.dwProcessId; }
    bool IsRunning() const { return WaitForSingleObject(process_.hProcess, 0) == WAIT_TIMEOUT; }
    int WaitForExit() const; // the exit code

    // Waits until the condition holds; `wanted` names it when it never does.
    void Until(const std::function<bool()>& condition, const std::wstring& wanted) const;

    // A visible window with a child of that id, unless it is 0; "" fits every class and every title. Or null.
    HWND FindWindowOf(const std::wstring& className, const std::wstring& title, int child = 0) const;

    // Loads a library by its bare name within the program, as the system does on behalf of its own parts.
    void Load(const std::wstring& library) const;

    // Every visible window with its controls, one a line; and whether the program has ended.
    std::wstring Describe() const;

  private:
    PROCESS_INFORMATION process_{};
};

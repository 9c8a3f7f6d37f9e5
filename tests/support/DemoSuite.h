#pragma once
#include "tests/support/Scratch.h"
#include "tools/standin/StartLog.h"

// A scratch suite on disk for one test: the wizard under its own name, a stand-in for each companion
// program, placeholder documents, a settings folder. The registry of the Wine prefix points at it; all of it
// is removed at the end. Needs the environment variables VWIZARD_EXE and STANDIN_EXE.
// Every failure throws std::runtime_error that says what was wanted.
class DemoSuite {
  public:
    DemoSuite();

    // Folders, each with a backslash at its end.
    const std::wstring& Folder() const { return folder_; }
    std::wstring Settings() const { return Folder() + L"Settings\\"; }

    // Copies the product's icons or samples into the suite; without them there is nothing to choose from.
    void AddIcons() const { CopyAll(L"Icons\\"); }
    void AddSamples() const { CopyAll(L"Samples\\"); }
    // A file that is built beside the wizard, under a name of its own.
    void Add(const std::wstring& file, const std::wstring& name) const;

    // Waits until `program` (a file name such as L"VConfig.exe") has been started `count` times.
    std::vector<Start> WaitForStarts(const std::wstring& program, std::size_t count = 1) const;
    // How often any stand-in was started; waits until none that was started still runs.
    std::size_t StartCount() const;

    // A program of this suite as it stands in a command line: quoted, with its folder.
    std::wstring Quoted(std::wstring_view file) const { return L'"' + Folder() + std::wstring(file) + L'"'; }
    // A command line that starts the wizard of this suite, or another of its programs.
    std::wstring CommandLine(const std::wstring& arguments = L"",
                             std::wstring_view program = L"VWizard.exe") const {
        return Quoted(program) + L" " + arguments;
    }
    // A key of the suite's settings file, "" when it is absent.
    std::wstring Setting(const wchar_t* key) const;

  private:
    void CopyAll(const std::wstring& part) const; // beside the wizard under test

    const ScratchFolder folder_;
};

#pragma once
#include <string>
#include <string_view>
#include <vector>

// What a stand-in wrote down when it was started.
struct Start {
    std::wstring commandLine; // whole, with the program's own quoted path in front
    std::wstring folder;      // the current folder
    int show = 0;             // SW_... asked for by the starter
};

// A scratch suite on disk for one test: the wizard under its own name, a stand-in for each companion
// program, placeholder documents, a settings folder. The registry of the Wine prefix points at it; all of it
// is removed at the end. Needs the environment variables VWIZARD_EXE and STANDIN_EXE.
// Every failure throws std::runtime_error that says what was wanted.
class DemoSuite {
  public:
    DemoSuite();
    ~DemoSuite();
    DemoSuite(const DemoSuite&) = delete;
    DemoSuite& operator=(const DemoSuite&) = delete;

    // Folders, each with a backslash at its end.
    const std::wstring& Folder() const { return folder_; }
    std::wstring Settings() const { return folder_ + L"Settings\\"; }

    // Copies the product's icons into the suite; without them the icon picker has nothing to show.
    void AddIcons() const;
    // Copies the product's samples into the suite.
    void AddSamples() const;

    // What `program` (a file name such as L"VConfig.exe") was started with so far, the oldest first.
    std::vector<Start> Starts(const wchar_t* program) const;
    // Waits until `program` has been started `count` times.
    std::vector<Start> WaitForStarts(const wchar_t* program, std::size_t count = 1) const;
    // How often any stand-in was started.
    std::size_t StartCount() const;

    // A program of this suite as it stands in a command line: quoted, with its folder.
    std::wstring Quoted(std::wstring_view file) const { return L'"' + folder_ + std::wstring(file) + L'"'; }

    // A key of the suite's settings file, "" when it is absent.
    std::wstring Setting(const wchar_t* key, const wchar_t* section = L"General") const;
    void SetSetting(const wchar_t* key, const wchar_t* value, const wchar_t* section = L"General") const;

  private:
    std::wstring folder_;
};

// The names in `folder` (backslash at its end) that match, sorted; folders included.
std::vector<std::wstring> FileNames(const std::wstring& folder, const wchar_t* pattern = L"*");

// The bytes of a file; throws when it cannot be read.
std::string FileBytes(const std::wstring& path);
void WriteFileBytes(const std::wstring& path, std::string_view bytes);

std::string Utf8(std::wstring_view text);

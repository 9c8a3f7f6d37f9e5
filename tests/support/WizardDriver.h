#pragma once
#include <windows.h>

#include <functional>
#include <string>
#include <vector>

class DemoSuite;

// Runs the real wizard of a suite as a person would: by its visible controls and its message boxes. Nothing
// here sleeps blindly: each call waits until what it wants is there, and throws std::runtime_error, with
// what the window shows, when it does not come. Controls are named by their caption ("&" included), inputs
// by the prompt in front of them. A wizard still running at the end is ended.
class WizardDriver {
  public:
    // Starts the wizard and waits for its window. With `Wait::No` it may end without one (a second copy).
    enum class Wait { Yes, No };
    explicit WizardDriver(const DemoSuite& suite, const std::wstring& arguments = L"", Wait wait = Wait::Yes,
                          const std::wstring& program = L"VWizard.exe");
    void WaitForOpening(); // for a wizard started with `Wait::No` that opens its window after all
    ~WizardDriver();
    WizardDriver(const WizardDriver&) = delete;
    WizardDriver& operator=(const WizardDriver&) = delete;

    HWND Window() const { return window_; }
    // What follows is about another window of the program, waited for.
    void GoTo(const std::wstring& title);
    DWORD ProcessId() const { return process_.dwProcessId; }

    // Pages, known by their headings.
    std::wstring Heading() const;
    void WaitForPage(const std::wstring& heading) const;
    std::wstring PageText() const; // of the rich edit
    // Presses Next (or Create) and waits for the page with that heading.
    void Next(const std::wstring& heading) const;
    void Press(const std::wstring& caption) const; // returns at once; a box that opens can be answered

    // The visible control of that class: the one with just this text, and the first one behind the label
    // `prompt` ("" for the first on the page; waits for it). Null: none.
    HWND Find(const std::wstring& className, const std::wstring& text) const;
    HWND Input(const std::wstring& className, const std::wstring& prompt) const;
    HWND Button(const std::wstring& caption) const { return Find(L"Button", caption); }
    HWND Focus() const;

    // Waits for a message box, presses the button (IDOK, IDYES ...) and waits until it is gone: its title,
    // line end, text.
    std::wstring AnswerBox(int button) const;

    void Close() const; // as the close box does; answers the question with Yes and waits for the end
    int WaitForExit() const;
    bool IsRunning() const { return WaitForSingleObject(process_.hProcess, 0) == WAIT_TIMEOUT; }

    // Waits until the condition holds; `wanted` names it when it never does.
    void Until(const std::function<bool()>& condition, const std::wstring& wanted) const;

  private:
    HWND FindWindowOf(const std::wstring& className, const std::wstring& title, int child) const;
    std::wstring Describe() const;

    PROCESS_INFORMATION process_{};
    HWND window_ = nullptr;
};

// Tells the form what a control would tell when a person changed it.
void Notify(HWND control, WORD code);

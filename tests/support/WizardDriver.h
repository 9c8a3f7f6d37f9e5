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
    explicit WizardDriver(const DemoSuite& suite, const wchar_t* arguments = L"", Wait wait = Wait::Yes);
    void WaitForOpening(); // for a wizard started with `Wait::No` that opens its window after all
    ~WizardDriver();
    WizardDriver(const WizardDriver&) = delete;
    WizardDriver& operator=(const WizardDriver&) = delete;

    HWND Window() const { return window_; }
    DWORD ProcessId() const { return process_.dwProcessId; }

    // Pages. The heading of the page shown is one of its visible texts.
    void WaitForPage(const wchar_t* heading) const;
    bool ShowsText(const wchar_t* text) const; // a label with just this text is visible
    std::wstring Step() const;                 // "Step 3/14", "" when hidden
    std::wstring PageText() const;             // of the rich edit

    // Buttons, options, check boxes and links.
    bool Has(const wchar_t* caption) const; // visible
    bool IsEnabled(const wchar_t* caption) const;
    bool IsChecked(const wchar_t* caption) const;
    void Click(const wchar_t* caption) const; // returns at once; a box that opens can be answered
    void Choose(const wchar_t* caption) const;
    void Check(const wchar_t* caption, bool on) const;
    // Presses Next (or Create) and waits for the page with that heading.
    void Next(const wchar_t* heading) const;
    void Back(const wchar_t* heading) const;

    // Inputs behind a prompt.
    void Type(const wchar_t* prompt, const std::wstring& text) const; // replaces what is there, key by key
    std::wstring Typed(const wchar_t* prompt) const;
    void Select(const wchar_t* prompt, int index) const; // in a drop-down list
    int Selected(const wchar_t* prompt) const;
    std::wstring SelectedText(const wchar_t* prompt) const;
    void SelectInList(const wchar_t* prompt, int index) const; // single selection
    void MarkInList(int index, bool on) const;                 // multiple selection, the page's first list
    std::vector<std::wstring> ListItems() const;

    // The first visible control of that class behind the label `prompt` (L"" for the first on the page).
    HWND Input(const wchar_t* className, const wchar_t* prompt) const;
    bool HasFocus(HWND control) const;

    // Message boxes: waits for one, presses the button (IDOK, IDYES, IDNO ...) and waits until it is gone.
    struct Box {
        std::wstring title, text;
    };
    Box AnswerBox(int button) const;
    // Another window of the wizard (the icon picker ...), waited for.
    HWND WaitForWindow(const wchar_t* title) const;
    static void ClickIn(HWND window, const wchar_t* caption);

    // Ending.
    void AskToClose() const; // as the close box does; returns at once
    int WaitForExit() const;
    bool IsRunning() const { return WaitForSingleObject(process_.hProcess, 0) == WAIT_TIMEOUT; }

    // Waits until the condition holds; `wanted` names it when it never does.
    void Until(const std::function<bool()>& condition, const std::wstring& wanted) const;

  private:
    std::wstring Describe() const;

    PROCESS_INFORMATION process_{};
    HWND window_ = nullptr;
};

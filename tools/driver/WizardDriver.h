#pragma once
#include "tools/driver/RunningProgram.h"

// Runs the real wizard as a person would: by its visible controls and its message boxes. Each call waits
// until what it wants is there. Controls are named by their caption ("&" included), inputs by the prompt in
// front of them.
class WizardDriver : public RunningProgram {
  public:
    // Starts the wizard and waits for its window. With `Wait::No` it may end without one (a second copy).
    enum class Wait { Yes, No };
    explicit WizardDriver(const std::wstring& commandLine, Wait wait = Wait::Yes);
    void WaitForOpening(); // for a wizard started with `Wait::No` that opens its window after all

    HWND Window() const { return window_; }
    HWND FormWindow() const { return FindWindowOf(L"VWizardForm", L""); } // whatever GoTo has chosen
    // What follows is about another window of the program, waited for.
    void GoTo(const std::wstring& title);

    // Pages, known by their headings.
    std::wstring Heading() const;
    void WaitForPage(const std::wstring& heading) const;
    std::wstring PageText() const; // of the rich edit
    // Presses Next (or Create) and waits for the page with that heading.
    void Next(const std::wstring& heading) const;
    void Press(const std::wstring& caption) const; // returns at once; a box that opens can be answered
    // Presses the button once and waits for the page, or again and again until it is there.
    void Move(const std::wstring& button, const std::wstring& heading) const;
    void MoveTo(const std::wstring& button, const std::wstring& heading) const;
    // Options and boxes, by their captions.
    bool IsChecked(const std::wstring& caption) const;
    void Check(const std::wstring& caption, bool on) const;

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

  private:
    HWND window_ = nullptr;
};

// As a person does it, the form being told.
void TypeOver(HWND box, const std::wstring& text); // what it holds is gone
void Choose(HWND list, int item);                  // of a list or combo box, from 0

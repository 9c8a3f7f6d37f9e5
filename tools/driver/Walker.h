#pragma once

// Walks a running wizard from whatever it shows to its end, as a patient person would who always presses
// Next and answers every question. It knows each message that the program has a reason to show; any other
// one, a control that does not answer, a page that cannot be left and a bad exit code are its trouble.

#include "tools/driver/Windows.h"
#include "tools/driver/WizardDriver.h"

#include <functional>
#include <string>
#include <vector>

struct Journey {
    std::vector<std::wstring> pages;    // headings in the order in which they were shown
    std::vector<std::wstring> messages; // texts of the message boxes
    std::wstring trouble;               // "" when nothing was wrong
    bool Passed(std::wstring_view heading) const;
    bool Told(std::wstring_view beginning) const; // a message began like this
    std::wstring Story() const;                   // all of it, for a failure
};

class Walker {
  public:
    explicit Walker(const WizardDriver& wizard) : wizard_(wizard) {}

    std::wstring name = L"Walked";                           // of the configuration to create
    std::wstring stopAt;                                     // heading of a page not to be left
    std::function<void(const std::wstring& heading)> onPage; // before the page is left

    // Ends when the wizard has ended, when `stopAt` is shown or at the first trouble.
    Journey Walk();

    void TypeName() const; // on the name page
    // Presses Create on the name page; what was told then, "" when the configuration was made.
    std::wstring CreateConfiguration();
    // Answers windows until there is none; what they told.
    std::wstring Answer(int wanted = IDYES);
    // Closes the wizard where it stands, "Yes" to the question.
    void Close();

    // One step of the above, for those who drive by hand: a click that is through when this returns, except
    // for a window that it opened.
    void Press(HWND button) const;
    std::wstring Heading() const;
    HWND Main() const { return main_; }
    // The window in front of the wizard's own (a message box, a dialog); null when there is none.
    HWND Modal() const;
    // Presses the wanted button, or the one that goes on; the text of the box ("" for other windows).
    std::wstring AnswerModal(HWND modal, int wanted = IDYES) const;
    // Waits for the main window and for what stands in front of it to be ready: false when the program ended.
    bool WaitUntilReady();

    HWND Next() const; // the button that goes on; null when there is none
    HWND Button(const wchar_t* caption) const;

  private:
    HWND Visible(int id) const;
    bool IsReady();
    void LeavePage(Journey& journey);

    const WizardDriver& wizard_;
    HWND main_ = nullptr;
    std::wstring lastPage_;
    int refusals_ = 0; // message boxes since that page was reached
};

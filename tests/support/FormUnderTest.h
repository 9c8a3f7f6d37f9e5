#pragma once
#include "wizard/frmWizard.h"

#include <vector>

// The wizard's form of one mode inside the test program, hidden, any page shown by its number. Touches no
// settings: start-up is left out.
class FormUnderTest {
  public:
    explicit FormUnderTest(std::int16_t mode);

    void Show(std::int16_t page) {
        form.PageNo = page;
        form.ShowPage();
    }
    // The page numbers of the mode, in order.
    std::vector<std::int16_t> Pages() const;
    // The controls that the page shows, in tab order.
    std::vector<HWND> VisibleControls() const;

    const PageBook& book;
    frmWizard form;
};

std::wstring ClassOf(HWND window);
bool IsTabStop(HWND control); // may take the focus by Tab

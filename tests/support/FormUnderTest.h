#pragma once
#include "tools/driver/Windows.h"
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
    // The controls that the page shows, in tab order.
    std::vector<HWND> VisibleControls() const;

    const PageBook& book;
    frmWizard form;
};

// Calls `act` with each element of each group of the pool; the combo box and the frame are in no group.
template <class Act> void ForEachInput(InputPool& pool, const Act& act) {
    const auto each = [&act](auto& group) {
        for (auto& element : group)
            act(element);
    };
    each(pool.optUserInput);
    each(pool.chkUserInput);
    each(pool.txtUserInput);
    each(pool.lstUserInput);
    each(pool.lblUserPrompt);
    each(pool.lblHyperlink);
}

// What a screen reader is told.
struct Spoken {
    std::wstring name;
    LONG role = 0;
};
Spoken SpokenOf(HWND control);

bool IsTabStop(HWND control); // may take the focus by Tab

// The text of a control, in braces what changes in its look: "{rb}" red and bold, "{* 150 150}" a bullet
// and the indents in twips, "{}" as usual.
std::wstring Described(win::RichText& control, const wchar_t* lineEnd = L"/");

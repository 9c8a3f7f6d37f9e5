#include "ndw/AnswerText.h"

#include "app/CodePage.h"
#include "wizard/frmWizard.h"

void RefuseText(frmWizard& form, win::TextBox& box, const std::wstring& message) {
    form.StayOnPage = true;
    win::ShowMessageBox(form.Hwnd(), message, MB_OK | MB_ICONEXCLAMATION);
    box.Focus();
    box.SelectAll();
}

void StoreFileText(frmWizard& form, win::TextBox& box, Move move, std::wstring& answer) {
    // Whoever goes back is not held up: what cannot be stored is forgotten, and the answer stays as it was.
    const std::wstring typed = box.Text();
    const auto foreign = FirstNotOneByte(typed);
    if (!foreign) {
        answer = typed;
    } else if (move == Move::Next && !form.StayOnPage) {
        RefuseText(form, box,
                   L"The character \"" + *foreign +
                       L"\" cannot be stored in a configuration file.\r\n\r\n"
                       L"Try a different text.");
    }
}

#include "benchmark/SheetWizard.h"

#include "benchmark/Sheet.h"

#include <commctrl.h>
#include <prsht.h>

#include <vector>

namespace {

// Posted by the first page to itself: the sheet is not complete while a page is being activated.
constexpr UINT kTakeTour = WM_APP + 1;

// A page procedure gets no data of the sheet's owner, and there is one sheet at a time.
const std::function<void(HWND)>* tourToTake = nullptr;
bool tourTaken = false;

DWORD ButtonsOf(int page) {
    if (page == 0) return PSWIZB_NEXT;
    return page == kSheetPages - 1 ? PSWIZB_BACK | PSWIZB_FINISH : PSWIZB_BACK | PSWIZB_NEXT;
}

INT_PTR CALLBACK PageProcedure(HWND page, UINT message, WPARAM, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG: {
        const auto& data = *reinterpret_cast<const PROPSHEETPAGEW*>(lParam);
        SetWindowLongPtrW(page, DWLP_USER, data.lParam);
        CheckRadioButton(page, 102, 104, 102);
        SetDlgItemTextW(page, 101, L"MILL");
        return TRUE;
    }
    case WM_NOTIFY: {
        if (reinterpret_cast<const NMHDR*>(lParam)->code != PSN_SETACTIVE) return FALSE;
        const auto number = static_cast<int>(GetWindowLongPtrW(page, DWLP_USER));
        PropSheet_SetWizButtons(GetParent(page), ButtonsOf(number));
        if (number == 0 && !tourTaken) PostMessageW(page, kTakeTour, 0, 0);
        return TRUE;
    }
    case kTakeTour:
        if (tourTaken) return TRUE;
        tourTaken = true;
        (*tourToTake)(GetParent(page));
        PropSheet_PressButton(GetParent(page), PSBTN_CANCEL);
        return TRUE;
    default:
        return FALSE;
    }
}

} // namespace

void RunSheetWizard(const std::function<void(HWND sheet)>& tour) {
    tourToTake = &tour;
    tourTaken = false;
    std::vector<PROPSHEETPAGEW> pages(kSheetPages);
    for (int i = 0; i < kSheetPages; ++i) {
        PROPSHEETPAGEW& page = pages[static_cast<std::size_t>(i)];
        page.dwSize = sizeof page;
        page.hInstance = GetModuleHandleW(nullptr);
        page.pszTemplate = MAKEINTRESOURCEW(IDD_SHEET_PAGE);
        page.pfnDlgProc = PageProcedure;
        page.lParam = i;
    }
    PROPSHEETHEADERW header{};
    header.dwSize = sizeof header;
    header.dwFlags = PSH_PROPSHEETPAGE | PSH_WIZARD;
    header.hInstance = GetModuleHandleW(nullptr);
    header.pszCaption = L"Setup";
    header.nPages = kSheetPages;
    header.ppsp = pages.data();
    PropertySheetW(&header);
}

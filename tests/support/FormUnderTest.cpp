#include "tests/support/FormUnderTest.h"

#include "app/StartUp.h"
#include "ftw/FtwPages.h"
#include "ndw/NdwPages.h"

namespace {

const PageBook& BookOf(std::int16_t mode) {
    startUp.WizardMode = mode;
    return mode == kNewDevice ? NdwBook() : FtwBook();
}

} // namespace

FormUnderTest::FormUnderTest(std::int16_t mode) : book(BookOf(mode)), form(book, true) {
    book.load(form);
    form.picHeader.Visible(true);
    form.txtInfo.Visible(true);
    form.cmdNext.Visible(true);
    form.cmdCancel.Visible(true);
}

std::vector<std::int16_t> FormUnderTest::Pages() const {
    std::vector<std::int16_t> numbers;
    for (const Page& page : book.pages)
        numbers.push_back(page.number);
    return numbers;
}

std::vector<HWND> FormUnderTest::VisibleControls() const {
    std::vector<HWND> controls;
    for (HWND child = GetWindow(form.Hwnd(), GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        if (GetWindowLongW(child, GWL_STYLE) & WS_VISIBLE) controls.push_back(child);
    return controls;
}

std::wstring ClassOf(HWND window) {
    wchar_t name[64] = L"";
    GetClassNameW(window, name, static_cast<int>(std::size(name)));
    return name;
}

bool IsTabStop(HWND control) {
    const LONG style = GetWindowLongW(control, GWL_STYLE);
    return (style & WS_TABSTOP) && !(style & WS_DISABLED);
}

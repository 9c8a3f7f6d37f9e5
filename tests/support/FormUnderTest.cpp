#include "tests/support/FormUnderTest.h"

#include "app/StartUp.h"
#include "ftw/FtwPages.h"
#include "ndw/NdwPages.h"
#include "wizard/Markup.h"

#include <oleacc.h>

namespace {

const PageBook& BookOf(std::int16_t mode) {
    startUp.WizardMode = mode;
    return mode == kNewDevice ? NdwBook() : FtwBook();
}

constexpr LONG kBulletOffset = 180; // twips between a bullet and its text

std::wstring NoteAt(win::RichText& control, LONG position) {
    CHARRANGE range{position, position + 1};
    control.Send(EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&range));
    CHARFORMAT2W look{};
    look.cbSize = sizeof look;
    control.Send(EM_GETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&look));
    PARAFORMAT2 paragraph{};
    paragraph.cbSize = sizeof paragraph;
    control.Send(EM_GETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&paragraph));
    std::wstring note;
    if (!(look.dwEffects & CFE_AUTOCOLOR)) note += look.crTextColor == kInkRed ? L"r" : L"?";
    if (look.dwEffects & CFE_BOLD) note += L"b";
    if (look.dwEffects & CFE_ITALIC) note += L"i";
    if (look.yHeight / 20 != 8) note += std::to_wstring(look.yHeight / 20);
    if (paragraph.wNumbering == PFN_BULLET) note += paragraph.dxOffset == kBulletOffset ? L"*" : L"?";
    if (paragraph.dxStartIndent) note += L" " + std::to_wstring(paragraph.dxStartIndent);
    if (paragraph.dxRightIndent) note += L" " + std::to_wstring(paragraph.dxRightIndent);
    return note;
}

} // namespace

FormUnderTest::FormUnderTest(std::int16_t mode) : book(BookOf(mode)), form(book, {.configAllowed = true}) {
    book.load(form);
    form.picHeader.Visible(true);
    form.txtInfo.Visible(true);
    form.cmdNext.Visible(true);
    form.cmdCancel.Visible(true);
}

std::vector<HWND> FormUnderTest::VisibleControls() const {
    std::vector<HWND> controls;
    for (HWND child = GetWindow(form.Hwnd(), GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        if (GetWindowLongW(child, GWL_STYLE) & WS_VISIBLE) controls.push_back(child);
    return controls;
}

bool IsTabStop(HWND control) {
    const LONG style = GetWindowLongW(control, GWL_STYLE);
    return (style & WS_TABSTOP) && !(style & WS_DISABLED);
}

Spoken SpokenOf(HWND control) {
    Spoken spoken;
    IAccessible* object = nullptr;
    if (FAILED(AccessibleObjectFromWindow(control, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                                          reinterpret_cast<void**>(&object))))
        return spoken;
    VARIANT self{};
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    BSTR name = nullptr;
    if (object->get_accName(self, &name) == S_OK && name) spoken.name = name;
    SysFreeString(name);
    VARIANT role{};
    if (object->get_accRole(self, &role) == S_OK) spoken.role = role.lVal;
    object->Release();
    return spoken;
}

std::wstring Described(win::RichText& control, const wchar_t* lineEnd) {
    const std::wstring text = control.Text();
    std::wstring result, note;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::wstring next = NoteAt(control, static_cast<LONG>(i));
        if (next != note) result += L"{" + next + L"}";
        note = next;
        result += text[i] == L'\r' ? lineEnd : std::wstring(1, text[i]);
    }
    return result;
}

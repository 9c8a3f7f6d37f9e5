#include "win/RichText.h"

#include "tests/support/DemoSuite.h"
#include "tests/support/FormUnderTest.h"
#include "tests/wizard/MemoryRichText.h"
#include "wizard/Markup.h"

#include <gtest/gtest.h>

#include <richedit.h>

namespace {

// The look of the character at `position`, noted as MemoryRichText does.
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
    if (paragraph.wNumbering == PFN_BULLET) note += L"*";
    if (paragraph.dxStartIndent) note += L" " + std::to_wstring(paragraph.dxStartIndent);
    if (paragraph.dxRightIndent) note += L" " + std::to_wstring(paragraph.dxRightIndent);
    return note;
}

std::wstring Described(win::RichText& control) {
    const std::wstring text = control.Text();
    std::wstring result, note;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::wstring next = NoteAt(control, static_cast<LONG>(i));
        if (next != note) result += L"{" + next + L"}";
        note = next;
        result += text[i] == L'\r' ? L'/' : text[i];
    }
    return result;
}

constexpr std::wstring_view kTexts[] = {
    L"",
    L"Click <b>Next</b> to go on.",
    L"<b><r>Not there:</r></b> no",
    L"<r>a<b>b</b>c</r>d",
    L"x:\r\n<u>one</u>\r\n<u>two</u>\r\ny",
    L"<u>a\r\nb</u>\r\nc",
    L"<b>two\r\n\r\nlines</b>.",
    L"a<b></b>b<b>c",
    L"<b>a<b>b</b>c</b>d",
    L"one<br>two<br><br>three",
    L"<b>a<br>b</b> <i>c</i> d",
    L"x\r\n<l>a</l>\r\ny\r\n<u>b</u>\r\nc",
    L"\r\n\r\n<b>a</b>\r\n\r\n",
    L"tab\tand D\u00e4n \u65cb <b>\u20ac</b>",
};

} // namespace

// The mark-up means the same on the system's control as in the model that the other tests use, also when
// the control held a marked-up text before.
TEST(RichText, RendersLikeTheModel) {
    FormUnderTest test(1);
    win::RichText& control = test.form.txtInfo;
    for (const std::wstring_view text : kTexts) {
        SCOPED_TRACE(Utf8(text));
        for (const bool message : {false, true}) {
            MemoryRichText model;
            ResetInfo(control);
            control.SetText(text);
            model.SetText(text);
            message ? FormatText(control) : FormatInfo(control);
            message ? FormatText(model) : FormatInfo(model);
            EXPECT_EQ(Described(control), model.Described());
        }
    }
}

TEST(RichText, BlackIsTheSystemsColour) {
    FormUnderTest test(1);
    win::RichText& control = test.form.txtInfo;
    control.SetText(L"abc");
    control.SelStart(1);
    control.SelLength(1);
    control.SelColor(kInkRed);
    EXPECT_EQ(Described(control), L"a{r}b{}c");
    control.SelStart(1);
    control.SelLength(1);
    control.SelColor(kInkBlack);
    EXPECT_EQ(Described(control), L"abc");
}

TEST(RichText, HeightGrowsWithTheLines) {
    FormUnderTest test(1);
    win::RichText& control = test.form.txtInfo;
    const auto height = [&](const wchar_t* text) {
        control.SetText(text);
        control.ScrollToTop();
        return control.TextHeight().value;
    };
    const int one = height(L"one");
    const int line = height(L"one\r\ntwo") - one;
    EXPECT_GT(line, one / 2);
    EXPECT_NEAR(height(L"1\r\n2\r\n3\r\n4\r\n5\r\n"), one + 5 * line, 30);
    const std::wstring wrapped(400, L'w');
    EXPECT_GE(height(wrapped.c_str()), one + 2 * line);
}

TEST(RichText, ScrolledToTheTopNothingIsSelected) {
    FormUnderTest test(1);
    test.form.WriteInfo(L"<b>a</b>\r\n<u>b</u>\r\nc");
    CHARRANGE range{9, 9};
    test.form.txtInfo.Send(EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&range));
    EXPECT_EQ(range.cpMin, 0);
    EXPECT_EQ(range.cpMax, 0);
    EXPECT_EQ(test.form.txtInfo.Send(EM_GETFIRSTVISIBLELINE), 0);
}

#include "wizard/Markup.h"

#include "tests/support/FormUnderTest.h"
#include "wizard/frmMessage.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

enum Renderer { kPage, kMessage };

} // namespace

// A "+" is typed behind the last element: that tells what its end has reset. Each row finds the look of the
// row before it in the control.
TEST(Markup, Renders) {
    struct Row {
        Renderer renderer;
        std::wstring_view text;
        std::wstring_view rendered; // as Described()
    };
    // clang-format off
    const Row rows[] = {
        {kPage,    L"",                                       L""},
        {kPage,    L"No tag: a < b > c",                      L"No tag: a < b > c"},
        {kPage,    L"<b><r>Not there:</r></b>",               L"{rb}Not there:"},
        {kPage,    L"<r>a<b>b</b>c</r>d",                     L"{r}a{rb}b{r}c{}d"},
        {kPage,    L"x:\r\n<u>one</u>\r\n<u>two</u>\r\ny",    L"x:/{* 150 150}one/two/{}y"},
        {kPage,    L"<u>a\r\nb</u>\r\nc",                     L"{* 150 150}a/b/{}c"},
        {kPage,    L"<b>a</b>-<b>b</b>",                      L"{b}a{}-{b}b"},
        {kPage,    L"<b>two\r\n\r\nlines</b>.",               L"{b}two//lines{}."},
        {kPage,    L"a<b></b>b",                              L"ab"},
        {kPage,    L"a<b>b<b>c",                              L"abc"},
        {kPage,    L"</b><b>a",                               L"</b>a"},
        {kPage,    L"<b>a<b>b</b>c</b>d",                     L"{b}abc{}d"},
        {kPage,    L"<B>a</B><b>b</B>",                       L"<B>a</B>b</B>"},
        {kPage,    L"<i>a</i><br><l>b</l>",                   L"<i>a</i><br><l>b</l>"},
        {kPage,    L"<b<b>>a</b>",                            L"<b{b}>a"},
        {kPage,    L"<r>a</r>",                               L"{r}a{}+"},
        {kPage,    L"<b>a</b>",                               L"{b}a{}+"},
        {kPage,    L"<u>a</u>",                               L"{* 150 150}a+"},
        {kMessage, L"<b>a</b> <i>b</i> c",                    L"{b}a{} {i}b{} c"},
        {kMessage, L"one<br>two<br><br>three",                L"one{3}/{}two{3}//{}three"},
        {kMessage, L"<b>a<br>b</b>",                          L"{b}a{b3}/{b}b"},
        {kMessage, L"x\r\n<l>a</l>\r\ny",                     L"x/{ 150 250}a/{}y"},
        {kMessage, L"<l>a<br>b</l>\r\ny",                     L"{ 150 250}a{3 150 250}/{ 150 250}b/{}y"},
        {kMessage, L"<u>a</u>\r\nb",                          L"{* 150 150}a/{}b"},
        {kMessage, L"<r>a</r></br><I>b</I>",                  L"<r>a</r></br><I>b</I>"},
        {kMessage, L"<b><i>a</i></b>",                        L"{bi}a{i}+"},
        {kMessage, L"<i>a</i>",                               L"{i}a+"},
        {kMessage, L"<l>a</l>",                               L"{ 150 250}a+"},
    };
    // clang-format on
    FormUnderTest page(1);
    frmMessage box;
    for (const Row& row : rows) {
        const bool isPage = row.renderer == kPage;
        win::RichText& text = isPage ? page.form.txtInfo : box.txtMessage;
        text.Text(row.text);
        isPage ? page.form.FormatInfo() : box.FormatText(text);
        if (row.rendered.ends_with(L'+')) text.SelText(L"+");
        EXPECT_EQ(Described(text), row.rendered) << testing::PrintToString(row.text);
    }
}

TEST(Markup, PositionsHave16Bits) {
    std::wstring text;
    while (text.size() < 32766)
        text += L"word ";
    text.resize(32766);
    EXPECT_EQ(FindTag(text + L"<b>", L"<b>", 0), 32766);
    EXPECT_THROW(FindTag(text + L" <b>", L"<b>", 0), std::overflow_error);
    EXPECT_EQ(FindTag(text + L" <b>", L"<r>", 0), std::nullopt);
}

// Whatever look was there; what a person typed has no tags; nothing stays selected.
TEST(Markup, OfAPage) {
    FormUnderTest test(1);
    win::RichText& text = test.form.txtInfo;
    text.Text(L"abc");
    text.SelStart(1);
    text.SelLength(2);
    text.SelItalic(true);
    test.form.WriteInfo(L"<b>a" + WithoutTags(L"<r>D</r>") + L"</b>\r\n<u>b</u>\r\nc");
    EXPECT_EQ(text.Send(EM_GETFIRSTVISIBLELINE), 0);
    CHARRANGE range{9, 9};
    text.Send(EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&range));
    EXPECT_EQ(range.cpMin + range.cpMax, 0);
    EXPECT_FALSE(text.Send(EM_CANUNDO));
    EXPECT_EQ(text.Send(WM_GETDLGCODE) & (DLGC_WANTALLKEYS | DLGC_WANTTAB | DLGC_HASSETSEL), 0);
    EXPECT_EQ(Described(text), L"{b}a<r>D</r>{}/{* 150 150}b/{}c");
    test.Show(4);
    test.form.PageNo = 99;
    test.form.ShowPage();
    EXPECT_EQ(Described(text), L"  ");
}

// On every version: some cut such a word at the edge of the control.
TEST(Markup, AWordLongerThanItsLineGoesOnInTheNext) {
    FormUnderTest test(1);
    test.form.WriteInfo(L"x\r\n     <b>" + std::wstring(100, L'M') + L" n</b>\r\ny");
    win::RichText& text = test.form.txtInfo;
    EXPECT_EQ(text.Text().substr(7), std::wstring(100, L'M') + L" n\ry");
    RECT area{};
    GetClientRect(text.Handle(), &area);
    for (LONG position = 0; position < 111; ++position) {
        POINTL place{};
        text.Send(EM_POSFROMCHAR, reinterpret_cast<WPARAM>(&place), position);
        EXPECT_LT(place.x, area.right) << position;
    }
}

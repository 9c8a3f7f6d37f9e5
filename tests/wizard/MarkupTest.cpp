#include "wizard/Markup.h"

#include "tests/wizard/Described.h"

#include <gtest/gtest.h>

using Pass = void (*)(win::FormattedText&);

// A "+" is typed behind the last element: that tells what its end has reset.
TEST(Markup, Renders) {
    constexpr Pass kPage = FormatInfo, kMessage = FormatText;
    struct Row {
        Pass pass;
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
        {kPage,    L"a<b>b",                                  L"ab"},
        {kPage,    L"</b><b>a",                               L"</b>a"},
        {kPage,    L"<b>a<b>b</b>c</b>d",                     L"{b}abc{}d"},
        {kPage,    L"<B>a</B><b>b</B>",                       L"<B>a</B>b</B>"},
        {kPage,    L"<i>a</i><br><l>b</l>",                   L"<i>a</i><br><l>b</l>"},
        {kPage,    L"<b<b>>a</b>",                            L"<b{b}>a"},
        {kMessage, L"<b>a</b> <i>b</i> c",                    L"{b}a{} {i}b{} c"},
        {kMessage, L"one<br>two<br><br>three",                L"one{3}/{}two{3}//{}three"},
        {kMessage, L"<b>a<br>b</b>",                          L"{b}a{b3}/{b}b"},
        {kMessage, L"x\r\n<l>a</l>\r\ny",                     L"x/{ 150 250}a/{}y"},
        {kMessage, L"<l>a<br>b</l>\r\ny",                     L"{ 150 250}a{3 150 250}/{ 150 250}b/{}y"},
        {kMessage, L"<u>a</u>\r\nb",                          L"{* 150 150}a/{}b"},
        {kMessage, L"<r>a</r></br><I>b</I>",                  L"<r>a</r></br><I>b</I>"},
        {kMessage, L"<b><i>a</i></b>",                        L"{bi}a{i}+"},
        {FormatInfoRed,    L"<r>a</r>",                       L"{r}a{}+"},
        {FormatInfoBold,   L"<b>a</b>",                       L"{b}a{}+"},
        {FormatInfoBullet, L"<u>a</u>",                       L"{* 150 150}a+"},
        {FormatItalic,     L"<i>a</i>",                       L"{i}a+"},
        {FormatIndent,     L"<l>a</l>",                       L"{ 150 250}a+"},
    };
    // clang-format on
    for (const Row& row : rows) {
        win::FormattedText text(row.text);
        row.pass(text);
        if (row.rendered.ends_with(L'+')) text.SelText(L"+");
        EXPECT_EQ(Described(text), row.rendered) << testing::PrintToString(row.text);
    }
}

TEST(Markup, PositionsHave16Bits) {
    win::FormattedText control(std::wstring(32766, L'x') + L"<b>a");
    FormatInfo(control);
    EXPECT_EQ(control.Text().size(), 32767u);
    control.SetText(std::wstring(32767, L'x') + L"<b>a");
    EXPECT_THROW(FormatInfo(control), std::overflow_error);
    control.SetText(L"<i>" + std::wstring(32767, L'x') + L"</i>");
    EXPECT_THROW(FormatText(control), std::overflow_error);
}

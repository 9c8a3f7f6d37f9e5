#include "wizard/Markup.h"

#include "tests/wizard/MemoryRichText.h"

#include <gtest/gtest.h>

namespace {

struct Row {
    std::wstring_view text;
    std::wstring_view rendered; // as MemoryRichText::Described
};

std::wstring Rendered(std::wstring_view text, void (*render)(MemoryRichText&)) {
    MemoryRichText control;
    control.SetText(text);
    render(control);
    return control.Described();
}

} // namespace

TEST(Markup, Pages) {
    // clang-format off
    const Row rows[] = {
        {L"",                                       L""},
        {L"No tag: a < b > c",                      L"No tag: a < b > c"},
        {L"Click <b>Next</b> to go on.",            L"Click {b}Next{} to go on."},
        {L"<b><r>Not there:</r></b>",               L"{rb}Not there:"},
        {L"<r>a<b>b</b>c</r>d",                     L"{r}a{rb}b{r}c{}d"},
        {L"x:\r\n<u>one</u>\r\n<u>two</u>\r\ny",    L"x:/{* 150 150}one/two/{}y"},
        {L"<u>a\r\nb</u>\r\nc",                     L"{* 150 150}a/b/{}c"},
        {L"<b>a</b>-<b>b</b>",                      L"{b}a{}-{b}b"},
        {L"<b>two\r\n\r\nlines</b>.",               L"{b}two//lines{}."},
        {L"a<b></b>b",                              L"ab"},
        {L"a<b>b",                                  L"ab"},
        {L"a</b>b",                                 L"a</b>b"},
        {L"</b><b>a",                               L"</b>a"},
        {L"<b>a<b>b</b>c</b>d",                     L"{b}abc{}d"},
        {L"<B>a</B><b>b</B>",                       L"<B>a</B>b</B>"},
        {L"<i>a</i><br><l>b</l>",                   L"<i>a</i><br><l>b</l>"},
        {L"<b<b>>a</b>",                            L"<b{b}>a"},
    };
    // clang-format on
    for (const Row& row : rows)
        EXPECT_EQ(Rendered(row.text, FormatInfo), row.rendered);
}

TEST(Markup, Messages) {
    // clang-format off
    const Row rows[] = {
        {L"",                               L""},
        {L"<b>a</b> <i>b</i> c",            L"{b}a{} {i}b{} c"},
        {L"one<br>two<br><br>three",        L"one{3}/{}two{3}//{}three"},
        {L"<b>a<br>b</b>",                  L"{b}a{b3}/{b}b"},
        {L"x\r\n<l>a</l>\r\ny",             L"x/{ 150 250}a/{}y"},
        {L"<l>a<br>b</l>\r\ny",             L"{ 150 250}a{3 150 250}/{ 150 250}b/{}y"},
        {L"<u>a</u>\r\nb",                  L"{* 150 150}a/{}b"},
        {L"<r>a</r></br><I>b</I>",          L"<r>a</r></br><I>b</I>"},
    };
    // clang-format on
    for (const Row& row : rows)
        EXPECT_EQ(Rendered(row.text, FormatText), row.rendered);
}

// What is typed behind an element tells what the element's end has reset.
TEST(Markup, AfterAnElement) {
    struct Case {
        std::wstring_view text;
        void (*pass)(MemoryRichText&);
        std::wstring_view typedBehind;
    };
    // clang-format off
    const Case cases[] = {
        {L"<r>a</r>", FormatInfoRed,    L"{r}a{}+"},
        {L"<b>a</b>", FormatInfoBold,   L"{b}a{}+"},
        {L"<u>a</u>", FormatInfoBullet, L"{* 150 150}a+"},
        {L"<i>a</i>", FormatItalic,     L"{i}a+"},
        {L"<l>a</l>", FormatIndent,     L"{ 150 250}a+"},
    };
    // clang-format on
    for (const Case& each : cases) {
        MemoryRichText control;
        control.SetText(each.text);
        each.pass(control);
        control.SelText(L"+");
        EXPECT_EQ(control.Described(), each.typedBehind);
    }
    MemoryRichText bold;
    bold.SetText(L"<b><i>a</i></b>");
    FormatText(bold);
    EXPECT_EQ(bold.Described(), L"{bi}a");
    bold.SelText(L"+");
    EXPECT_EQ(bold.Described(), L"{bi}a{i}+");
}

TEST(Markup, ResetGivesPlainText) {
    MemoryRichText control;
    control.SetText(L"<r><b>Stop</b></r>");
    FormatInfo(control);
    ResetInfo(control);
    EXPECT_EQ(control.Described(), L"  ");
    control.SetText(L"Go on.");
    EXPECT_EQ(control.Described(), L"Go on.");
}

TEST(Markup, PositionsHave16Bits) {
    MemoryRichText control;
    control.SetText(std::wstring(32766, L'x') + L"<b>a");
    FormatInfo(control);
    EXPECT_EQ(control.Text().size(), 32767u);
    control.SetText(std::wstring(32767, L'x') + L"<b>a");
    EXPECT_THROW(FormatInfo(control), std::overflow_error);
    control.SetText(L"<i>" + std::wstring(32767, L'x') + L"</i>");
    EXPECT_THROW(FormatText(control), std::overflow_error);
}

#include "win/RichText.h"

#include "tests/support/FormUnderTest.h"
#include "tests/wizard/Described.h"
#include "wizard/Markup.h"

#include <gtest/gtest.h>

#include <richedit.h>

// The system's control shows what was put together in memory, also when it held another text before.
TEST(RichText, ShowsTheFormattedText) {
    constexpr std::wstring_view kTexts[] = {
        L"",
        L"<b><r>Not there:</r></b> no",
        L"<r>a<b>b</b>c</r>d",
        L"x:\r\n<u>one</u>\r\n<u>two</u>\r\ny",
        L"<b>two\r\n\r\nlines</b>.",
        L"a<b></b>b<b>c",
        L"<b>a<br>b</b> <i>c</i> d",
        L"x\r\n<l>a</l>\r\ny\r\n<u>b</u>\r\nc",
        L"\r\n\r\n<b>a</b>\r\n\r\n",
        L"tab\tand D\u00e4n \u65cb <b>\u20ac</b>",
    };
    FormUnderTest test(1);
    win::RichText& control = test.form.txtInfo;
    for (const std::wstring_view text : kTexts)
        for (const bool message : {false, true}) {
            win::FormattedText model(text);
            message ? FormatText(model) : FormatInfo(model);
            control.SetText(model);
            EXPECT_EQ(Described(control), Described(model));
        }
}

TEST(RichText, ScrolledToTheTopNothingIsSelected) {
    FormUnderTest test(1);
    test.form.WriteInfo(L"<b>a</b>\r\n<u>b</u>\r\nc");
    CHARRANGE range{9, 9};
    test.form.txtInfo.Send(EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&range));
    EXPECT_EQ(range.cpMin + range.cpMax, 0);
    EXPECT_EQ(test.form.txtInfo.Send(EM_GETFIRSTVISIBLELINE), 0);
}

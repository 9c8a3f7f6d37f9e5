// What the walks cannot show of the New Device Wizard's pages.

#include "ndw/NdwPages.h"

#include "app/StartUp.h"
#include "tests/support/DcpByHand.h"
#include "tests/support/FormUnderTest.h"
#include "tests/support/JapaneseSystem.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

namespace {

class NdwPagesTest : public testing::Test {
  protected:
    // The text of the box that leaving `page` brings up, "" without one.
    std::wstring BoxOn(std::int16_t page, Move move = Move::Next) {
        form.PageNo = page;
        form.StayOnPage = false;
        const auto boxes = Answering({IDOK}, [&] { FindPage(kNdwPages, page)->leave(form, move); });
        EXPECT_LE(boxes.size(), 1u);
        EXPECT_EQ(form.StayOnPage, !boxes.empty());
        return boxes.empty() ? L"" : boxes[0].substr(boxes[0].find(L'\n') + 1);
    }
    ScratchSuite suite;
    FormUnderTest test{kNewDevice};
    frmWizard& form = test.form;
};

} // namespace

TEST_F(NdwPagesTest, ThePortsUseFollowsTheSelection) {
    // The first one is read in any case, however busy the machine is.
    WriteFileBytes(suite.Path() + L"A&D.DCP", DcpByHand("178 04 00").Bytes());
    WriteFileBytes(suite.Path() + L"None.DCP", DcpByHand("178 00 00").Bytes()); // no port at all
    test.Show(kNdwPortPage);
    auto& ports = form.pool.cmbUserInput;
    auto& use = form.pool.lblUserPrompt[1];
    EXPECT_EQ(use.Text(), L"");
    const auto select = [&](int index, WORD code) {
        ports.Index(index);
        SendMessageW(form.Hwnd(), WM_COMMAND, MAKEWPARAM(ports.Id(), code),
                     reinterpret_cast<LPARAM>(ports.Handle()));
        return use.Text();
    };
    EXPECT_EQ(select(3, CBN_SELCHANGE), L"COM4 is used by A&&D."); // "&&" shows as "&"
    EXPECT_EQ(select(4, CBN_CLOSEUP), L"");

    form.cmdNext.Focus();
    ports.Send(WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA));
    EXPECT_EQ(ports.Index(), 4) << "the mouse only stands over it";
    ports.Focus();
    ports.Send(WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA));
    EXPECT_GT(ports.Index(), 4);

    test.Show(kNdwBaudPage);
    use.Text(L"of another page");
    EXPECT_EQ(select(3, CBN_SELCHANGE), L"of another page");
}

TEST_F(NdwPagesTest, NamesThatMayBeTakenAndTriedAgain) {
    const std::size_t longest = 259 - suite.Path().size() - 4;
    const std::wstring again = L"\r\n\r\nTry a different name.", it = L"The name you specified ",
                       taken = L"The configuration name you specified is already used." + again,
                       tooLong = it + L"is too long.\r\nIt may have up to " + std::to_wstring(longest) +
                                 L" characters.";
    const struct {
        std::wstring name;
        Spoilt before;
        std::wstring box;
    } rows[] = {
        {L"A", Spoilt::Folder, L"The configuration file could not be written:"},
        {L"B", Spoilt::Not, L""},
        {L" a ", Spoilt::File, L""}, // as A, which this run has failed to write
        {L"A", Spoilt::Not, taken},
        {L"", Spoilt::Not, L"You must specify a valid name to continue."},
        {L"Mill:2", Spoilt::Not,
         it + L"contains one or more\r\nof the following invalid characters:\r\n"
              L"          /  \\  :  *  ?  \"  <  >  |  \r\n\r\nTry a different name."},
        {L"CON", Spoilt::Not, it + L"is reserved by Windows for a device." + again},
        {L"abc.", Spoilt::Not, it + L"ends in a dot." + again},
        {L"a\tb", Spoilt::Not, it + L"contains a control character." + again},
        {L"a\u2215b", Spoilt::Not, it + L"contains the character \"\u2215\""},
        {std::wstring(longest, L'm'), Spoilt::Not, L""},
        {std::wstring(longest + 1, L'm'), Spoilt::Not, tooLong},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(Utf8(row.name));
        if (row.before != Spoilt::Not) Spoil(suite.Path() + L"a.DCP", row.before);
        test.Show(kNdwNamePage);
        form.ConfigWritten = false;
        form.pool.txtUserInput[0].Text(row.name);
        EXPECT_EQ(BoxOn(kNdwNamePage).substr(0, row.box.size()), row.box);
        EXPECT_EQ(form.ConfigWritten, row.box.empty());
        const bool isSelected = form.pool.txtUserInput[0].Send(EM_GETSEL) == MAKELONG(0, row.name.size());
        EXPECT_TRUE(row.box.empty() || isSelected) << "to be typed over";
    }
}

// In a code page with characters of two bytes, which the places of a configuration file do not hold.
TEST_F(NdwPagesTest, TextsAreStoredOnEveryWayAndRefusedForward) {
    NdwAnswers& answers = ndwSession.answers;
    const std::wstring character = L"The character \"\u6a5f\"", extension = L"The file extension";
    // clang-format off
    const struct {
        std::int16_t page;
        std::size_t box;
        std::wstring typed;
        Move move;
        std::wstring refused;
        const std::wstring& stored;
        std::wstring asWhat;
    } rows[] = {
        {kNdwFiltLinesPage, 0, L"\uff76",  Move::Next, L"",       answers.removedLines,     L"\uff76"}, // one byte
        {kNdwFiltLinesPage, 0, L"a\u6a5f", Move::Next, character, answers.removedLines,     L"\uff76"},
        {kNdwFiltLinesPage, 0, L"a\u6a5f", Move::Back, L"",       answers.removedLines,     L"\uff76"},
        {kNdwFiltLinesPage, 0, L"b",       Move::Back, L"",       answers.removedLines,     L"b"     },
        {kNdwRxNamePage,    0, L"a\u6a5f", Move::Next, character, answers.receivePrefix,    L""      },
        {kNdwRxNamePage,    0, L"c",       Move::Back, L"",       answers.receivePrefix,    L"c"     },
        {kNdwRxNamePage,    1, L"a*",      Move::Next, extension, answers.receiveExtension, L""      },
        {kNdwRxNamePage,    1, L"a*",      Move::Back, L"",       answers.receiveExtension, L""      },
        {kNdwRxNamePage,    1, L".nc",     Move::Back, L"",       answers.receiveExtension, L"nc"    },
    };
    // clang-format on
    const JapaneseSystem japanese;
    test.Show(kNdwNamePage);
    const LRESULT font = form.pool.txtUserInput[0].Send(WM_GETFONT); // that page 14 replaces meanwhile
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.typed));
        test.Show(row.page);
        form.pool.txtUserInput[row.box].Text(row.typed);
        const std::wstring box = BoxOn(row.page, row.move);
        EXPECT_TRUE(box.empty() == row.refused.empty() && box.starts_with(row.refused));
        EXPECT_EQ(row.stored, row.asWhat);
        EXPECT_EQ(form.pool.txtUserInput[0].Send(WM_GETFONT) == font,
                  box.empty() || row.page != kNdwRxNamePage);
    }
    answers.removedLines = L"<b>"; // a text, no mark-up
    test.Show(kNdwNamePage);
    EXPECT_NE(form.txtInfo.Text().find(L"Lines removed: <b>"), std::wstring::npos);
}

// What the walks cannot show of the New Device Wizard's pages.

#include "ndw/NdwPages.h"

#include "app/StartUp.h"
#include "tests/ndw/DcpByHand.h"
#include "tests/support/FormUnderTest.h"
#include "tests/support/Imports.h"
#include "tests/support/Scratch.h"

#include <commctrl.h>

#include <gtest/gtest.h>

namespace {

class NdwPagesTest : public testing::Test {
  protected:
    // The texts of the boxes that leaving `page` by Next brings up, one at the most.
    std::wstring BoxOn(std::int16_t page) {
        form.PageNo = page;
        form.StayOnPage = false;
        const auto boxes = Answering({IDOK}, [&] { FindPage(kNdwPages, page)->leave(form, Move::Next); });
        EXPECT_LE(boxes.size(), 1u);
        return boxes.empty() ? L"" : boxes[0].substr(boxes[0].find(L'\n') + 1);
    }
    ScratchSuite suite;
    FormUnderTest test{kNewDevice};
    frmWizard& form = test.form;
};

decltype(&WideCharToMultiByte) toBytes = nullptr;
decltype(&MultiByteToWideChar) fromBytes = nullptr;

UINT Japanese(UINT page) { return page == CP_ACP ? 932 : page; }

int WINAPI ToJapanese(UINT page, DWORD flags, LPCWCH text, int length, LPSTR bytes, int size, LPCCH standIn,
                      LPBOOL replaced) {
    return toBytes(Japanese(page), flags, text, length, bytes, size, standIn, replaced);
}

int WINAPI FromJapanese(UINT page, DWORD flags, LPCCH bytes, int size, LPWSTR text, int length) {
    return fromBytes(Japanese(page), flags, bytes, size, text, length);
}

} // namespace

TEST_F(NdwPagesTest, ThePortsUseFollowsTheSelection) {
    WriteFileBytes(suite.Path() + L"R&D.DCP", DcpByHand("178 04 00").Bytes());
    test.Show(kNdwPortPage);
    auto& ports = form.pool.cmbUserInput;
    auto& use = form.pool.lblUserPrompt[1];
    EXPECT_EQ(ports.Send(CB_GETMINVISIBLE), 12);
    EXPECT_EQ(use.Text(), L"");
    const auto select = [&](int index, WORD code) {
        ports.Index(index);
        SendMessageW(form.Hwnd(), WM_COMMAND, MAKEWPARAM(ports.Id(), code),
                     reinterpret_cast<LPARAM>(ports.Handle()));
        return use.Text();
    };
    EXPECT_EQ(select(3, CBN_SELCHANGE), L"COM4 is used by R&&D."); // "&&" shows as "&"
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
    const std::wstring tooLong = L"The name you specified is too long.\r\nIt may have up to " +
                                 std::to_wstring(longest) + L" characters.";
    const struct {
        std::wstring name;
        Spoilt before;
        std::wstring box; // its beginning
    } rows[] = {
        {L"A", Spoilt::Folder, L"The configuration file could not be written:"},
        {L"B", Spoilt::Not, L""},
        {L"a", Spoilt::File, L""},
        {L"A", Spoilt::Not, L"The configuration name you specified is already used."},
        {std::wstring(longest, L'm'), Spoilt::Not, L""},
        {std::wstring(longest + 1, L'm'), Spoilt::Not, tooLong},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(Utf8(row.name));
        if (row.before != Spoilt::Not) Spoil(suite.Path() + row.name + L".DCP", row.before);
        test.Show(kNdwNamePage);
        form.pool.txtUserInput[0].Text(row.name);
        EXPECT_EQ(BoxOn(kNdwNamePage).substr(0, row.box.size()), row.box);
        EXPECT_EQ(form.StayOnPage, !row.box.empty());
    }
}

// In a code page with characters of two bytes, which the places of a configuration file do not hold.
TEST_F(NdwPagesTest, TextsOfOneByteACharacter) {
    const ReplacedImport there("WideCharToMultiByte", reinterpret_cast<void*>(&ToJapanese));
    const ReplacedImport back("MultiByteToWideChar", reinterpret_cast<void*>(&FromJapanese));
    toBytes = there.Original<decltype(toBytes)>();
    fromBytes = back.Original<decltype(fromBytes)>();
    const std::pair<std::int16_t, std::wstring*> pages[] = {
        {kNdwFiltLinesPage, &ndwSession.answers.removedLines},
        {kNdwRxNamePage, &ndwSession.answers.receivePrefix}};
    for (const auto& [page, answer] : pages) {
        test.Show(page);
        form.pool.txtUserInput[0].Text(L"\uff76"); // half-width: one byte
        EXPECT_EQ(BoxOn(page), L"");
        form.pool.txtUserInput[0].Text(L"a\u6a5f");
        EXPECT_EQ(BoxOn(page).substr(0, 17), L"The character \"\u6a5f\"");
        EXPECT_EQ(*answer, L"\uff76");
    }
}

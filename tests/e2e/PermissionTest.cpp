// A user who may not write the settings meets one page, in either wizard, whatever the cause.

#include "tests/support/DemoSuite.h"
#include "tests/support/Scratch.h"
#include "tests/support/WizardDriver.h"

#include <gtest/gtest.h>

namespace {

// clang-format off
constexpr struct {
    const wchar_t* place; // in the suite's folder
    Spoilt how;
    bool keysFail;        // told in a box before the page
} kCauses[] = {
    {L"Settings",                  Spoilt::Missing,  true },
    {L"Settings",                  Spoilt::File,     true },
    {L"Settings\\VAccessTest.txt", Spoilt::Folder,   false},
    {L"Settings\\VarnelDnc.ini",   Spoilt::Missing,  false},
    {L"Settings\\VarnelDnc.ini",   Spoilt::Folder,   true },
    {L"Settings\\VarnelDnc.ini",   Spoilt::ReadOnly, false},
    {L"Settings\\VarnelDnc.ini",   Spoilt::Locked,   true },
};
// clang-format on

void ExpectPage(const WizardDriver& wizard) {
    wizard.WaitForPage(L"Permission denied!");
    EXPECT_EQ(
        Utf8(wizard.PageText()),
        "Permission to modify Varnel DNC configuration settings is denied.\r\n\r\n"
        "To use this Wizard, log in to a user account with permission to modify Varnel DNC "
        "configuration files.\r\n\r\nFor more information about permissions, open the \"Security\" tab in "
        "Varnel DNC Configuration (VConfig), and then click Help.");
    for (const wchar_t* gone : {L"&Next >", L"< Back", L"&Skip", L"Cancel"})
        EXPECT_FALSE(wizard.Has(gone)) << Utf8(gone);
    EXPECT_EQ(wizard.Step(), L"");
    const HWND close = GetDlgItem(wizard.Window(), IDCANCEL);
    EXPECT_TRUE(wizard.HasFocus(close));
    EXPECT_EQ(LOWORD(SendMessageW(wizard.Window(), DM_GETDEFID, 0, 0)), IDCANCEL);
}

} // namespace

TEST(Permission, EachCauseShowsThePage) {
    for (const wchar_t* arguments : {L"", L"/NDW"})
        for (const auto& cause : kCauses) {
            SCOPED_TRACE(Utf8(cause.place) + " as " + std::to_string(static_cast<int>(cause.how)));
            const DemoSuite suite;
            const auto lock = Spoil(suite.Folder() + cause.place, cause.how);
            const auto before = FileNames(suite.Settings());
            const bool firstMakesIni = before.empty() && !cause.keysFail;
            WizardDriver wizard(suite, arguments, WizardDriver::Wait::No);
            if (cause.keysFail || (cause.how == Spoilt::ReadOnly && ReadOnlyStops())) {
                const std::wstring text =
                    L"Unable to write data to configuration file: \r\n" + suite.Settings();
                EXPECT_EQ(wizard.AnswerBox(IDOK).text.find(text), 0u);
            }
            wizard.WaitForOpening();
            ExpectPage(wizard);
            wizard.Click(L"&Close"); // asks nothing
            EXPECT_EQ(wizard.WaitForExit(), 0);
            EXPECT_EQ(suite.StartCount(), 0u);
            EXPECT_EQ(FileNames(suite.Settings()) == before, !firstMakesIni);
            if (firstMakesIni) {
                EXPECT_TRUE(WizardDriver(suite, arguments).Has(L"&Next >"));
            }
        }
}

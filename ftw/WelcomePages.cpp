// First pages of the First-Time Setup Wizard: welcome, kind of setup, introduction, tutorial.

#include "app/CodePage.h"
#include "app/Launch.h"
#include "app/Settings.h"
#include "ftw/FtwLinks.h"
#include "ftw/FtwPages.h"
#include "ftw/TransmitRoot.h"
#include "wizard/frmWizard.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace {

using namespace win::literals;

enum SetupModes : std::int16_t { kNewInstallation, kKeepConfiguration, kLoadConfiguration, kSetupModes };

// Whoever has left the introduction once has something to keep.
constexpr std::int32_t kKeepAfterProgress = 5;

// The last option's place below the picture's top, and the distance of the options.
constexpr win::Twips kLastOptionTop = 2400_tw;
constexpr win::Twips kOptionDistance = 240_tw;

// clang-format off
constexpr wchar_t kLoadQuestion[] =
    L"You chose to restore a previously-saved set of\r\n"
    L"Varnel DNC configuration files.\r\n\r\n"
    L"Click 'OK' to close this wizard and\r\n"
    L"launch the Varnel DNC Configuration Manager wizard,\r\n"
    L"which will guide you through the process of loading\r\n"
    L"your previously-saved configuration.";
// clang-format on

// The rest is the configuration program's business: it loads what was saved.
void HandOverToConfigManager(frmWizard& form) {
    if (MessageBoxW(form.Hwnd(), kLoadQuestion, L"VWizard", MB_OKCANCEL) != IDOK) return;
    OpenDocument(suite::kConfigProgram, L"/MANAGER");
    form.ConfirmExit = false;
    form.Unload();
}

// The location pages go through with what is stored; whoever only clicks Next keeps all of it.
void KeepConfiguration() {
    ftwSession.keepConfiguration = true;
    ftwSession.location = ReadTransmitRoot(ReadWholeIniString(suite::kGeneral, suite::kTransmitRoot));
}

} // namespace

void PageFtwWelcome(frmWizard& form) {
    form.WriteHeading(L"Welcome");
    // clang-format off
    form.WriteInfo(
        L"Thank you for choosing Varnel DNC.\r\n\r\n"
        L"This wizard helps you:\r\n\r\n"
        L"<u>set up Varnel DNC for the first time</u>\r\n"
        L"<u>update an existing installation</u>\r\n"
        L"<u>reinstall Varnel DNC</u>\r\n"
        L"<u>move Varnel DNC to a new computer</u>\r\n\r\n"
        L"Click <b>Next</b> to get started.");
    // clang-format on
}

void PageFtwChoose(frmWizard& form) {
    form.WriteHeading(L"Choose setup mode");
    // clang-format off
    form.WriteInfo(
        L"Choose <b>New...</b> to install Varnel DNC for the first time,\r\n\r\n"
        L"Choose <b>Keep...</b> to update or reinstall Varnel DNC, keeping your current configuration.\r\n\r\n"
        L"Choose <b>Load...</b> to move Varnel DNC to a new computer, and load configuration files your saved from a previous installation."); // "your": sic
    // clang-format on
    constexpr std::wstring_view kCaptions[] = {
        L"New installation",
        L"Keep existing configuration",
        L"Load previously-saved configuration",
    };
    InputColumn column(form);
    for (std::int16_t i = 0; i < kSetupModes; ++i) {
        const auto mode = static_cast<std::size_t>(i);
        column.Top(form.picMain.Top() + kLastOptionTop + kOptionDistance * (i - kLoadConfiguration));
        column.Option(mode, kCaptions[mode], i == kNewInstallation);
    }
    // Grey while there is nothing to keep: the option stays where it is, and says what will be possible
    // later.
    form.pool.optUserInput[kKeepConfiguration].Enabled(ftwSession.maxProgress > kKeepAfterProgress);
}

// Keeping differs from a new installation in what the pages show, not in which pages come.
void ChooseInstallType(frmWizard& form) {
    const std::int16_t mode = SelectedOption(form.pool, kSetupModes);
    if (mode == kLoadConfiguration) return HandOverToConfigManager(form);
    // Not undone by a later choice of "New": what was read is then only what the pages begin with.
    if (mode == kKeepConfiguration) KeepConfiguration();
    ++form.PageNo;
    form.ShowPage();
}

void PageFtwIntroduction(frmWizard& form) {
    form.WriteHeading(L"Introduction");
    // clang-format off
    form.WriteInfo(
        L"This Wizard introduces you to Varnel DNC features and guides you through the initial setup process, including:\r\n"
        L"<u>specifying the location of your CNC program files</u>\r\n"
        L"<u>configuring CNC communication settings</u>\r\n"
        L"<u>advising you about organizing and protecting data</u>\r\n"
        L"<u>launching the Varnel DNC Navigator</u>\r\n\r\n"
        L"<b>Note: Carefully completing this wizard saves time and helps you use Varnel DNC more effectively.</b>\r\n\r\n");
    // clang-format on
}

void PageFtwGetStarted(frmWizard& form) {
    form.WriteHeading(L"Getting Started");
    // clang-format off
    form.WriteInfo(
        L"Take a few minutes to view the \"Getting Started\" tutorial. \r\n\r\n"
        L"The tutorial is the fastest way to learn about:\r\n"
        L"<u>software components</u>\r\n"
        L"<u>uploading, downloading and drip feeding</u>\r\n"
        L"<u>viewing, editing and organizing files</u>\r\n"
        L"<u>connecting CNCs to your computer</u>");
    // clang-format on
    InputColumn column(form);
    column.Links(kFtwLinks, form.PageNo);
    column.Gap(layout::kGapBetweenGroups);
    column.Check(0, L"Open the tutorial when I leave this page", false);
}

// Whatever way the page is left; once, since the first Skip shows the page again. It is a wish for this
// visit: who comes back is asked anew.
void LeaveFtwGetStarted(frmWizard& form, Move) {
    auto& offer = form.pool.chkUserInput[0];
    if (!offer.Checked()) return;
    OpenDocument(suite::kTutorial);
    offer.Checked(false);
}

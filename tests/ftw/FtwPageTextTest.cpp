#include "ftw/FtwPages.h"
#include "tests/support/DemoSuite.h"
#include "tests/support/RichTextLook.h"
#include "tests/support/Scratch.h"
#include "wizard/frmWizard.h"

#include <gtest/gtest.h>

namespace {

struct PageText {
    std::int16_t page;
    const wchar_t* heading;
    const wchar_t* look; // as LookOf() tells it
};

// Page 10, whose text follows the location, is below; 4 to 6 do not exist.
constexpr PageText kPageTexts[] = {
    {1, L"Welcome",
     L"Thank you for choosing Varnel DNC.\n\nThis wizard helps you:\n\n"
     L"• set up Varnel DNC for the first time\n"
     L"• update an existing installation\n"
     L"• reinstall Varnel DNC\n"
     L"• move Varnel DNC to a new computer\n\n"
     L"Click [Next] to get started."},
    {2, L"Choose setup mode",
     L"Choose [New...] to install Varnel DNC for the first time,\n\n"
     L"Choose [Keep...] to update or reinstall Varnel DNC, keeping your current configuration.\n\n"
     L"Choose [Load...] to move Varnel DNC to a new computer, and load configuration files your saved "
     L"from a previous installation."},
    {3, L"Introduction",
     L"This Wizard introduces you to Varnel DNC features and guides you through the initial setup "
     L"process, including:\n"
     L"• specifying the location of your CNC program files\n"
     L"• configuring CNC communication settings\n"
     L"• advising you about organizing and protecting data\n"
     L"• launching the Varnel DNC Navigator\n\n"
     L"[Note: Carefully completing this wizard saves time and helps you use Varnel DNC more "
     L"effectively.]\n\n"},
    {7, L"Getting Started",
     L"Take a few minutes to view the \"Getting Started\" tutorial. \n\n"
     L"The tutorial is the fastest way to learn about:\n"
     L"• software components\n"
     L"• uploading, downloading and drip feeding\n"
     L"• viewing, editing and organizing files\n"
     L"• connecting CNCs to your computer"},
    {8, L"Specify Application Shortcuts",
     L"You can start Varnel DNC applications using shortcuts provided in the Windows Start menu.\n\n"
     L"You can create additional File Manager shortcuts by selecting the options below.\n\n"
     L"For even more shortcut options, click [Shortcut Manager]."},
    {9, L"Specify CNC file location",
     L"You can let Varnel DNC access all files on your computer, or you can restrict access to one or "
     L"more specific local or network folders.\n\n"
     L"To access all files on your computer, leave file location blank. To select an existing folder, "
     L"type a folder name or click [Browse...]. To specify multiple folders, separate folders with a "
     L"semicolon (;).\n\n"
     L"To create a default folder to store your files, click [Default folder...]."},
    {11, L"Configure Communication Options",
     L"CNC communication settings (baud rate, parity, formatting, etc.) are stored in configuration "
     L"files. A separate file is usually created for each CNC.\n\n"
     L"Varnel DNC includes sample configuration files for most common CNC models. The following pages "
     L"show you how to use the samples, and how to create and modify your own new configurations.\n\n"},
    {12, L"Import Sample CNC Configuration Files",
     L"Sample CNC configuration files are listed below. Click a sample to select it. To select multiple "
     L"samples, hold down the Ctrl key while clicking. If your CNC model is not listed, you can create a "
     L"custom configuration later.\n\n"
     L"Note: Each sample includes a \"Notes\" section with recommended CNC parameter settings."},
    {13, L"Edit Sample CNC Configuration Files",
     L"The Varnel DNC Configuration window (VConfig.exe) is open so you can review and edit the selected "
     L"configurations.\n\n"
     L"For each configuration:\n"
     L" 1. On the \"Port Settings\" tab, change COM Port and Baud rate. Changing other settings is not "
     L"recommended.\n"
     L" 2. Carefully read the \"Notes\" tab.\n\n"
     L"Note: To import more sample configurations, click [Import sample configuration] in VConfig's "
     L"[File] menu."},
    {14, L"Create New CNC Configuration Files",
     L"If a sample configuration is not available for your CNC, click [...New Device Wizard] below. The "
     L"wizard walks you through the process of creating a new configuration.\n\n"
     L"For more information about configuring Varnel DNC, click [Configuration Guide] below."},
    {15, L"Common Problems",
     L"Two of the most common problems for new Varnel DNC software users are:\n"
     L"• Computer hibernation and power features\n"
     L"• USB/serial adapters\n\n"
     L"[To avoid these common problems], click the links below to read the help topics.\n\n"
     L"You can view this help file at any time by clicking [Communication testing...] in the Varnel DNC "
     L"help menus, or the Varnel DNC Navigator \"Help\" tab."},
    {16, L"Data Backup - Protect Your Investment",
     L"[                        I M P O R T A N T]\n\n"
     L"To protect your investment, back up your software disk, your configuration files, and your CNC "
     L"data files.\n\n"
     L"If you purchased a [download only] copy, make a permanent backup copy of the downloaded file now. "
     L"If you lose the download file, you may need to purchase a new copy to reinstall or repair the "
     L"software.\n\n"
     L"Data backup is fast and easy. Failure to back up your data can be costly.\n\n"
     L"Click [Next] to view and print the Data Backup help page."},
    {17, L"Finished",
     L"First-time setup is now complete. \n\n"
     L"Click [Finish] to launch the Varnel DNC Navigator application which provides categorized links to "
     L"all Varnel DNC resources, including:\n\n"
     L"• Varnel DNC applications\n"
     L"• User manuals\n"
     L"• Help files\n"
     L"• Application notes\n"
     L"• Cable and wiring diagrams\n"
     L"• Technical support"},
};

struct ConfirmText {
    std::wstring location; // as typed on page 9
    std::wstring look;
};

std::vector<ConfirmText> ConfirmTexts(const std::wstring& folder) {
    const std::wstring afterLocation = L"\n\nClick [Back] to choose a different file location.\n\n"
                                       L"You can change the file location or add more folders later by "
                                       L"clicking [Root folders] in the Varnel "
                                       L"DNC File Manager's [Configure] menu.";
    const std::wstring isMissing = L"{The folder you specified does not exist:}\n     [";
    const std::wstring creates = L"]\n\nClick [Next] to create a new folder with this name.";
    return {
        {L"", L"Click [Next] to allow access to all files on your computer." + afterLocation},
        {L"  ", L"Click [Next] to allow access to all files on your computer." + afterLocation},
        {folder, L"Click [Next] to confirm the location of your CNC program files:\n     [" + folder + L"]" +
                     afterLocation},
        {folder + L"; ", L"Click [Next] to confirm the location of your CNC program files:\n     [" + folder +
                             L"; ]" + afterLocation},
        {folder + L"\\none", isMissing + folder + L"\\none" + creates + afterLocation},
        {folder + L";" + folder, isMissing + folder + L";" + folder + creates + afterLocation},
        {L"<b>D</b><r>", isMissing + L"<b>D</b><r>" + creates + afterLocation},
    };
}

void ExpectPage(frmWizard& form, std::int16_t page, const wchar_t* heading, const std::wstring& look) {
    SCOPED_TRACE("page " + std::to_string(page) + ", location \"" + Utf8(ftwSession.location.folders) + "\"");
    form.PageNo = page;
    form.ShowPage();
    EXPECT_EQ(form.picHeader.Text(), heading);
    EXPECT_EQ(LookOf(form.txtInfo), look);
}

} // namespace

TEST(FtwPageText, EveryCharacterHasItsLook) {
    const ScratchSuite suite;
    frmWizard form(FtwBook(), true);
    FtwBook().load(form);
    for (const PageText& row : kPageTexts)
        ExpectPage(form, row.page, row.heading, row.look);
    const std::wstring& path = suite.Path();
    for (const ConfirmText& row : ConfirmTexts(path.substr(0, path.size() - 1))) {
        ftwSession.location.folders = row.location;
        ExpectPage(form, 10, L"Confirm CNC file location", row.look);
    }
}

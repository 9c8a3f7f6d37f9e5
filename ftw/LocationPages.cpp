// Pages of the First-Time Setup Wizard about where the CNC programs lie.

#include "app/Blanks.h"
#include "app/CodePage.h"
#include "app/Files.h"
#include "app/Settings.h"
#include "ftw/FtwPages.h"
#include "ftw/TransmitRoot.h"
#include "wizard/Markup.h"
#include "wizard/frmWizard.h"

namespace {

std::wstring LocationBlock(const std::wstring& folders) {
    const std::wstring path = LocationPath(folders);
    if (TrimBlanks(folders).empty())
        return L"Click <b>Next</b> to allow access to all files on your computer.";
    const std::wstring shown = L"     <b>" + WithoutTags(folders) + L"</b>";
    if (FolderExists(path))
        return L"Click <b>Next</b> to confirm the location of your CNC program files:\r\n" + shown;
    return L"<b><r>The folder you specified does not exist:</r></b>\r\n" + shown +
           L"\r\n\r\nClick <b>Next</b> to create a new folder with this name.";
}

// What keeps the value from being written, "" when nothing does. A character that the file cannot hold
// would turn into another one there.
std::wstring WriteProblem(const std::wstring& value) {
    if (const auto foreign = FirstNotInAnsi(value))
        return IniWriteError().Description() + L"\r\n\r\nIt cannot hold the character \"" + *foreign + L"\".";
    try {
        WriteIniString(kTransmitRootKey, value);
    } catch (const win::AppError& error) {
        return error.Description();
    }
    return {};
}

} // namespace

void PageFtwLocation(frmWizard& form) {
    form.WriteHeading(L"Specify CNC file location");
    form.WriteInfo(
        L"You can let Varnel DNC access all files on your computer, or you can restrict access to one or "
        L"more "
        L"specific local or network folders.\r\n\r\n"
        L"To access all files on your computer, leave file location blank. To select an existing folder, "
        L"type "
        L"a folder name or click <b>Browse...</b>. To specify multiple folders, separate folders with a "
        L"semicolon (;).\r\n\r\n"
        L"To create a default folder to store your files, click <b>Default folder...</b>.");
    const std::wstring& folders = ftwSession.location.folders;
    InputColumn column(form);
    column.Width(layout::kTextWidth);
    column.Prompt(0, L"Enter CNC file &location");
    column.TextBox(0, folders, static_cast<int>(std::max(kLocationLimit, folders.size()))).Focus();
    column.Link(0, L"Browse existing folders");
    column.Link(1, L"Default folder");
}

void LeaveFtwLocation(frmWizard& form, Move move) {
    if (move != Move::Skip) ftwSession.location.folders = form.pool.txtUserInput[0].Text();
}

void PageFtwConfirmLocation(frmWizard& form) {
    form.WriteHeading(L"Confirm CNC file location");
    form.WriteInfo(LocationBlock(ftwSession.location.folders) +
                   L"\r\n\r\nClick <b>Back</b> to choose a different file location.\r\n\r\n"
                   L"You can change the file location or add more folders later by clicking <b>Root "
                   L"folders</b> in the Varnel DNC File Manager's <b>Configure</b> menu.");
    // Hidden, but read when the page is left: another page has used the box for something else.
    form.pool.chkUserInput[0].Checked(ftwSession.location.floppy);
}

void LeaveFtwConfirmLocation(frmWizard& form, Move move) {
    if (move == Move::Next) SaveTransmitRoot(form);
    if (move != Move::Skip) ftwSession.location.floppy = form.pool.chkUserInput[0].Checked();
}

void SaveTransmitRoot(frmWizard& form) {
    const std::wstring problem = WriteProblem(TransmitRootValue(ftwSession.location));
    FlushIni();
    if (!problem.empty()) win::ShowMessageBox(form.Hwnd(), problem, MB_OK | MB_ICONEXCLAMATION);
    const std::wstring path = LocationPath(ftwSession.location.folders);
    if (!IsFolderList(path)) CreateDirectoryW(path.c_str(), nullptr); // one that exists is left as it is
}

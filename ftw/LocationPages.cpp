// Pages of the First-Time Setup Wizard about where the CNC programs lie.

#include "app/Blanks.h"
#include "app/CodePage.h"
#include "app/Files.h"
#include "app/Settings.h"
#include "app/modLocations.h"
#include "ftw/FtwLinks.h"
#include "ftw/FtwPages.h"
#include "ftw/TransmitRoot.h"
#include "wizard/Markup.h"
#include "wizard/frmWizard.h"

#include <algorithm>

namespace {

constexpr std::size_t kDefaultFolderLink = 1;

std::wstring LocationBlock(const std::wstring& folders, bool exists) {
    if (TrimBlanks(folders).empty())
        return L"Click <b>Next</b> to allow access to all files on your computer.";
    const std::wstring shown = L"     <b>" + WithoutTags(ShownLocation(folders)) + L"</b>";
    if (exists) return L"Click <b>Next</b> to confirm the location of your CNC program files:\r\n" + shown;
    return L"<b><r>The folder you specified does not exist:</r></b>\r\n" + shown +
           L"\r\n\r\nClick <b>Next</b> to create a new folder with this name.";
}

std::wstring Refusal(const std::wstring& reason) {
    return IniWriteError().Description() + L"\r\n\r\n" + reason;
}

// Letters of two bytes: more of them than the suite's programs read back. The box lets nobody type more
// characters than that; a longer text was given whole, by the settings file or another program, and is kept.
bool HasTooManyBytes(const std::wstring& folders) {
    return folders.size() <= kLocationLimit && AnsiSize(folders) > kLocationLimit;
}

// What keeps the location from being stored, "" when nothing does. A character that the file cannot hold
// would turn into another one there.
std::wstring WriteProblem(const CncLocation& location) {
    const std::wstring value = TransmitRootValue(location);
    if (const auto foreign = FirstNotInAnsi(value))
        return Refusal(L"It cannot hold the character \"" + *foreign + L"\".");
    if (HasTooManyBytes(TrimBlanks(location.folders)))
        return Refusal(L"The file location is too long: up to " + std::to_wstring(kLocationLimit) +
                       L" characters are allowed, and some letters count as two or three.");
    try {
        WriteIniString(suite::kTransmitRoot, value);
    } catch (const win::AppError& error) {
        return error.Description();
    }
    return {};
}

} // namespace

void PageFtwLocation(frmWizard& form) {
    form.WriteHeading(L"Specify CNC file location");
    // clang-format off
    form.WriteInfo(
        L"You can let Varnel DNC access all files on your computer, or you can restrict access to one or more specific local or network folders.\r\n\r\n"
        L"To access all files on your computer, leave file location blank. To select an existing folder, type a folder name or click <b>Browse...</b>. To specify multiple folders, separate folders with a semicolon (;).\r\n\r\n"
        L"To create a default folder to store your files, click <b>Default folder...</b>.");
    // clang-format on
    InputColumn column(form);
    column.Width(layout::kTextWidth);
    column.Prompt(0, L"Enter CNC file &location");
    const std::wstring& folders = ftwSession.location.folders;
    column.TextBox(0, folders, static_cast<int>(std::max(kLocationLimit, folders.size()))).Focus();
    column.Links(kFtwLinks, form.PageNo);
    // Without its parent the folder would be made wherever the program happens to be.
    if (locations.CommonDocumentsPath.empty()) form.pool.lblHyperlink[kDefaultFolderLink].Visible(false);
}

// A kept location that was only looked at stays as it is.
void LeaveFtwLocation(frmWizard& form, Move move) {
    const std::wstring typed = form.pool.txtUserInput[0].Text();
    std::wstring& folders = ftwSession.location.folders;
    if (move != Move::Skip && typed != folders) folders = WithoutQuotes(typed);
}

// A server that is gone may take half a minute to say so.
void PrepareFtwConfirmLocation(frmWizard&) {
    ftwSession.folderExists = FolderExists(LocationPath(ftwSession.location.folders));
}

void PageFtwConfirmLocation(frmWizard& form) {
    // Hidden, but read when the page is left: another page has used the box for something else. It comes
    // first, so that it is right whatever becomes of the text.
    form.pool.chkUserInput[0].Checked(ftwSession.location.floppy);
    form.WriteHeading(L"Confirm CNC file location");
    // clang-format off
    form.WriteInfo(
        LocationBlock(ftwSession.location.folders, ftwSession.folderExists) + L"\r\n\r\n"
        L"Click <b>Back</b> to choose a different file location.\r\n\r\n"
        L"You can change the file location or add more folders later by clicking <b>Root folders</b> in the Varnel DNC File Manager's <b>Configure</b> menu.");
    // clang-format on
}

void LeaveFtwConfirmLocation(frmWizard& form, Move move) {
    if (move == Move::Next) SaveTransmitRoot(form);
    if (move != Move::Skip) ftwSession.location.floppy = form.pool.chkUserInput[0].Checked();
}

// Whatever becomes of the setting, the folder is wanted: it is made also when the write was refused.
void SaveTransmitRoot(frmWizard& form) {
    const std::wstring problem = WriteProblem(ftwSession.location);
    // The programs that the last pages start read it at once.
    FlushIni();
    if (!problem.empty()) form.TellOfRefusedWrite(problem);
    const std::wstring path = LocationPath(ftwSession.location.folders);
    if (!IsFolderList(path)) CreateDirectoryW(path.c_str(), nullptr); // one that exists is left as it is
}

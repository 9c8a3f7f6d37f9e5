#include "ftw/FtwLinks.h"

#include "app/modBrowseFolder.h"
#include "app/modLocations.h"
#include "ftw/FtwPages.h"
#include "wizard/frmWizard.h"

#include <shlobj.h>

namespace {

// Files are shown too, on purpose: a folder is easier to know by what is in it.
constexpr unsigned kBrowseFlags = BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE | BIF_BROWSEINCLUDEFILES;

void BrowseForLocation(frmWizard& form) {
    const std::wstring folder = BrowseForFolder(L"", form.Hwnd(), L"Select folder", kBrowseFlags);
    // Who cancels keeps what was typed.
    if (!folder.empty()) form.pool.txtUserInput[0].Text(folder);
}

} // namespace

void FtwHyperlink(frmWizard& form, std::int16_t index) {
    const LinkRow* link = FindLink(kFtwLinks, form.PageNo, index);
    if (!link || StartLink(*link)) return;
    if (link->action == LinkAction::Browse) BrowseForLocation(form);
    if (link->action == LinkAction::UseDefault)
        form.pool.txtUserInput[0].Text(locations.CommonDocumentsPath + suite::kCncFolder);
}

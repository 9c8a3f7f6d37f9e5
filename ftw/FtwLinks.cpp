// What the links of the First-Time Setup Wizard's pages start.

#include "app/Launch.h"
#include "app/modBrowseFolder.h"
#include "app/modLocations.h"
#include "ftw/Companions.h"
#include "ftw/FtwPages.h"
#include "wizard/frmWizard.h"

#include <shlobj.h>

#include <algorithm>
#include <iterator>

namespace {

constexpr std::int16_t kAnyIndex = -1;

enum class Action { Run, Open, Topic, Browse, UseDefault };

struct LinkRow {
    std::int16_t page;
    std::int16_t index;
    Action action;
    const wchar_t* file;
    const wchar_t* detail; // of a program its arguments, of a help file the topic
};

constexpr wchar_t kSetupReference[] = L"Setup Reference.pdf";
constexpr wchar_t kLinkCheck[] = L"LinkCheck.chm";

// The first row that fits decides.
// clang-format off
constexpr LinkRow kLinks[] = {
    { 7, 0,         Action::Open,       kTutorial,               L""},
    { 7, kAnyIndex, Action::Run,        kConfigProgram,          L" /Manager"},
    { 8, kAnyIndex, Action::Run,        L"VLinkMgr.exe",         L""},
    { 9, 0,         Action::Browse,     L"",                     L""},
    { 9, 1,         Action::UseDefault, L"",                     L""},
    {11, 0,         Action::Open,       kSetupReference,         L""},
    {13, 0,         Action::Run,        kConfigProgram,          L""},
    {13, 1,         Action::Open,       kSetupReference,         L""},
    {14, 0,         Action::Run,        L"VWizard.exe",          L" /NDW /SHIFT"},
    {14, 1,         Action::Run,        kConfigProgram,          L""},
    {14, 2,         Action::Open,       kSetupReference,         L""},
    {15, 0,         Action::Topic,      kLinkCheck,              L"Problem - Hibernation.htm"},
    {15, 1,         Action::Topic,      kLinkCheck,              L"Problem - USB-Serial.htm"},
    {15, 2,         Action::Topic,      kLinkCheck,              L"Problem_Index.htm"},
    {16, 0,         Action::Open,       L"Quick Tour Guide.pdf", L""},
    {17, 0,         Action::Open,       L"Operator Guide.pdf",   L""},
    {17, 1,         Action::Run,        L"VFileMgr.exe",         L""},
    {17, 2,         Action::Run,        kConfigProgram,          L" /GENERAL"},
};
// clang-format on

// Files are shown too, on purpose: a folder is easier to know by what is in it.
constexpr unsigned kBrowseFlags = BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE | BIF_BROWSEINCLUDEFILES;

void BrowseForLocation(frmWizard& form) {
    const std::wstring folder = BrowseForFolder(L"", form.Hwnd(), L"Select folder", kBrowseFlags);
    if (!folder.empty()) form.pool.txtUserInput[0].Text(folder);
}

} // namespace

void FtwHyperlink(frmWizard& form, std::int16_t index) {
    const auto row = std::find_if(std::begin(kLinks), std::end(kLinks), [&](const LinkRow& link) {
        return link.page == form.PageNo && (link.index == kAnyIndex || link.index == index);
    });
    if (row == std::end(kLinks)) return;
    switch (row->action) {
    case Action::Run:
        return RunProgram(row->file, row->detail);
    case Action::Open:
        return OpenDocument(row->file);
    case Action::Topic:
        return ShowHelpTopic(row->file, row->detail);
    case Action::Browse:
        return BrowseForLocation(form);
    case Action::UseDefault:
        return form.pool.txtUserInput[0].Text(locations.CommonDocumentsPath + suite::kCncFolder);
    }
}

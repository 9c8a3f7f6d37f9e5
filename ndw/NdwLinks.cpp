// What the links of the New Device Wizard's pages start.

#include "app/Launch.h"
#include "ndw/NdwPages.h"
#include "wizard/frmWizard.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr std::int16_t kAnyLink = -1;

enum class Action { Run, Open, RunWithName };

struct NdwLinkRow {
    std::int16_t page;
    std::int16_t index;
    Action action;
    const wchar_t* file;
};

// clang-format off
constexpr NdwLinkRow kLinks[] = {
    { 1, kAnyLink, Action::Open,        L"Varnel DNC Setup Reference.PDF"},
    { 2, 0,         Action::Open,        L"Linkcheck.chm"},
    { 2, 1,         Action::Open,        L"Varnel DNC Setup Reference.pdf"},
    { 2, 2,         Action::Run,         L"VTerminal.exe"},
    { 9, kAnyLink, Action::Open,        L"CharCodes.chm"},
    {10, kAnyLink, Action::Open,        L"CharCodes.chm"},
    {17, 0,         Action::RunWithName, L"VConfig.exe"},
    {17, 1,         Action::Open,        L"TechNotes.chm"},
};
// clang-format on

} // namespace

void NdwHyperlink(frmWizard& form, std::int16_t index) {
    const auto row = std::find_if(std::begin(kLinks), std::end(kLinks), [&](const NdwLinkRow& link) {
        return link.page == form.PageNo && (link.index == kAnyLink || link.index == index);
    });
    if (row == std::end(kLinks)) return;
    switch (row->action) {
    case Action::Run:
        return RunProgram(row->file);
    case Action::Open:
        return OpenDocument(row->file);
    case Action::RunWithName:
        return RunProgram(row->file, L" " + form.ConfigName);
    }
}

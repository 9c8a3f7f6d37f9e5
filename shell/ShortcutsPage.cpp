#include "shell/ShortcutsPage.h"

#include "shell/modShellLink.h"
#include "wizard/InputPool.h"
#include "wizard/frmWizard.h"

#include <iterator>

namespace {

using namespace win::literals;

constexpr win::Twips kBesideIcon = layout::kTextLeft + 600_tw;
constexpr win::Twips kAboveIcon = 165_tw; // the link begins higher than the icon

struct PlaceBox {
    const wchar_t* caption;
    win::Twips width;
};

// Bit i of the choice. Side by side: below each other they would not leave room for the rest of the page.
constexpr PlaceBox kPlaceBoxes[] = {
    {L"Desktop", 1400_tw},
    {L"Start Menu", 1600_tw},
    {L"Quick Launch Bar", 2200_tw},
};

void AddPlaceBoxes(InputColumn& column, std::int16_t choice) {
    const win::Twips top = column.Top();
    win::Twips left = layout::kTextLeft;
    for (std::size_t i = 0; i < std::size(kPlaceBoxes); ++i) {
        column.Left(left);
        column.Top(top);
        // Narrower than a column's boxes: a click beside a caption must not reach the box before it.
        column.Check(i, kPlaceBoxes[i].caption, (choice >> i & 1) != 0).Width(kPlaceBoxes[i].width);
        left += kPlaceBoxes[i].width;
    }
    column.Left(layout::kTextLeft);
}

} // namespace

void BuildShortcutsPage(frmWizard& form, std::int16_t choice, std::span<const LinkRow> links) {
    form.WriteHeading(L"Specify Application Shortcuts");
    // clang-format off
    form.WriteInfo(
        L"You can start Varnel DNC applications using shortcuts provided in the Windows Start menu.\r\n\r\n"
        L"You can create additional File Manager shortcuts by selecting the options below.\r\n\r\n"
        L"For even more shortcut options, click <b>Shortcut Manager</b>.");
    // clang-format on
    InputColumn column(form);
    AddPlaceBoxes(column, choice);
    column.Width(layout::kTextWidth);
    column.Prompt(0, L"The \"Quick Launch Bar\" is the group of icons next to the Windows Start button.", 2);
    // Beside the icon.
    column.Left(kBesideIcon);
    column.Width(layout::kTextRight - kBesideIcon);
    column.Top(layout::kAppIconTop - kAboveIcon);
    column.Links(links, form.PageNo);
    // clang-format off
    column.Prompt(1, L"Shortcut Manager lets you create and customize shortcuts for all Varnel application", 2); // sic
    // clang-format on
    ShowAppIcons(form, kFirstAppIcon);
}

// Back and Skip keep what was chosen, but change nothing on the disk.
std::int16_t LeaveShortcutsPage(frmWizard& form, Move move) {
    const std::int16_t choice = CheckedBits(form.pool, std::size(kPlaceBoxes));
    if (move == Move::Next) UpdateShortcuts(form.Hwnd(), choice);
    return choice;
}

#pragma once

// The page on which the user chooses where the File Manager gets a shortcut. The choice is the caller's:
// bit 0 desktop, bit 1 Start menu, bit 2 Quick Launch bar. So are the links, of which the page shows its own.

#include "wizard/Links.h"
#include "wizard/Page.h"

#include <cstdint>
#include <span>

void BuildShortcutsPage(frmWizard& form, std::int16_t choice, std::span<const LinkRow> links);

// The choice as the page's boxes show it; on the way forward the shortcuts are made and deleted at once.
std::int16_t LeaveShortcutsPage(frmWizard& form, Move move);

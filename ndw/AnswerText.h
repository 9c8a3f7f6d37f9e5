#pragma once

// Texts that the user types and that a configuration file stores one byte a character.

#include "wizard/Page.h"

#include <string>

namespace win {
class TextBox;
}
class frmWizard;

// Stores the box's text in `answer` when each of its characters is one byte. Otherwise nothing is stored: on
// Next the user is told which character it is and stays on the page, on Back the text is dropped.
void StoreFileText(frmWizard& form, win::TextBox& box, Move move, std::wstring& answer);

// Tells the user why the page cannot be left forward: the box's text is selected and has the focus.
void RefuseText(frmWizard& form, win::TextBox& box, const std::wstring& message);

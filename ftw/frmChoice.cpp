#include "ftw/frmChoice.h"

#include "win/Fonts.h"
#include "win/Screen.h"

#include <algorithm>

std::int16_t setupChoice = 0;

namespace {

using namespace win::literals;
using win::Twips;

constexpr Twips kMargin = 240_tw;
constexpr Twips kWidth = 5700_tw; // of text and options
constexpr Twips kLine = 210_tw;
constexpr Twips kOptionGap = 105_tw;
constexpr Twips kButtonWidth = 1095_tw;
constexpr Twips kButtonHeight = 375_tw;
constexpr Twips kOptionTop = kMargin + kLine * 3;

constexpr DWORD kStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
constexpr DWORD kExtendedStyle = WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT;

constexpr wchar_t kInstructions[] =
    L"If you are installing Varnel DNC for the first time, choose \"New Installation\" and "
    L"complete the First-Time Setup Wizard.";

struct OptionRow {
    const wchar_t* caption;
    int lines;
};

// clang-format off
constexpr OptionRow kOptions[] = {
    {L"New Installation. Continue First-Time Setup Wizard.", 1},
    {L"Move/Recover Installation. Load a set of previously-saved Varnel DNC configuration files.", 2},
    {L"Exit now.", 1},
};
// clang-format on

} // namespace

frmChoice::frmChoice() {
    Create({L"VarnelChoice", L"Varnel DNC Setup Wizard", kStyle, kExtendedStyle, nullptr},
           win::FontFor(win::FontUse::Body), 0, 0);
    Background(COLOR_BTNFACE);
    lblInstructions.Bind(*this, 100, L"Static", SS_LEFT | SS_NOPREFIX);
    for (std::size_t i = 0; i < optChoice.size(); ++i)
        optChoice[i].Bind(*this, 101 + static_cast<int>(i), L"Button",
                          BS_AUTORADIOBUTTON | BS_MULTILINE | BS_TOP | (i == 0 ? WS_GROUP | WS_TABSTOP : 0));
    cmdOK.Bind(*this, IDOK, L"Button", BS_PUSHBUTTON | BS_NOTIFY | WS_GROUP | WS_TABSTOP);
    cmdOK.onClick = [this] { cmdOK_Click(); };
    PlaceControls();
}

void frmChoice::PlaceControls() {
    lblInstructions.Place(kMargin, kMargin, kWidth, kLine * 3);
    lblInstructions.Text(kInstructions);
    lblInstructions.Visible(true);
    Twips top = kOptionTop;
    for (std::size_t i = 0; i < optChoice.size(); ++i) {
        optChoice[i].Place(kMargin, top, kWidth, kLine * kOptions[i].lines);
        optChoice[i].Text(kOptions[i].caption);
        optChoice[i].Visible(true);
        top = optChoice[i].Bottom() + kOptionGap;
    }
    cmdOK.Place(kMargin + kWidth - kButtonWidth, top + kMargin - kOptionGap, kButtonWidth, kButtonHeight);
    cmdOK.Text(L"OK");
    cmdOK.Visible(true);
    DefaultButton(cmdOK);
    RECT window{0, 0, win::Px(kWidth + kMargin * 2), win::Px(cmdOK.Bottom() + kMargin)};
    AdjustWindowRectEx(&window, kStyle, FALSE, kExtendedStyle);
    const LONG width = window.right - window.left;
    const LONG height = window.bottom - window.top;
    const RECT area = win::WorkArea();
    SetWindowPos(Hwnd(), nullptr, (area.left + area.right - width) / 2, (area.top + area.bottom - height) / 2,
                 width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

win::Button& frmChoice::Form_Load() {
    win::Button* selected = &cmdOK; // an option that gets the focus becomes the selected one
    for (std::size_t i = 0; i < optChoice.size(); ++i) {
        const bool chosen = setupChoice == static_cast<std::int16_t>(i);
        optChoice[i].Checked(chosen);
        if (chosen) selected = &optChoice[i];
    }
    return *selected;
}

// None is selected only when the dialog began with none: the choice before it stays.
void frmChoice::Form_Unload() {
    const auto selected = std::find_if(optChoice.begin(), optChoice.end(),
                                       [](win::Button& option) { return option.Checked(); });
    if (selected != optChoice.end()) setupChoice = static_cast<std::int16_t>(selected - optChoice.begin());
}

void ShowChoice(HWND owner) {
    frmChoice form;
    form.ShowModal(owner, form.Form_Load());
    form.Form_Unload();
}

#include "wizard/frmMessage.h"

#include "app/modLocations.h"
#include "win/Screen.h"
#include "wizard/Markup.h"

#include <optional>

namespace {

using namespace win::literals;

constexpr wchar_t kApplicationTitle[] = L"VWizard";
constexpr win::Twips kTextInset = 120_tw; // half of what the text is smaller than its panel

enum MessageIds { kFirstButtonId = 100, kTextId = 110, kPanelId };

struct ButtonRow {
    const wchar_t* caption;
    std::int16_t result;
};

struct ButtonSet {
    std::size_t count;
    ButtonRow rows[kMessageButtons];
};

// clang-format off
constexpr std::array<ButtonSet, 6> kButtonSets = {{
    {1, {{L"&OK",    IDOK},    {L"",        0},        {L"",        0}       }},
    {2, {{L"&OK",    IDOK},    {L"&Cancel", IDCANCEL}, {L"",        0}       }},
    {3, {{L"&Abort", IDABORT}, {L"&Retry",  IDRETRY},  {L"&Ignore", IDIGNORE}}},
    {3, {{L"&Yes",   IDYES},   {L"&No",     IDNO},     {L"&Cancel", IDCANCEL}}},
    {2, {{L"&Yes",   IDYES},   {L"&No",     IDNO},     {L"",        0}       }},
    {2, {{L"&Retry", IDRETRY}, {L"&Cancel", IDCANCEL}, {L"",        0}       }},
}};
// clang-format on

const ButtonSet& SetOf(std::int16_t buttons) { return kButtonSets.at(static_cast<std::size_t>(buttons)); }

PixelArea AreaOf(const RECT& rectangle) {
    return {static_cast<int>(rectangle.left), static_cast<int>(rectangle.top),
            static_cast<int>(rectangle.right), static_cast<int>(rectangle.bottom)};
}

std::optional<PixelArea> AreaOf(HWND window) {
    RECT rectangle{};
    if (!window || !GetWindowRect(window, &rectangle)) return std::nullopt;
    return AreaOf(rectangle);
}

} // namespace

frmMessage::frmMessage() {
    win::LoadRichText();
    MakeWindow(L"VarnelMessage", L"");
    for (std::size_t i = 0; i < cmdButton.size(); ++i) {
        cmdButton[i].Bind(*this, kFirstButtonId + static_cast<int>(i), i == 0 ? WS_GROUP : 0);
        cmdButton[i].onClick = [this, i] { cmdButton_Click(i); };
    }
    txtMessage.Bind(*this, kTextId, WS_VSCROLL);
    picMessage.Bind(*this, kPanelId, SS_OWNERDRAW | WS_CLIPSIBLINGS);
}

std::int16_t frmMessage::Show(const std::wstring& message, std::int16_t buttons, std::int16_t size,
                              const std::wstring& title, HWND owner) {
    // Asked anew each time: a task bar may have been moved.
    const MessageScreen screen{AreaOf(win::WorkArea()), win::Dpi(), GetSystemMetrics(SM_CYCAPTION)};
    PlaceControls(LayOutMessage(size, SetOf(buttons).count, screen, AreaOf(owner)));
    SetButtons(buttons);
    txtMessage.Text(message); // whole, tags and all: the passes work on the control
    FormatText(txtMessage);
    txtMessage.ScrollToTop();
    SetWindowTextW(Hwnd(), title.empty() ? kApplicationTitle : (locations.ExeName + L" - " + title).c_str());
    ShowModal(owner, cmdButton[0]);
    return result_;
}

void frmMessage::PlaceControls(const MessageLayout& layout) {
    SetWindowPos(Hwnd(), nullptr, win::Px(layout.left), win::Px(layout.top), win::Px(layout.width),
                 win::Px(layout.height), SWP_NOZORDER | SWP_NOACTIVATE);
    for (std::size_t i = 0; i < cmdButton.size(); ++i)
        cmdButton[i].Place(layout.buttonLeft[i], layout.buttonTop, kMessageButtonWidth, kButtonHeight);
    txtMessage.Place(kTextInset, kTextInset, layout.textWidth, layout.textHeight);
    picMessage.Place(0_tw, 0_tw, layout.frameWidth, layout.frameHeight);
    panelHeight_ = layout.frameHeight;
}

void frmMessage::SetButtons(std::int16_t buttons) {
    const ButtonSet& set = SetOf(buttons);
    for (std::size_t i = 0; i < set.count; ++i) {
        cmdButton[i].Text(set.rows[i].caption);
        cmdButton[i].Visible(true);
        results_[i] = set.rows[i].result;
    }
    txtMessage.Visible(true);
    picMessage.Visible(true);
    DefaultButton(cmdButton[0]);
}

void frmMessage::FormatText(win::RichText& message) {
    FormatBold(message);
    FormatBreaks(message);
    FormatItalic(message);
    FormatIndent(message);
    FormatBullet(message);
}

void frmMessage::FormatBold(win::RichText& message) { RunPass(message, kBoldPass); }

// The size read first is not used, here and in two passes below: it belongs to the accesses to the control
// that the suite's renderers have in common.
void frmMessage::FormatBreaks(win::RichText& message) {
    constexpr std::wstring_view kBreak = L"<br>";
    constexpr std::int16_t kBreakFontSize = 3;
    static_cast<void>(message.SelFontSize());
    std::int16_t start = 0;
    while (const auto position = FindTag(message.Text(), kBreak, start)) {
        start = *position;
        message.SelStart(start);
        message.SelLength(static_cast<std::int32_t>(kBreak.size()));
        message.SelFontSize(kBreakFontSize);
        message.SelText(L"\r\n");
        message.SelLength(0);
    }
}

void frmMessage::FormatItalic(win::RichText& message) { RunPass(message, kItalicPass); }

void frmMessage::FormatIndent(win::RichText& message) {
    static_cast<void>(message.SelFontSize());
    RunPass(message, kIndentPass);
}

void frmMessage::FormatBullet(win::RichText& message) {
    static_cast<void>(message.SelFontSize());
    RunPass(message, kMessageBulletPass);
}

void frmMessage::cmdButton_Click(std::size_t index) {
    result_ = results_.at(index);
    Hide();
}

void frmMessage::Form_QueryUnload() {
    result_ = 0;
    Hide();
}

LRESULT frmMessage::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_CLOSE) {
        Form_QueryUnload();
        return 0;
    }
    const LRESULT result = Form::OnMessage(message, wParam, lParam);
    if (message == WM_ERASEBKGND) { // the panel goes through to both edges of the window
        RECT panel{};
        GetClientRect(Hwnd(), &panel);
        panel.bottom = win::Px(panelHeight_);
        FillRect(reinterpret_cast<HDC>(wParam), &panel, GetSysColorBrush(COLOR_WINDOW));
    }
    return result;
}

// The system's own white rectangle is of another color in high-contrast schemes.
void frmMessage::OnDrawItem(win::Control&, const DRAWITEMSTRUCT& item) {
    FillRect(item.hDC, &item.rcItem, GetSysColorBrush(COLOR_WINDOW));
}

std::int16_t ShowMessage(const std::wstring& message, std::int16_t buttons, std::int16_t size,
                         const std::wstring& title, HWND owner) {
    frmMessage form;
    return form.Show(message, buttons, size, title, owner);
}

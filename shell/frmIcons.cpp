#include "shell/frmIcons.h"

#include "app/modLocations.h"
#include "win/Fonts.h"
#include "win/Screen.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

using namespace win::literals;
using win::Twips;

enum IconFormIds { kSlotId = 101, kScrollId = 110, kNameId, kCountId, kStripId };

constexpr Twips kMargin = 180_tw;
constexpr Twips kSlot = 660_tw;     // from slot to slot
constexpr Twips kIconSide = 480_tw; // a slot's picture
constexpr Twips kEdge = 30_tw;      // of the strip
constexpr Twips kStripWidth = kSlot * kIconSlots + kEdge * 2;
constexpr Twips kFrame = 30_tw; // thickness of the selection frame
constexpr Twips kGap = 90_tw;
constexpr Twips kLabelHeight = 210_tw;
constexpr Twips kCountWidth = 1200_tw;
constexpr Twips kClientWidth = kStripWidth + kMargin * 2;

// A window that takes no input for as long as this lives.
class Disabled {
  public:
    explicit Disabled(HWND window) : window_(window) {
        if (window_) EnableWindow(window_, FALSE);
    }
    Disabled(const Disabled&) = delete;
    Disabled& operator=(const Disabled&) = delete;
    ~Disabled() {
        if (window_) EnableWindow(window_, TRUE);
    }

  private:
    HWND window_;
};

// A name as a caption: "&" is no access key.
std::wstring AsCaption(const std::wstring& name) {
    std::wstring caption;
    for (const wchar_t c : name)
        caption.append(c == L'&' ? 2 : 1, c);
    return caption;
}

// Keys that the form has a use for, wherever the focus is.
bool ChoosesIcon(WPARAM key) {
    constexpr WPARAM kKeys[] = {VK_LEFT, VK_RIGHT, VK_HOME, VK_END, VK_PRIOR, VK_NEXT};
    return std::find(std::begin(kKeys), std::end(kKeys), key) != std::end(kKeys);
}

wchar_t UpperCase(wchar_t c) {
    CharUpperBuffW(&c, 1);
    return c;
}

UINT WheelSetting(UINT parameter) {
    UINT value = 3; // as the system comes
    SystemParametersInfoW(parameter, 0, &value, 0);
    return value;
}

void DrawFrame(HDC dc, RECT area) {
    for (int i = win::Px(kFrame); i > 0; --i) {
        FrameRect(dc, &area, GetSysColorBrush(COLOR_HIGHLIGHT));
        InflateRect(&area, -1, -1);
    }
}

} // namespace

// Without DLGC_WANTCHARS a letter would be taken for an access key.
bool PickerButton::OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    if (message == WM_GETDLGCODE) {
        result = SystemProcedure(message, wParam, lParam) | DLGC_WANTARROWS | DLGC_WANTCHARS;
        return true;
    }
    if (!(message == WM_KEYDOWN && ChoosesIcon(wParam)) && message != WM_CHAR) return false;
    result = SendMessageW(GetParent(Handle()), message, wParam, lParam);
    return true;
}

frmIcons::frmIcons() {
    MakeWindow(L"VarnelIcons", L"Select Icon");
    BindControls();
    cmdOK.onClick = [this] { cmdOK_Click(); };
    cmdCancel.onClick = [this] { cmdCancel_Click(); };
    for (std::int16_t i = 0; i < kIconSlots; ++i)
        imgIcon[static_cast<std::size_t>(i)].onClick = [this, i] {
            imgIcon_Click(static_cast<std::int16_t>(i + 1));
        };
}

// The scroll bar is no tab stop: on it the arrow keys would scroll instead of choosing.
void frmIcons::BindControls() {
    for (std::size_t i = 0; i < imgIcon.size(); ++i)
        imgIcon[i].Bind(*this, kSlotId + static_cast<int>(i), BS_OWNERDRAW | (i == 0 ? WS_GROUP : 0));
    hScrollIcons.Bind(*this, kScrollId, SBS_HORZ | WS_GROUP);
    lblIconName.Bind(*this, kNameId, SS_LEFT | SS_NOPREFIX | SS_ENDELLIPSIS);
    lblnIcons.Bind(*this, kCountId, SS_RIGHT | SS_NOPREFIX);
    constexpr DWORD kPushButton = BS_PUSHBUTTON | WS_GROUP | WS_TABSTOP;
    cmdOK.Bind(*this, IDOK, kPushButton);
    cmdCancel.Bind(*this, IDCANCEL, kPushButton);
    picIcons.Bind(*this, kStripId, SS_OWNERDRAW | WS_CLIPSIBLINGS, WS_EX_CLIENTEDGE);
}

void frmIcons::OpenForm(const std::wstring& folder, HWND owner) {
    result_.clear();
    folder_ = folder;
    const std::vector<std::wstring> keys = IconKeys(folder);
    {
        const Disabled meanwhile(owner); // what is pumped must not open the picker twice
        win::PumpPendingMessages();
    }
    icons_.emplace(folder, keys, win::Px(kIconSide));
    if (icons_->Count() == 0) return;
    LayOut();
    ShowControls();
    // Only a window that is owned stays in front of its owner.
    SetWindowLongPtrW(Hwnd(), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner));
    Center(owner);
    Show(OpenStrip(icons_->Count(), DefaultPosition(icons_->Keys())));
    ShowModal(owner, imgIcon[static_cast<std::size_t>(*SelectedSlot(strip_) - 1)]);
}

void frmIcons::LayOut() {
    // The bar is as high as the user has made those of all programs, so the window is laid out around it.
    const Twips barHeight = NeedsScrollBar(icons_->Count()) ? win::Tw(GetSystemMetrics(SM_CYHSCROLL)) : 0_tw;
    const Twips stripHeight = kSlot + barHeight + kEdge * 2;
    const Twips labelTop = kMargin + stripHeight + kGap;
    const Twips buttonTop = labelTop + kLabelHeight + kMargin;
    const Twips right = kMargin + kStripWidth;
    for (int i = 0; i < kIconSlots; ++i)
        imgIcon[static_cast<std::size_t>(i)].Place(kMargin + kEdge + kSlot * i, kMargin + kEdge, kSlot,
                                                   kSlot);
    hScrollIcons.Place(kMargin + kEdge, kMargin + kEdge + kSlot, kSlot * kIconSlots, barHeight);
    lblIconName.Place(kMargin, labelTop, kStripWidth - kCountWidth - kGap, kLabelHeight);
    lblnIcons.Place(right - kCountWidth, labelTop, kCountWidth, kLabelHeight);
    cmdOK.Place(right - kButtonWidth * 2 - kGap, buttonTop, kButtonWidth, kButtonHeight);
    cmdCancel.Place(right - kButtonWidth, buttonTop, kButtonWidth, kButtonHeight);
    picIcons.Place(kMargin, kMargin, kStripWidth, stripHeight);
    ClientSize(kClientWidth, buttonTop + kButtonHeight + kMargin);
}

// The strip comes last, so that it lies behind its slots.
void frmIcons::ShowControls() {
    for (PickerButton& slot : imgIcon)
        slot.Visible(true);
    // Fewer icons than slots leave the other slots empty; a bar would have nowhere to go.
    hScrollIcons.Visible(NeedsScrollBar(icons_->Count()));
    win::Control* const others[] = {&lblIconName, &lblnIcons, &cmdOK, &cmdCancel, &picIcons};
    for (win::Control* control : others)
        control->Visible(true);
    cmdOK.Text(L"OK");
    cmdCancel.Text(L"Cancel");
    DefaultButton(cmdOK);
}

void frmIcons::Show(const IconStrip& strip) {
    strip_ = strip;
    // All six slots, whatever has changed: they are drawn sooner than a difference would be found.
    UpdateIcons();
    lblnIcons.Text(std::to_wstring(strip_.count) + L" icons");
    lblIconName.Text(icons_->Key(strip_.selected));
    ShowScrollBar();
    MoveFocus();
}

void frmIcons::UpdateIcons() {
    for (std::int16_t slot = 1; slot <= kIconSlots; ++slot) {
        PickerButton& image = imgIcon[static_cast<std::size_t>(slot - 1)];
        const auto position = PositionInSlot(strip_, slot);
        image.Text(position ? AsCaption(icons_->Key(*position)) : std::wstring());
        image.Repaint();
    }
}

void frmIcons::ShowScrollBar() {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMin = 1;
    info.nMax = strip_.count;
    info.nPage = kIconSlots; // the last place of the thumb is ScrollMaximum()
    info.nPos = strip_.scroll;
    if (NeedsScrollBar(strip_.count)) SetScrollInfo(hScrollIcons.Handle(), SB_CTL, &info, TRUE);
}

// The strip is one tab stop: the slot of the chosen icon, while that is in sight.
void frmIcons::MoveFocus() {
    const HWND focus = GetFocus();
    const auto selected = SelectedSlot(strip_);
    bool inStrip = false;
    for (std::int16_t slot = 1; slot <= kIconSlots; ++slot) {
        const HWND image = imgIcon[static_cast<std::size_t>(slot - 1)].Handle();
        const LONG style = GetWindowLongW(image, GWL_STYLE) & ~WS_TABSTOP;
        SetWindowLongW(image, GWL_STYLE, slot == selected.value_or(1) ? style | WS_TABSTOP : style);
        inStrip = inStrip || image == focus;
    }
    if (inStrip && selected) imgIcon[static_cast<std::size_t>(*selected - 1)].Focus();
}

void frmIcons::imgIcon_Click(std::int16_t slot) { Show(ClickSlot(strip_, slot)); }

// The first half of a double click has come as a click already; once more changes nothing.
void frmIcons::imgIcon_DblClick(std::int16_t slot) {
    imgIcon_Click(slot);
    cmdOK_Click();
}

void frmIcons::hScrollIcons_Change(WORD code) {
    // clang-format off
    switch (code) {
    case SB_LINELEFT:  return Show(Scroll(strip_, ScrollStep::LineLeft));
    case SB_LINERIGHT: return Show(Scroll(strip_, ScrollStep::LineRight));
    case SB_PAGELEFT:  return Show(Scroll(strip_, ScrollStep::PageLeft));
    case SB_PAGERIGHT: return Show(Scroll(strip_, ScrollStep::PageRight));
    case SB_LEFT:      return Show(Scroll(strip_, ScrollStep::First));
    case SB_RIGHT:     return Show(Scroll(strip_, ScrollStep::Last));
    case SB_THUMBTRACK: break;
    // SB_THUMBPOSITION, SB_ENDSCROLL: where the thumb is let go has been shown already.
    default: return;
    }
    // clang-format on
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_TRACKPOS; // the message itself holds 16 bits
    GetScrollInfo(hScrollIcons.Handle(), SB_CTL, &info);
    Show(ScrollTo(strip_, info.nTrackPos));
}

void frmIcons::Form_KeyDown(WPARAM key) {
    // clang-format off
    switch (key) {
    case VK_LEFT:  return Show(MoveLeft(strip_));
    case VK_RIGHT: return Show(MoveRight(strip_));
    case VK_HOME:  return Show(Choose(strip_, 1));
    case VK_END:   return Show(Choose(strip_, strip_.count));
    // A page is what the strip shows.
    case VK_PRIOR: return Show(Choose(strip_, strip_.selected - kIconSlots));
    case VK_NEXT:  return Show(Choose(strip_, strip_.selected + kIconSlots));
    default: return;
    }
    // clang-format on
}

// A blank is no letter: it presses the button that has the focus.
void frmIcons::Form_KeyPress(wchar_t letter) {
    if (letter <= L' ') return;
    typed_.Add(letter, static_cast<std::uint32_t>(GetMessageTime()));
    const auto found = FindByLetters(icons_->Keys(), strip_.selected, typed_.letters, UpperCase);
    if (found) Show(Choose(strip_, *found));
}

void frmIcons::Form_MouseWheel(int turned, UINT iconsPerNotch) {
    const int icons = WheelIcons(wheelRest_, turned, iconsPerNotch);
    if (icons != 0) Show(ScrollTo(strip_, strip_.scroll + icons));
}

// The pictures lie on the ground of the scheme in which they were read. While a file cannot be read again,
// the old ones stay.
void frmIcons::Form_SysColorChange() {
    if (!icons_) return;
    IconList fresh(folder_, icons_->Keys(), win::Px(kIconSide));
    if (fresh.Count() == icons_->Count()) icons_ = std::move(fresh);
    RedrawWindow(Hwnd(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void frmIcons::cmdOK_Click() {
    // The extension as configurations hold it, however the file spells its own.
    result_ = icons_->Key(strip_.selected) + L".ico";
    Hide();
}

void frmIcons::cmdCancel_Click() { Hide(); }

LRESULT frmIcons::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_KEYDOWN:
        Form_KeyDown(wParam);
        return 0;
    case WM_CHAR:
        Form_KeyPress(static_cast<wchar_t>(wParam));
        return 0;
    case WM_MOUSEWHEEL:
        Form_MouseWheel(GET_WHEEL_DELTA_WPARAM(wParam), WheelSetting(SPI_GETWHEELSCROLLLINES));
        return 0;
    case WM_MOUSEHWHEEL: // to the right is above 0
        Form_MouseWheel(-GET_WHEEL_DELTA_WPARAM(wParam), WheelSetting(SPI_GETWHEELSCROLLCHARS));
        return 0;
    case WM_SYSCOLORCHANGE:
        // The pictures are this form's; the controls are told by the base.
        Form_SysColorChange();
        break;
    case WM_HSCROLL:
        hScrollIcons_Change(LOWORD(wParam));
        return 0;
    case WM_COMMAND: {
        // Only slots know a double click. Of the buttons its second half is dropped by the form.
        const int slot = LOWORD(wParam) - kSlotId + 1;
        if (HIWORD(wParam) != BN_DOUBLECLICKED || slot < 1 || slot > kIconSlots) break;
        imgIcon_DblClick(static_cast<std::int16_t>(slot));
        return 0;
    }
    default:
        break;
    }
    return Form::OnMessage(message, wParam, lParam);
}

void frmIcons::OnDrawItem(win::Control& control, const DRAWITEMSTRUCT& item) {
    // The strip too: the system's own white rectangle is of another color in high-contrast schemes.
    FillRect(item.hDC, &item.rcItem, GetSysColorBrush(COLOR_WINDOW));
    if (&control == &picIcons) return;
    const auto slot = static_cast<std::int16_t>(control.Id() - kSlotId + 1);
    const auto position = PositionInSlot(strip_, slot);
    if (!position) return;
    const int inset = (item.rcItem.right - item.rcItem.left - win::Px(kIconSide)) / 2;
    icons_->Draw(*position, item.hDC, item.rcItem.left + inset, item.rcItem.top + inset);
    if (*position != strip_.selected) return;
    RECT area = item.rcItem;
    DrawFrame(item.hDC, area);
    InflateRect(&area, -win::Px(kFrame) - 1, -win::Px(kFrame) - 1);
    if ((item.itemState & (ODS_FOCUS | ODS_NOFOCUSRECT)) == ODS_FOCUS) DrawFocusRect(item.hDC, &area);
}

// A picker for each configuration: the folder is read as it is then, and nothing stays in memory.
std::wstring NdwPickIcon(HWND owner) {
    frmIcons form;
    form.OpenForm(IconFolder(), owner);
    return form.Result();
}

#include "wizard/frmWizard.h"

#include "app/Registry.h"
#include "app/Settings.h"
#include "app/SingleInstance.h"
#include "app/Suite.h"
#include "app/modLocations.h"
#include "res/Artwork.h"
#include "win/Arrangement.h"
#include "win/Fonts.h"
#include "win/Screen.h"
#include "wizard/FormLayout.h"
#include "wizard/FormPlace.h"
#include "wizard/PermissionPage.h"

#include <cstdlib>
#include <optional>

namespace {

using namespace win::literals;

enum FrameIds {
    kNextId = 100,
    kBackId,
    kSkipId,
    kHeaderId = 120,
    kMainId,
    kLogoId,
    kScreenLogoId,
    kVarnelId,
    kCncIconId,
    kStepId,
    kKeyId,
    kCustInfoId,
    kInfoId,
    kAppIconId = 140,
};

constexpr const wchar_t* kAppNames[] = {L"File Manager", L"Link Manager", L"Configuration", L"Terminal",
                                        L"Navigator"};

void FillArea(HDC dc, win::Twips left, win::Twips top, win::Twips right, win::Twips bottom, HBRUSH brush) {
    const RECT area{win::Px(left), win::Px(top), win::Px(right), win::Px(bottom)};
    FillRect(dc, &area, brush);
}

int Luminance(COLORREF color) {
    return (299 * GetRValue(color) + 587 * GetGValue(color) + 114 * GetBValue(color)) / 1000;
}

// The system's color of links, or of text where a scheme gives links one that the background swallows.
COLORREF LinkColor() {
    constexpr int kReadable = 90; // difference of luminance
    const COLORREF link = GetSysColor(COLOR_HOTLIGHT);
    const int ground = Luminance(GetSysColor(COLOR_WINDOW));
    if (std::abs(Luminance(link) - ground) >= kReadable) return link;
    constexpr COLORREF kUsualLink = RGB(0x00, 0x66, 0xCC);
    return std::abs(Luminance(kUsualLink) - ground) >= kReadable ? kUsualLink : GetSysColor(COLOR_WINDOWTEXT);
}

} // namespace

frmWizard::frmWizard(const PageBook& book, WizardStart start)
    : ConfigAllowed(start.configAllowed), book_(book), start_(std::move(start)),
      columnBrush_(CreateSolidBrush(kColumnColor)) {
    win::LoadRichText();
    const win::FormLook look{L"VWizardForm", L"", WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_CLIPCHILDREN,
                             WS_EX_CONTROLPARENT, nullptr};
    const int captionHeight = GetSystemMetrics(SM_CYCAPTION);
    Create(look, win::FontFor(win::FontUse::Body), win::Px(layout::kWindowWidth),
           win::Px(layout::kWindowHeight) + captionHeight);
    BindFrame();
    BindPictures();
    pool.Bind(*this);
    BindButtons();

    cmdNext.onClick = [this] { cmdNext_Click(); };
    cmdBack.onClick = [this] { cmdBack_Click(); };
    cmdSkip.onClick = [this] { cmdSkip_Click(); };
    cmdCancel.onClick = [this] { cmdCancel_Click(); };
    for (std::size_t i = 0; i < pool.lblHyperlink.size(); ++i)
        pool.lblHyperlink[i].onClick = [this, i] { lblHyperlink_Click(static_cast<std::int16_t>(i)); };
}

void frmWizard::BindFrame() {
    picHeader.Bind(*this, kHeaderId, SS_OWNERDRAW | SS_NOTIFY);
    const win::Twips headingRight = book_.hasSteps ? layout::kStepLeft : layout::kTextRight;
    picHeader.Place(layout::kColumnWidth, 0_tw, headingRight - layout::kColumnWidth,
                    layout::kHeaderHeight - layout::kLineWidth);
    lblStep.Bind(*this, kStepId, SS_RIGHT | SS_NOPREFIX);
    lblStep.Place(layout::kStepLeft, 210_tw, layout::kStepWidth, layout::kPromptHeight);
    txtInfo.Bind(*this, kInfoId, 0);
    txtInfo.Place(layout::kTextLeft - layout::kTextInset, layout::kTextTop, layout::kTextWidth,
                  layout::kTextHeight);
    picMain.Bind(*this, kMainId);
    picMain.Place(0_tw, layout::kMainTop, layout::kWindowWidth, layout::kMainHeight);
    lblKey.Bind(*this, kKeyId);
    lblCustInfo.Bind(*this, kCustInfoId);
    // The first windows made are the first in reading and tab order; the heading names the text behind it.
    if (book_.hasSteps) lblStep.Handle();
    picHeader.Handle();
    txtInfo.Handle();
}

void frmWizard::BindPictures() {
    struct Place {
        win::PictureArea* picture;
        int id;
        const wchar_t* name;
        win::Twips left, top, width, height;
    };
    const Place places[] = {
        {&picLogo, kLogoId, L"Varnel DNC", 0_tw, 0_tw, layout::kColumnWidth, layout::kHeaderHeight},
        {&picScreenLogo, kScreenLogoId, L"Computer", 180_tw, 0_tw, 1080_tw, 1080_tw},
        {&picCncIcon, kCncIconId, L"Machine tool", 180_tw, 0_tw, 1080_tw, 1080_tw},
        {&picVarnel, kVarnelId, L"Varnel", 120_tw, layout::kRowTop - 480_tw, 1200_tw, 360_tw},
    };
    for (const Place& place : places) {
        place.picture->Bind(*this, place.id, SS_OWNERDRAW);
        place.picture->Name(place.name);
        place.picture->Place(place.left, place.top, place.width, place.height);
    }
    for (std::size_t i = 0; i < picAppIcon.size(); ++i) {
        picAppIcon[i].Bind(*this, kAppIconId + static_cast<int>(i), SS_OWNERDRAW | SS_NOTIFY);
        picAppIcon[i].Name(kAppNames[i]);
        picAppIcon[i].ToolTip(kAppNames[i]);
        picAppIcon[i].Icon(IDI_APP_ICON + static_cast<int>(i));
    }
}

void frmWizard::BindButtons() {
    struct Row {
        win::PushButton* button;
        int id;
        const wchar_t* caption;
    };
    const Row rows[] = {
        {&cmdSkip, kSkipId, L"&Skip"},
        {&cmdBack, kBackId, kBackCaption},
        {&cmdNext, kNextId, kNextCaption},
        {&cmdCancel, IDCANCEL, L"Cancel"}, // Esc presses the control of this id
    };
    int fromRight = static_cast<int>(std::size(rows));
    for (const Row& row : rows) {
        row.button->Bind(*this, row.id);
        row.button->Place(layout::ButtonLeft(--fromRight), layout::kButtonTop, layout::kButtonWidth,
                          layout::kButtonHeight);
        row.button->Text(row.caption);
        const bool isNeverShown = row.button == &cmdSkip && !book_.hasSkip;
        if (!isNeverShown) row.button->Handle(); // the order in which windows are made is the tab order
    }
    cmdSkip.ToolTip(L"Go on without this step");
    DefaultButton(cmdNext);
}

void frmWizard::Form_Load() {
    isLoading_ = true;
    SetCurrentDirectoryW(locations.AppPath.c_str()); // companions inherit it
    CleanRunOnce();
    pool.fraContainer.Top(picMain.Top() + 1320_tw);
    SetWindowTextW(Hwnd(), start_.title.c_str());
    picCncIcon.Top(600_tw);
    picScreenLogo.Top(picMain.Top() + 720_tw);
    (this->*book_.picture).Visible(true);
    picVarnel.Visible(true);
    picLogo.Visible(true);
    // Before the window comes up: what is asked for here is shown on the first page.
    book_.load(*this);
    ShowModeIcon();
    pool.ClearPage(txtInfo);
    PageNo = 1;
    MoveToItsPlace();

    picHeader.Visible(true);
    txtInfo.Text(L"Initializing...");
    txtInfo.Visible(true);
    ShowWindow(Hwnd(), SW_SHOWNORMAL);
    win::PumpPendingMessages(); // painted before anything that may take its time: the user sees it at once

    WriteStartUpKeys();
    ConfirmExit = true;
    ShowFirstPage();
    UpdateWindow(Hwnd());
    win::DropPendingKeys(); // pressed before there was a page to press them for
    isLoading_ = false;
}

void frmWizard::ShowFirstPage() {
    const win::Arrangement arrangement(*this, PageArea());
    for (std::size_t i = 0; i < picAppIcon.size(); ++i)
        picAppIcon[i].Place(1560_tw + 960_tw * static_cast<int>(i), layout::kAppIconTop, 480_tw, 480_tw);
    cmdSkip.Visible(book_.hasSkip);
    cmdBack.Visible(true);
    cmdNext.Visible(true);
    cmdCancel.Visible(true);
    if (ConfigAllowed)
        ShowPage();
    else
        PageConfigDisabled(*this);
}

void frmWizard::ShowModeIcon() {
    const int icon = imgIconDevice[book_.icon];
    largeIcon_.emplace(icon, GetSystemMetrics(SM_CXICON));
    smallIcon_.emplace(icon, GetSystemMetrics(SM_CXSMICON));
    // In this order: a large icon by itself would have the system shrink it to a small one.
    SendMessageW(Hwnd(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(smallIcon_->Get()));
    SendMessageW(Hwnd(), WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(largeIcon_->Get()));
}

// The installer makes the wizard run once at the next log-on; a start by hand takes that back.
void frmWizard::CleanRunOnce() {
    if (!ReadRegString(HKEY_LOCAL_MACHINE, suite::kRunOnceKey, suite::kRunOnceValue, L"").empty())
        DeleteRegValue(HKEY_LOCAL_MACHINE, suite::kRunOnceKey, suite::kRunOnceValue);
}

void frmWizard::MoveToItsPlace() {
    RECT window{};
    GetWindowRect(Hwnd(), &window);
    const PixelSize size{window.right - window.left, window.bottom - window.top};
    const PixelSize screen{GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    const RECT free = win::WorkArea();
    const PixelPoint place =
        PlaceForm(size, screen, {free.left, free.top, free.right, free.bottom}, start_.shiftWindow);
    SetWindowPos(Hwnd(), nullptr, place.left, place.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// Whatever they held before, on every start of either wizard. All three are tried, one failure is told.
void frmWizard::WriteStartUpKeys() {
    std::optional<win::AppError> refused;
    for (const wchar_t* key : suite::kStartUpKeys) {
        try {
            WriteIniString(key, L"1");
        } catch (const win::AppError& error) {
            refused = error;
        }
    }
    if (refused) win::ShowMessageBox(Hwnd(), refused->Description(), MB_OK | MB_ICONEXCLAMATION);
}

RECT frmWizard::PageArea() const {
    RECT area{};
    GetClientRect(Hwnd(), &area);
    area.left = win::Px(layout::kColumnWidth);
    return area;
}

LRESULT frmWizard::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_ERASEBKGND: // three grounds in one window, none of which is a control
        PaintBackground(reinterpret_cast<HDC>(wParam));
        return TRUE;
    case WM_ACTIVATE:
        if (LOWORD(wParam) != WA_INACTIVE) Form_Activate();
        [[fallthrough]];
    case WM_SETFOCUS: // while loading the text would get the focus, and draw its caret at every step
        if (!isLoading_) break;
        if (message == WM_ACTIVATE && LOWORD(wParam) != WA_INACTIVE) SetFocus(Hwnd());
        return 0;
    case WM_COMMAND: // keys held down since before the window came up
        if (isLoading_) return 0;
        break;
    case WM_CLOSE:
        Unload();
        return 0;
    case WM_QUERYENDSESSION: // an update that only closes the program is not the user's wish to leave
        return (lParam & ENDSESSION_CLOSEAPP) != 0 || Form_QueryUnload();
    case WM_ENDSESSION: // asked before, and every program has agreed
        if (wParam) Form_Unload();
        return 0;
    default:
        break;
    }
    return Form::OnMessage(message, wParam, lParam);
}

void frmWizard::PaintBackground(HDC dc) {
    const win::Twips right = layout::kWindowWidth;
    const win::Twips line = layout::kLineWidth;
    FillArea(dc, 0_tw, 0_tw, right, layout::kRowTop, GetSysColorBrush(COLOR_WINDOW));
    FillArea(dc, 0_tw, layout::kMainTop, layout::kColumnWidth, layout::kRowTop, columnBrush_.Get());
    FillArea(dc, layout::kColumnWidth, layout::kMainTop - line, right, layout::kMainTop,
             GetSysColorBrush(COLOR_BTNSHADOW));
    FillArea(dc, 0_tw, layout::kRowTop, right, layout::kWindowHeight, GetSysColorBrush(COLOR_BTNFACE));
    FillArea(dc, 0_tw, layout::kRowTop, right, layout::kRowTop + line, GetSysColorBrush(COLOR_BTNSHADOW));
}

// Whatever has an owner-drawn style: heading, pictures, icons, and else it is a link.
void frmWizard::OnDrawItem(win::Control& control, const DRAWITEMSTRUCT& item) {
    if (&control == &picHeader) return DrawHeading(item);
    if (auto* picture = dynamic_cast<win::PictureArea*>(&control)) return picture->Draw(item);
    if (auto* icon = dynamic_cast<win::IconArea*>(&control)) return icon->Draw(item);
    DrawLink(control, item);
}

void frmWizard::DrawHeading(const DRAWITEMSTRUCT& item) {
    FillRect(item.hDC, &item.rcItem, GetSysColorBrush(COLOR_WINDOW));
    const HGDIOBJ old = SelectObject(item.hDC, win::FontFor(win::FontUse::Heading));
    SetTextColor(item.hDC, GetSysColor(COLOR_WINDOWTEXT));
    SetBkMode(item.hDC, TRANSPARENT);
    const std::wstring heading = picHeader.Text();
    TextOutW(item.hDC, win::Px(layout::kHeadingLeft), win::Px(layout::kHeadingTop), heading.c_str(),
             static_cast<int>(heading.size()));
    SelectObject(item.hDC, old);
}

void frmWizard::DrawLink(win::Control& link, const DRAWITEMSTRUCT& item) {
    FillRect(item.hDC, &item.rcItem, GetSysColorBrush(COLOR_WINDOW));
    const HGDIOBJ old = SelectObject(item.hDC, link.Font());
    SetTextColor(item.hDC, LinkColor());
    SetBkMode(item.hDC, TRANSPARENT);
    RECT area = item.rcItem;
    const std::wstring caption = link.Text();
    DrawTextW(item.hDC, caption.c_str(), -1, &area, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    SelectObject(item.hDC, old);
    if (item.itemState & ODS_FOCUS) DrawFocusRect(item.hDC, &item.rcItem);
}

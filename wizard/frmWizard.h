#pragma once

// The wizard's one window: a fixed frame of header, pictures, page text, inputs and four buttons, into
// which every page writes itself. frmWizard.cpp makes and paints the frame, Navigation.cpp moves between
// the pages, PageText.cpp writes them; what a page shows and does is in the book that start-up hands over.

#include "res/resource.h"
#include "win/Control.h"
#include "win/Form.h"
#include "win/PictureArea.h"
#include "win/RichText.h"
#include "wizard/FormLayout.h"
#include "wizard/InputPool.h"
#include "wizard/Page.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// What start-up knows and the form needs.
struct WizardStart {
    std::wstring title = {};    // caption of the window
    bool shiftWindow = false;   // in the lower right corner of the screen
    bool configAllowed = false; // the user may write the settings folder
};

class frmWizard : public win::Form {
  public:
    // Wires the controls; the window is made, hidden. `book` must outlive the form.
    frmWizard(const PageBook& book, WizardStart start);
    ~frmWizard() override { Destroy(); }

    // Lays out and shows the window, cleans up after the installer, writes the start-up keys and shows the
    // first page (or the permission page).
    void Form_Load();

    // Controls.
    win::Label picHeader; // its text is the page's heading
    win::Label picMain;   // the panel between header and buttons: a place that others refer to
    win::PictureArea picLogo{IDB_LOGO};
    win::PictureArea picScreenLogo{IDB_SCREEN_LOGO}; // First-Time Setup Wizard
    win::PictureArea picVarnel{IDB_VARNEL};
    win::PictureArea picCncIcon{IDB_CNC_ICON}; // New Device Wizard
    std::array<win::IconArea, 5> picAppIcon;
    // Of the window, one a wizard: the icons' numbers among the program's resources.
    static constexpr std::array<int, 2> imgIconDevice{IDI_DEVICE, IDI_DEVICE + 1};
    win::Label lblStep;
    win::Label lblKey;
    win::Label lblCustInfo;
    win::RichText txtInfo;
    InputPool pool;
    win::PushButton cmdSkip, cmdBack, cmdNext, cmdCancel;

    // State that pages and navigation share.
    std::int16_t PageNo = 1;
    bool MovingNext = false; // why LeavePage runs
    bool MovingBack = false;
    bool Skipping = false;
    bool StayOnPage = false; // set by a leave action: no move
    std::wstring ConfigName; // of the configuration being created

    bool ConfirmExit = false;       // closing asks first, while Next reads "&Next >"
    bool SkipReminderShown = false; // once a run
    bool ConfigWritten = false;     // a configuration file has been written since the port page
    bool ConfigAllowed = false;

    // For page builders.
    void WriteHeading(std::wstring_view heading);
    // The page's whole text with its mark-up. The text area becomes as high as the text needs, up to
    // `tallest`; beyond that it gets a scroll bar.
    void WriteInfo(std::wstring_view text, win::Twips tallest = layout::kTallestText);
    // Tells of a settings file that refused a write: once a click, however many writes it makes.
    void TellOfRefusedWrite(const std::wstring& description);

    // The mark-up of txtInfo (wizard/Markup.h).
    void ResetInfo();  // two blanks in the plain look
    void FormatInfo(); // the passes below, in this order
    void FormatInfoRed();
    void FormatInfoBold();
    void FormatInfoBullet();

    // Moving between pages: the only door.
    void cmdNext_Click();
    void cmdBack_Click();
    void cmdSkip_Click();
    void cmdCancel_Click();
    void lblHyperlink_Click(std::int16_t index);
    void ShowPage();
    void LeavePage();

    void Form_Activate() {} // a page stays as it is when the window comes to the front

    // Ends as the close box would: asks first where that is due, returns when the answer is No.
    void Unload();
    bool Form_QueryUnload(); // true: may close
    [[noreturn]] void Form_Unload();
    // The only way out. Nothing after it runs in the handler that called it.
    [[noreturn]] void EndProgram();

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnDrawItem(win::Control& control, const DRAWITEMSTRUCT& item) override;

  private:
    void BindFrame();
    void BindPictures();
    void BindButtons();
    void ShowModeIcon();
    void ShowFirstPage();
    void MoveToItsPlace();
    void CleanRunOnce();
    void WriteStartUpKeys();
    RECT PageArea() const; // what a page may change: all but the pictures at the left
    void PaintBackground(HDC dc);
    Move PresentMove() const;
    void SkipToNextPage();
    void KeepProgress();

    void DrawHeading(const DRAWITEMSTRUCT& item);
    void DrawLink(win::Control& link, const DRAWITEMSTRUCT& item);

    const PageBook& book_;
    const WizardStart start_;
    win::UniqueBrush columnBrush_;
    std::optional<win::IconPicture> largeIcon_, smallIcon_; // of the mode

    bool isLoading_ = false; // no page is shown yet: nothing can be pressed
    bool toldOfRefusedWrite_ = false;
    bool nextBusy_ = false; // one for each handler: a click that arrives while it runs is dropped
    bool backBusy_ = false;
    bool skipBusy_ = false;
};

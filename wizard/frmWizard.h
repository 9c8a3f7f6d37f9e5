#pragma once

// The wizard's one window: a fixed frame of header, pictures, page text, inputs and four buttons, into
// which every page writes itself. frmWizard.cpp makes and paints the frame, Navigation.cpp moves between
// the pages; what a page shows and does is in the book that start-up hands over.

#include "res/resource.h"
#include "win/Control.h"
#include "win/Form.h"
#include "win/PictureArea.h"
#include "win/RichText.h"
#include "wizard/InputPool.h"
#include "wizard/Page.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

class frmWizard : public win::Form {
  public:
    // Wires the controls; the window is made, hidden. `configAllowed`: the user may write the settings
    // folder.
    frmWizard(const PageBook& book, bool configAllowed);

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
    win::Label lblStep;
    win::Label lblKey;
    win::Label lblCustInfo;
    win::RichText txtInfo;
    InputPool pool;
    win::Button cmdSkip, cmdBack, cmdNext, cmdCancel;

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
    // The page's whole text with its mark-up; the text area becomes as high as the text needs, at most
    // `tallest`: beyond that the text scrolls.
    void WriteInfo(std::wstring_view text, win::Twips tallest = layout::kContentBottom - layout::kTextTop);

    // Moving between pages: the only door.
    void cmdNext_Click();
    void cmdBack_Click();
    void cmdSkip_Click();
    void cmdCancel_Click();
    void lblHyperlink_Click(std::int16_t index);
    void ShowPage();
    void LeavePage();

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
    void MoveToItsPlace();
    void CleanRunOnce();
    void WriteStartUpKeys();
    RECT PageArea() const; // what a page may change: all but the pictures at the left
    void PaintBackground(HDC dc);
    void SkipToNextPage();
    void KeepProgress();

    void DrawHeading(const DRAWITEMSTRUCT& item);
    void DrawLink(win::Control& link, const DRAWITEMSTRUCT& item);

    const PageBook& book_;
    win::UniqueBrush columnBrush_;
    std::optional<win::IconPicture> largeIcon_, smallIcon_; // of the mode
    bool isLoading_ = true;
    bool nextBusy_ = false; // one for each handler: a click that arrives while it runs is dropped
    bool backBusy_ = false;
    bool skipBusy_ = false;
};

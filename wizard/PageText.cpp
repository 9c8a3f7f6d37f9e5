// The part of frmWizard that writes a page: its heading and its text with mark-up.

#include "win/Arrangement.h"
#include "win/Screen.h"
#include "wizard/FormLayout.h"
#include "wizard/Markup.h"
#include "wizard/frmWizard.h"

#include <algorithm>

void frmWizard::WriteHeading(std::wstring_view heading) {
    picHeader.Text(heading);
    picHeader.Repaint();
    // A screen reader speaks the new page although the focus may stay where it is.
    NotifyWinEvent(EVENT_SYSTEM_ALERT, picHeader.Handle(), OBJID_CLIENT, CHILDID_SELF);
}

void frmWizard::WriteInfo(std::wstring_view text, win::Twips tallest) {
    const win::Arrangement arrangement(*this, PageArea());
    txtInfo.Text(text);
    FormatInfo();
    ShowTypedTags(txtInfo);
    txtInfo.WrapLongWords();
    txtInfo.ScrollToTop();
    const win::Twips needed = txtInfo.TextHeight();
    txtInfo.ScrollBar(needed > tallest);
    txtInfo.Height(std::min(needed, tallest));
}

// Two blanks: there must be something to give the plain look to.
void frmWizard::ResetInfo() {
    txtInfo.Text(L"  ");
    txtInfo.SelLength(static_cast<std::int32_t>(txtInfo.Text().size()));
    txtInfo.SelColor(kInkBlack);
    txtInfo.SelBold(false);
}

void frmWizard::FormatInfo() {
    FormatInfoRed();
    FormatInfoBold();
    FormatInfoBullet();
}

void frmWizard::FormatInfoRed() { RunPass(txtInfo, kRedPass); }

void frmWizard::FormatInfoBold() { RunPass(txtInfo, kBoldPass); }

void frmWizard::FormatInfoBullet() { RunPass(txtInfo, kPageBulletPass); }

#include "win/PictureArea.h"

#include "win/Screen.h"

namespace win {

void PictureArea::Draw(const DRAWITEMSTRUCT& item) {
    if (!picture_) picture_.emplace(resource_, Dpi());
    picture_->Draw(item.hDC, item.rcItem.left, item.rcItem.top);
}

void IconArea::Draw(const DRAWITEMSTRUCT& item) {
    if (!icon_) icon_.emplace(resource_, item.rcItem.right - item.rcItem.left);
    FillRect(item.hDC, &item.rcItem, GetSysColorBrush(COLOR_WINDOW));
    icon_->Draw(item.hDC, item.rcItem.left, item.rcItem.top);
}

} // namespace win

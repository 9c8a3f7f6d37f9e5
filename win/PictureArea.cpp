#include "win/PictureArea.h"

#include "win/Accessible.h"
#include "win/Screen.h"

#include <oleacc.h>

namespace win {

bool NamedPicture::OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    if (message != WM_GETOBJECT) return false;
    result = AnswerGetObject(Handle(), wParam, lParam, ROLE_SYSTEM_GRAPHIC, name_);
    return result != 0;
}

void PictureArea::Draw(const DRAWITEMSTRUCT& item) {
    Picture(resource_, Dpi()).Draw(item.hDC, item.rcItem.left, item.rcItem.top);
}

void IconArea::Draw(const DRAWITEMSTRUCT& item) {
    if (!icon_) icon_.emplace(resource_, item.rcItem.right - item.rcItem.left);
    FillRect(item.hDC, &item.rcItem, GetSysColorBrush(COLOR_WINDOW));
    icon_->Draw(item.hDC, item.rcItem.left, item.rcItem.top);
}

} // namespace win

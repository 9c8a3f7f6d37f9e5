#include "shell/IconList.h"

#include "app/Files.h"
#include "app/Paths.h"
#include "shell/IconStrip.h"

#include <algorithm>

namespace {

constexpr wchar_t kIconExtension[] = L".ICO";

bool Precedes(const std::wstring& left, const std::wstring& right) {
    return CompareStringW(LOCALE_USER_DEFAULT, NORM_IGNORECASE | SORT_STRINGSORT, left.c_str(), -1,
                          right.c_str(), -1) == CSTR_LESS_THAN;
}

} // namespace

std::vector<std::wstring> IconKeys(const std::wstring& folder) {
    std::vector<std::wstring> keys;
    for (const std::wstring& file : ListFiles(folder, kIconExtension))
        if (std::wstring key = SplitPath(file, 3); !key.empty()) keys.push_back(std::move(key));
    std::sort(keys.begin(), keys.end(), Precedes);
    keys.resize(std::min<std::size_t>(keys.size(), kMostIcons));
    return keys;
}

IconList::IconList(const std::wstring& folder, const std::vector<std::wstring>& keys, int pixels) {
    if (keys.empty()) return;
    // Room for all at once: a list that grows copies all its pictures each time.
    pictures_ = decltype(pictures_)(
        ImageList_Create(pixels, pixels, ILC_COLOR32 | ILC_MASK, static_cast<int>(keys.size()), 1));
    keys_.reserve(keys.size());
    for (const std::wstring& key : keys) {
        const win::UniqueIcon icon(static_cast<HICON>(LoadImageW(
            nullptr, (folder + key + kIconExtension).c_str(), IMAGE_ICON, pixels, pixels, LR_LOADFROMFILE)));
        if (icon && ImageList_ReplaceIcon(pictures_.Get(), -1, icon.Get()) >= 0) keys_.push_back(key);
    }
}

void IconList::Draw(std::int16_t position, HDC dc, int x, int y) const {
    ImageList_Draw(pictures_.Get(), position - 1, dc, x, y, ILD_TRANSPARENT);
}

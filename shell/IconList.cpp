#include "shell/IconList.h"

#include "app/CodePage.h"
#include "app/Files.h"
#include "app/Paths.h"
#include "app/Suite.h"
#include "shell/IconStrip.h"

#include <algorithm>
#include <iterator>

namespace {

// A configuration has room for a name of so many bytes, with its extension, and a byte for each character.
constexpr std::size_t kNameRoom = 64;

bool FitsConfiguration(const std::wstring& key) {
    return key.size() + std::size(suite::kIconExtension) - 1 <= kNameRoom && !FirstNotOneByte(key);
}

// As the user's language sorts. Hyphens count like other signs: else "A-2" would stand behind "A10".
bool Precedes(const std::wstring& left, const std::wstring& right) {
    return CompareStringW(LOCALE_USER_DEFAULT, NORM_IGNORECASE | SORT_STRINGSORT, left.c_str(), -1,
                          right.c_str(), -1) == CSTR_LESS_THAN;
}

// A square on which one icon after the other is drawn, on the ground that the list is shown on. An image list
// takes such a bitmap several times faster than an icon, of which it makes copies first.
class Canvas {
  public:
    explicit Canvas(int pixels) : pixels_(pixels), dc_(CreateCompatibleDC(nullptr)) {
        const BITMAPINFO info{{sizeof(BITMAPINFOHEADER), pixels, pixels, 1, 24, BI_RGB, 0, 0, 0, 0, 0}, {}};
        void* bits = nullptr;
        bitmap_ = win::UniqueBitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    }

    bool AddTo(HIMAGELIST list, HICON icon) const {
        const RECT all{0, 0, pixels_, pixels_};
        {
            const win::SelectedObject selected(dc_.Get(), bitmap_.Get()); // the list wants it free
            FillRect(dc_.Get(), &all, GetSysColorBrush(COLOR_WINDOW));
            if (!DrawIconEx(dc_.Get(), 0, 0, icon, pixels_, pixels_, 0, nullptr, DI_NORMAL)) return false;
        }
        return ImageList_Add(list, bitmap_.Get(), nullptr) >= 0;
    }

  private:
    int pixels_;
    win::UniqueBitmap bitmap_;
    win::UniqueMemoryDc dc_; // goes first
};

} // namespace

// A file called ".ICO" has no name to choose it by.
std::vector<std::wstring> IconKeys(const std::wstring& folder) {
    std::vector<std::wstring> keys;
    for (const std::wstring& file : ListFiles(folder, suite::kIconExtension))
        if (std::wstring key = SplitPath(file, kNameWithoutExtension); !key.empty() && FitsConfiguration(key))
            keys.push_back(std::move(key));
    std::sort(keys.begin(), keys.end(), Precedes);
    keys.resize(std::min<std::size_t>(keys.size(), kMostIcons));
    return keys;
}

IconList::IconList(const std::wstring& folder, const std::vector<std::wstring>& keys, int pixels) {
    if (keys.empty()) return;
    // Room for all at once: a list that grows copies all its pictures each time.
    pictures_ =
        decltype(pictures_)(ImageList_Create(pixels, pixels, ILC_COLOR24, static_cast<int>(keys.size()), 1));
    const Canvas canvas(pixels);
    keys_.reserve(keys.size());
    for (const std::wstring& key : keys) {
        // A damaged file costs its own place only.
        const win::UniqueIcon icon(
            static_cast<HICON>(LoadImageW(nullptr, (folder + key + suite::kIconExtension).c_str(), IMAGE_ICON,
                                          pixels, pixels, LR_LOADFROMFILE)));
        if (icon && canvas.AddTo(pictures_.Get(), icon.Get())) keys_.push_back(key);
    }
}

void IconList::Draw(std::int16_t position, HDC dc, int x, int y) const {
    ImageList_Draw(pictures_.Get(), position - 1, dc, x, y, ILD_NORMAL);
}

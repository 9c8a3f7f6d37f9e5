#include "shell/IconStrip.h"

#include "app/AsciiCase.h"

#include <algorithm>

namespace {

constexpr wchar_t kDefaultKey[] = L"VDNC32";

} // namespace

IconStrip OpenStrip(std::int16_t count, std::int16_t selected) {
    IconStrip strip{count, 1, 1};
    if (count < 1) return strip;
    strip.selected = std::clamp<std::int16_t>(selected, 1, count);
    strip.scroll = std::min(strip.selected, ScrollMaximum(count));
    return strip;
}

IconStrip ClickSlot(IconStrip strip, std::int16_t slot) {
    if (strip.count < 1) return strip;
    strip.selected = static_cast<std::int16_t>(strip.scroll + std::min(slot, strip.count) - 1);
    return strip;
}

IconStrip MoveLeft(IconStrip strip) {
    if (strip.selected <= 1) return strip;
    --strip.selected;
    return strip.selected < strip.scroll ? Scroll(strip, ScrollStep::LineLeft) : strip;
}

IconStrip MoveRight(IconStrip strip) {
    if (strip.selected >= strip.count) return strip;
    ++strip.selected;
    return strip.selected > strip.scroll + kIconSlots - 1 ? Scroll(strip, ScrollStep::LineRight) : strip;
}

IconStrip Scroll(IconStrip strip, ScrollStep step) {
    switch (step) {
    case ScrollStep::LineLeft:
        return ScrollTo(strip, strip.scroll - 1);
    case ScrollStep::LineRight:
        return ScrollTo(strip, strip.scroll + 1);
    case ScrollStep::PageLeft:
        return ScrollTo(strip, strip.scroll - kIconSlots);
    case ScrollStep::PageRight:
        return ScrollTo(strip, strip.scroll + kIconSlots);
    case ScrollStep::First:
        return ScrollTo(strip, 1);
    case ScrollStep::Last:
        return ScrollTo(strip, ScrollMaximum(strip.count));
    }
    return strip;
}

IconStrip ScrollTo(IconStrip strip, std::int32_t position) {
    strip.scroll =
        static_cast<std::int16_t>(std::clamp<std::int32_t>(position, 1, ScrollMaximum(strip.count)));
    return strip;
}

std::int16_t ScrollMaximum(std::int16_t count) {
    return static_cast<std::int16_t>(std::max(1, count - kIconSlots + 1));
}

bool NeedsScrollBar(std::int16_t count) { return count > kIconSlots; }

std::optional<std::int16_t> SelectedSlot(const IconStrip& strip) {
    const int slot = strip.selected - strip.scroll + 1;
    if (strip.count < 1 || slot < 1 || slot > kIconSlots) return std::nullopt;
    return static_cast<std::int16_t>(slot);
}

std::optional<std::int16_t> PositionInSlot(const IconStrip& strip, std::int16_t slot) {
    const int position = strip.scroll + slot - 1;
    if (position > strip.count) return std::nullopt;
    return static_cast<std::int16_t>(position);
}

std::int16_t DefaultPosition(const std::vector<std::wstring>& keys) {
    for (std::size_t i = 0; i < keys.size(); ++i)
        if (AsciiUpper(keys[i]) == kDefaultKey) return static_cast<std::int16_t>(i + 1);
    return 1;
}

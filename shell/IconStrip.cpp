#include "shell/IconStrip.h"

#include "app/AsciiCase.h"

#include <algorithm>

namespace {

constexpr wchar_t kDefaultKey[] = L"VDNC32";
constexpr std::uint32_t kPauseBetweenWords_ms = 1000;
constexpr int kNotch = 120; // what the system reports for one notch of the wheel

// The caller knows the user's language and its capitals; this part is built without the system.
bool BeginsWith(std::wstring_view key, std::wstring_view letters, wchar_t (*upper)(wchar_t)) {
    return key.size() >= letters.size() &&
           std::equal(letters.begin(), letters.end(), key.begin(),
                      [upper](wchar_t a, wchar_t b) { return upper(a) == upper(b); });
}

} // namespace

IconStrip OpenStrip(std::int16_t count, std::int16_t selected) {
    IconStrip strip{count, 1, 1};
    if (count < 1) return strip;
    strip.selected = std::clamp<std::int16_t>(selected, 1, count);
    strip.scroll = std::min(strip.selected, ScrollMaximum(count));
    return strip;
}

// With fewer icons than slots the strip is never scrolled, so their number is the last slot in use.
IconStrip ClickSlot(IconStrip strip, std::int16_t slot) {
    if (strip.count < 1) return strip;
    strip.selected = static_cast<std::int16_t>(strip.scroll + std::min(slot, strip.count) - 1);
    return strip;
}

IconStrip InView(IconStrip strip) {
    if (strip.selected < strip.scroll) return ScrollTo(strip, strip.selected);
    return ScrollTo(strip, std::max<std::int32_t>(strip.scroll, strip.selected - kIconSlots + 1));
}

IconStrip Choose(IconStrip strip, std::int32_t position) {
    if (strip.count < 1) return strip;
    strip.selected = static_cast<std::int16_t>(std::clamp<std::int32_t>(position, 1, strip.count));
    return InView(strip);
}

IconStrip MoveLeft(IconStrip strip) {
    strip = InView(strip);
    if (strip.selected <= 1) return strip;
    --strip.selected;
    return strip.selected < strip.scroll ? Scroll(strip, ScrollStep::LineLeft) : strip;
}

IconStrip MoveRight(IconStrip strip) {
    strip = InView(strip);
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

// The last icon then stands in the last slot: the strip never shows an empty end.
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

void TypedLetters::Add(wchar_t letter, std::uint32_t letterTime_ms) {
    // Without sign, so that the difference is right also when the clock has run over between two letters.
    if (letterTime_ms - time_ms > kPauseBetweenWords_ms) letters.clear();
    letters += letter;
    time_ms = letterTime_ms;
}

std::optional<std::int16_t> FindByLetters(const std::vector<std::wstring>& keys, std::int16_t selected,
                                          std::wstring_view letters, wchar_t (*upper)(wchar_t)) {
    // The same letter once more would find the chosen icon again. A word that grows may still mean it.
    const std::size_t begin = letters.size() > 1 ? 0 : 1;
    for (std::size_t i = begin; i < keys.size() + begin; ++i) {
        const std::size_t index = (static_cast<std::size_t>(selected - 1) + i) % keys.size();
        if (BeginsWith(keys[index], letters, upper)) return static_cast<std::int16_t>(index + 1);
    }
    // "mmm" begins no name: it is the key of M pressed three times.
    const bool isRepeated = letters.size() > 1 && letters.find_first_not_of(letters[0]) == letters.npos;
    return isRepeated ? FindByLetters(keys, selected, letters.substr(0, 1), upper) : std::nullopt;
}

// The product, not the quotient, is kept: with fine wheels each message is worth less than an icon.
int WheelIcons(int& rest, int turned, unsigned iconsPerNotch) {
    rest -= turned * static_cast<int>(std::min<unsigned>(iconsPerNotch, kIconSlots));
    const int icons = rest / kNotch;
    rest -= icons * kNotch;
    return icons;
}

std::int16_t DefaultPosition(const std::vector<std::wstring>& keys) {
    for (std::size_t i = 0; i < keys.size(); ++i)
        if (AsciiUpper(keys[i]) == kDefaultKey) return static_cast<std::int16_t>(i + 1);
    return 1;
}

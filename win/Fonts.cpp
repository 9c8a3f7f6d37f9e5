#include "win/Fonts.h"

#include "win/Handles.h"
#include "win/Screen.h"

#include <iterator>

namespace win {

namespace {

struct FontRow {
    const wchar_t* face;
    int points;
    LONG weight;
    BYTE underline;
};

// clang-format off
constexpr FontRow kFonts[] = {
    {L"Verdana",        8, FW_NORMAL, FALSE}, // Body
    {L"Verdana",       12, FW_BOLD,   FALSE}, // Heading
    {L"Verdana",        8, FW_NORMAL, TRUE},  // Link
    {L"MS Sans Serif",  8, FW_NORMAL, FALSE}, // OldStyle
};
// clang-format on

constexpr int kPointsPerInch = 72;

HFONT Make(const FontRow& row) {
    LOGFONTW font{};
    font.lfHeight = -MulDiv(row.points, Dpi(), kPointsPerInch);
    font.lfWeight = row.weight;
    font.lfUnderline = row.underline;
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfQuality = CLEARTYPE_QUALITY;
    lstrcpynW(font.lfFaceName, row.face, LF_FACESIZE);
    return CreateFontIndirectW(&font);
}

} // namespace

HFONT FontFor(FontUse use) {
    static UniqueFont made[std::size(kFonts)];
    const auto index = static_cast<std::size_t>(use);
    if (!made[index]) made[index] = UniqueFont(Make(kFonts[index]));
    return made[index].Get();
}

int LineHeight(HFONT font) {
    const WindowDc screen(nullptr);
    const SelectedObject selected(screen.Get(), font);
    TEXTMETRICW metrics{};
    GetTextMetricsW(screen.Get(), &metrics);
    return metrics.tmHeight + metrics.tmExternalLeading;
}

} // namespace win

#include "win/RichText.h"

#include "win/AppError.h"
#include "win/Screen.h"

#include <iterator>
#include <utility>

namespace win {

namespace {

constexpr LONG kBulletOffset = 180; // twips between a bullet and its text

CHARFORMAT2W CharFormat(DWORD mask) {
    CHARFORMAT2W format{};
    format.cbSize = sizeof format;
    format.dwMask = mask;
    return format;
}

PARAFORMAT2 ParaFormat(DWORD mask) {
    PARAFORMAT2 format{};
    format.cbSize = sizeof format;
    format.dwMask = mask;
    return format;
}

CHARFORMAT2W PlainFormat(HFONT font) {
    LOGFONTW face{};
    GetObjectW(font, sizeof face, &face);
    CHARFORMAT2W format =
        CharFormat(CFM_FACE | CFM_SIZE | CFM_CHARSET | CFM_COLOR | CFM_BOLD | CFM_ITALIC | CFM_UNDERLINE);
    format.dwEffects = CFE_AUTOCOLOR;
    format.yHeight = MulDiv(-face.lfHeight, kTwipsPerInch, Dpi());
    format.bCharSet = face.lfCharSet;
    lstrcpynW(format.szFaceName, face.lfFaceName, LF_FACESIZE);
    return format;
}

} // namespace

void LoadRichText() {
    static const HMODULE library = LoadLibraryExW(L"riched20.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    if (!library)
        throw AppError(static_cast<int>(GetLastError()), L"VWizard", L"Unable to load riched20.dll.");
}

void RichText::Made() {
    InterceptMessages();
    Send(EM_SETEVENTMASK, 0, 0);
}

bool RichText::OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    if (message != WM_GETDLGCODE) return false;
    // The control would keep Tab, Enter and Esc for itself and select everything when Tab enters it.
    result = SystemProcedure(message, wParam, lParam) & ~(DLGC_WANTALLKEYS | DLGC_WANTTAB | DLGC_HASSETSEL);
    return true;
}

bool RichText::IsPlain() const {
    const CHARFORMAT2W plain = PlainFormat(Font());
    CHARFORMAT2W present = CharFormat(0);
    Ask(EM_GETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&present));
    PARAFORMAT2 flush = ParaFormat(0);
    Ask(EM_GETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&flush));
    return (present.dwEffects & plain.dwMask) == plain.dwEffects && present.yHeight == plain.yHeight &&
           present.bCharSet == plain.bCharSet && lstrcmpiW(present.szFaceName, plain.szFaceName) == 0 &&
           flush.wNumbering == 0 && flush.dxStartIndent == 0 && flush.dxRightIndent == 0 &&
           flush.dxOffset == 0;
}

void RichText::SetText(std::wstring_view text) {
    SetWindowTextW(Handle(), std::wstring(text).c_str());
    // Some versions keep the first character's format for all of the new text, others forget all formats.
    // Formatting anew what is plain already would cost more than all the rest: the text would be measured
    // again, with fonts that have just been thrown away.
    SelStart(0);
    PlaceCaret();
    if (IsPlain()) return;
    SelLength(-1);
    CHARFORMAT2W plain = PlainFormat(Font());
    Send(EM_SETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&plain));
    PARAFORMAT2 flush = ParaFormat(PFM_NUMBERING | PFM_STARTINDENT | PFM_RIGHTINDENT | PFM_OFFSET);
    Send(EM_SETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&flush));
}

void RichText::ScrollBar(bool visible) {
    if (std::exchange(hasScrollBar_, visible) != visible) Send(EM_SHOWSCROLLBAR, SB_VERT, visible);
}

std::wstring RichText::Text() const {
    GETTEXTLENGTHEX measure{GTL_NUMCHARS | GTL_PRECISE, 1200};
    const auto length = Ask(EM_GETTEXTLENGTHEX, reinterpret_cast<WPARAM>(&measure));
    if (length <= 0) return {};
    std::wstring text(static_cast<std::size_t>(length), L'\0');
    GETTEXTEX request{};
    request.cb = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    request.flags = GT_DEFAULT;
    request.codepage = 1200;
    const auto copied =
        Ask(EM_GETTEXTEX, reinterpret_cast<WPARAM>(&request), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(copied > 0 ? copied : 0));
    return text;
}

void RichText::Select(CHARRANGE range) const {
    CHARRANGE present{};
    Ask(EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&present));
    if (range.cpMin != present.cpMin || range.cpMax != present.cpMax)
        Ask(EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&range));
}

void RichText::PlaceCaret() const {
    if (const auto start = std::exchange(start_, std::nullopt)) Select({*start, *start});
}

void RichText::SelStart(std::int32_t position) { start_ = position; }

void RichText::SelLength(std::int32_t length) {
    CHARRANGE range{};
    Send(EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&range));
    if (const auto start = std::exchange(start_, std::nullopt)) range.cpMin = *start;
    Select({range.cpMin, length < 0 ? -1 : range.cpMin + length});
}

void RichText::SelText(std::wstring_view text) {
    PlaceCaret();
    Send(EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(std::wstring(text).c_str()));
}

// The bits of the effects are those of the mask.
void RichText::SetCharFormat(const CHARFORMAT2W& wanted) {
    PlaceCaret();
    CHARFORMAT2W present = CharFormat(0);
    Ask(EM_GETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&present));
    const bool isSame = (present.dwMask & wanted.dwMask) == wanted.dwMask &&
                        (present.dwEffects & wanted.dwMask) == wanted.dwEffects &&
                        (!(wanted.dwMask & CFM_COLOR) || (wanted.dwEffects & CFE_AUTOCOLOR) ||
                         present.crTextColor == wanted.crTextColor);
    if (!isSame) Send(EM_SETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&wanted));
}

void RichText::SelBold(bool bold) {
    CHARFORMAT2W format = CharFormat(CFM_BOLD);
    format.dwEffects = bold ? CFE_BOLD : 0;
    SetCharFormat(format);
}

void RichText::SelItalic(bool italic) {
    CHARFORMAT2W format = CharFormat(CFM_ITALIC);
    format.dwEffects = italic ? CFE_ITALIC : 0;
    SetCharFormat(format);
}

void RichText::SelColor(std::uint32_t rgb) {
    CHARFORMAT2W format = CharFormat(CFM_COLOR);
    // Black means the system's text colour, so that a high-contrast scheme stays readable.
    if (rgb == 0) format.dwEffects = CFE_AUTOCOLOR;
    format.crTextColor = rgb;
    SetCharFormat(format);
}

void RichText::SelBullet(bool bullet) {
    PlaceCaret();
    PARAFORMAT2 format = ParaFormat(PFM_NUMBERING | PFM_OFFSET);
    format.wNumbering = bullet ? PFN_BULLET : 0;
    format.dxOffset = bullet ? kBulletOffset : 0;
    Send(EM_SETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&format));
}

void RichText::SelIndent(std::int16_t twips) {
    PlaceCaret();
    PARAFORMAT2 format = ParaFormat(PFM_STARTINDENT);
    format.dxStartIndent = twips;
    Send(EM_SETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&format));
}

void RichText::SelRightIndent(std::int16_t twips) {
    PlaceCaret();
    PARAFORMAT2 format = ParaFormat(PFM_RIGHTINDENT);
    format.dxRightIndent = twips;
    Send(EM_SETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&format));
}

void RichText::SelFontSize(std::int16_t points) {
    PlaceCaret();
    CHARFORMAT2W format = CharFormat(CFM_SIZE);
    format.yHeight = points * (kTwipsPerInch / 72);
    Send(EM_SETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
}

std::int16_t RichText::SelFontSize() const {
    PlaceCaret();
    CHARFORMAT2W format = CharFormat(CFM_SIZE);
    Ask(EM_GETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
    return static_cast<std::int16_t>(format.yHeight / (kTwipsPerInch / 72));
}

void RichText::ScrollToTop() {
    SelStart(0);
    PlaceCaret();
    Send(EM_SCROLLCARET);
}

int RichText::LineHeight() const {
    const HDC dc = GetDC(HandleIfMade());
    const HGDIOBJ old = SelectObject(dc, Font());
    TEXTMETRICW metrics{};
    GetTextMetricsW(dc, &metrics);
    SelectObject(dc, old);
    ReleaseDC(HandleIfMade(), dc);
    return metrics.tmHeight + metrics.tmExternalLeading;
}

Twips RichText::TextHeight() const {
    GETTEXTLENGTHEX measure{GTL_NUMCHARS | GTL_PRECISE, 1200};
    const auto length = Ask(EM_GETTEXTLENGTHEX, reinterpret_cast<WPARAM>(&measure));
    POINTL last{};
    Ask(EM_POSFROMCHAR, reinterpret_cast<WPARAM>(&last), length);
    constexpr int kSlack = 3; // pixels: the control's own margins
    return Tw(static_cast<int>(last.y) + LineHeight() + kSlack);
}

} // namespace win

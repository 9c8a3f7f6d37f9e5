#include "win/RichText.h"

#include "win/AppError.h"
#include "win/Fonts.h"
#include "win/Screen.h"
#include "win/SystemLibrary.h"

#include <utility>

namespace win {

namespace {

constexpr int kPointsPerInch = 72;
constexpr LONG kTwipsPerPoint = kTwipsPerInch / kPointsPerInch;
constexpr SHORT kBulletOffset = 180; // twips between a bullet and its text

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
    static const HMODULE library = LoadSystemLibrary(L"riched20.dll");
    if (!library)
        throw AppError(static_cast<int>(GetLastError()), L"VWizard", L"Unable to load riched20.dll.");
}

void RichText::Made() {
    InterceptMessages();
    Send(EM_SETEVENTMASK, 0, 0);
    Send(EM_SETUNDOLIMIT, 0); // or every step of a text's making would be kept
}

bool RichText::OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    if (message != WM_GETDLGCODE) return false;
    // The control would keep Tab, Enter and Esc for itself and select everything when Tab enters it.
    result = SystemProcedure(message, wParam, lParam) & ~(DLGC_WANTALLKEYS | DLGC_WANTTAB | DLGC_HASSETSEL);
    return true;
}

// Some versions keep the first character's look for all of a new text, others forget all looks.
void RichText::Text(std::wstring_view text) {
    SetWindowTextW(Handle(), std::wstring(text).c_str());
    Select(0, -1);
    SetCharacters(PlainFormat(Font()));
    SetParagraphs(ParaFormat(PFM_NUMBERING | PFM_OFFSET | PFM_STARTINDENT | PFM_RIGHTINDENT));
    Select(0, 0);
}

LONG RichText::Length() const {
    GETTEXTLENGTHEX measure{GTL_NUMCHARS | GTL_PRECISE, 1200};
    return static_cast<LONG>(Ask(EM_GETTEXTLENGTHEX, reinterpret_cast<WPARAM>(&measure)));
}

std::wstring RichText::Text() const {
    const LONG length = Length();
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

CHARRANGE RichText::Selection() const {
    CHARRANGE range{};
    Ask(EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&range));
    return range;
}

void RichText::Select(LONG start, LONG end) {
    CHARRANGE range{start, end};
    Ask(EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&range));
}

void RichText::SetCharacters(CHARFORMAT2W format) {
    Ask(EM_SETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
}

void RichText::SetParagraphs(PARAFORMAT2 format) {
    Ask(EM_SETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&format));
}

void RichText::SelStart(std::int32_t position) { Select(position, position); }

void RichText::SelLength(std::int32_t length) {
    const LONG start = Selection().cpMin;
    Select(start, start + length);
}

// Left to itself the control may give new text the look of the character in front of it.
void RichText::SelText(std::wstring_view text) {
    CHARFORMAT2W look = CharFormat(0);
    Ask(EM_GETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&look));
    const LONG start = Selection().cpMin;
    Ask(EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(std::wstring(text).c_str()));
    if (text.empty()) return;
    const LONG end = Selection().cpMax;
    Select(start, end);
    SetCharacters(look);
    Select(end, end);
}

void RichText::SelBold(bool on) {
    CHARFORMAT2W format = CharFormat(CFM_BOLD);
    if (on) format.dwEffects = CFE_BOLD;
    SetCharacters(format);
}

void RichText::SelItalic(bool on) {
    CHARFORMAT2W format = CharFormat(CFM_ITALIC);
    if (on) format.dwEffects = CFE_ITALIC;
    SetCharacters(format);
}

// Black itself could not be read in a high-contrast scheme.
void RichText::SelColor(std::uint32_t rgb) {
    CHARFORMAT2W format = CharFormat(CFM_COLOR);
    if (rgb == 0) format.dwEffects = CFE_AUTOCOLOR;
    format.crTextColor = rgb;
    SetCharacters(format);
}

void RichText::SelFontSize(std::int16_t points) {
    CHARFORMAT2W format = CharFormat(CFM_SIZE);
    format.yHeight = points * kTwipsPerPoint;
    SetCharacters(format);
}

std::int16_t RichText::SelFontSize() const {
    CHARFORMAT2W format = CharFormat(CFM_SIZE);
    Ask(EM_GETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
    return static_cast<std::int16_t>(format.yHeight / kTwipsPerPoint);
}

void RichText::SelBullet(bool on) {
    PARAFORMAT2 format = ParaFormat(PFM_NUMBERING | PFM_OFFSET);
    format.wNumbering = on ? PFN_BULLET : 0;
    format.dxOffset = on ? kBulletOffset : 0;
    SetParagraphs(format);
}

void RichText::SelIndent(std::int16_t twips) {
    PARAFORMAT2 format = ParaFormat(PFM_STARTINDENT);
    format.dxStartIndent = twips;
    SetParagraphs(format);
}

void RichText::SelRightIndent(std::int16_t twips) {
    PARAFORMAT2 format = ParaFormat(PFM_RIGHTINDENT);
    format.dxRightIndent = twips;
    SetParagraphs(format);
}

// Some versions cut a word at the edge when nothing but blanks stands before it on the line. Blanks that do
// not break are a part of the word.
void RichText::WrapLongWords() {
    constexpr wchar_t kNoBreak[] = L"\x00A0";
    RECT client{};
    GetClientRect(HandleIfMade(), &client);
    const std::wstring text = Text() + L'\r';
    std::size_t line = 0;
    for (std::size_t end = 0; (end = text.find(L'\r', line)) != text.npos; line = end + 1) {
        const std::size_t word = text.find_first_not_of(L' ', line);
        const std::size_t wordEnd = text.find_first_of(L" \r", word);
        if (word == line || word == end || PlaceOf(static_cast<LONG>(wordEnd) - 1).x <= client.right)
            continue;
        for (std::size_t blank = line; blank < word; ++blank) {
            SelStart(static_cast<std::int32_t>(blank));
            SelLength(1);
            SelText(kNoBreak);
        }
    }
}

void RichText::ScrollBar(bool visible) {
    if (std::exchange(hasScrollBar_, visible) != visible) Send(EM_SHOWSCROLLBAR, SB_VERT, visible);
}

void RichText::ScrollToTop() {
    Select(0, 0);
    Send(EM_SCROLLCARET);
}

POINTL RichText::PlaceOf(LONG position) const {
    POINTL place{};
    Ask(EM_POSFROMCHAR, reinterpret_cast<WPARAM>(&place), position);
    return place;
}

Twips RichText::TextHeight() const {
    constexpr int kSlack = 3; // pixels: the control's own margins
    return Tw(static_cast<int>(PlaceOf(Length()).y) + LineHeight(Font()) + kSlack);
}

} // namespace win

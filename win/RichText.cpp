#include "win/RichText.h"

#include "win/AppError.h"
#include "win/Screen.h"

#include <iterator>
#include <utility>

namespace win {

namespace {

constexpr int kPointsPerInch = 72;
constexpr LONG kBulletOffset = 180; // twips between a bullet and its text

CHARFORMAT2W CharFormat(DWORD mask) {
    CHARFORMAT2W format{};
    format.cbSize = sizeof format;
    format.dwMask = mask;
    return format;
}

PARAFORMAT2 ParaFormat(const FormattedText::Paragraph& look) {
    PARAFORMAT2 format{};
    format.cbSize = sizeof format;
    format.dwMask = PFM_NUMBERING | PFM_OFFSET | PFM_STARTINDENT | PFM_RIGHTINDENT;
    format.wNumbering = look.bullet ? PFN_BULLET : 0;
    format.dxOffset = look.bullet ? kBulletOffset : 0;
    format.dxStartIndent = look.indent;
    format.dxRightIndent = look.rightIndent;
    return format;
}

// Only what differs from plain text.
CHARFORMAT2W CharFormat(const FormattedText::Character& look) {
    CHARFORMAT2W format = CharFormat((look.bold ? CFM_BOLD : 0) | (look.italic ? CFM_ITALIC : 0) |
                                     (look.color ? CFM_COLOR : 0) | (look.fontSize ? CFM_SIZE : 0));
    format.dwEffects =
        format.dwMask & (CFM_BOLD | CFM_ITALIC); // the bits of the effects are those of the mask
    format.crTextColor = look.color;
    format.yHeight = look.fontSize * (kTwipsPerInch / kPointsPerInch);
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

std::wstring WithLineFeeds(const std::wstring& text) {
    std::wstring result;
    for (const wchar_t c : text)
        c == L'\r' ? result += L"\r\n" : result += c;
    return result;
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
    PARAFORMAT2 flush{};
    flush.cbSize = sizeof flush;
    Ask(EM_GETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&flush));
    return (present.dwEffects & plain.dwMask) == plain.dwEffects && present.yHeight == plain.yHeight &&
           present.bCharSet == plain.bCharSet && lstrcmpiW(present.szFaceName, plain.szFaceName) == 0 &&
           flush.wNumbering == 0 && flush.dxStartIndent == 0 && flush.dxRightIndent == 0 &&
           flush.dxOffset == 0;
}

// Some versions keep the first character's format for all of a new text, others forget all formats.
// Formatting anew what is plain already would cost more than all the rest: the text would be measured again,
// with fonts that have just been thrown away.
void RichText::SetText(const FormattedText& text) {
    SetWindowTextW(Handle(), WithLineFeeds(text.Text()).c_str());
    Select(0, 0);
    if (!IsPlain()) MakePlain();
    for (const auto& run : text.ParagraphRuns()) {
        // With its line end the selection would reach the next paragraph.
        Select(run.start, run.end - (text.Text()[static_cast<std::size_t>(run.end) - 1] == L'\r' ? 1 : 0));
        PARAFORMAT2 format = ParaFormat(run.look);
        Send(EM_SETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&format));
    }
    for (const auto& run : text.CharacterRuns()) {
        Select(run.start, run.end);
        CHARFORMAT2W format = CharFormat(run.look);
        Send(EM_SETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
    }
    ScrollToTop();
}

void RichText::MakePlain() {
    Select(0, -1);
    CHARFORMAT2W plain = PlainFormat(Font());
    Send(EM_SETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&plain));
    PARAFORMAT2 flush = ParaFormat(FormattedText::Paragraph{});
    Send(EM_SETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&flush));
    Select(0, 0);
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

void RichText::Select(std::int32_t start, std::int32_t end) {
    CHARRANGE present{};
    Ask(EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&present));
    CHARRANGE range{start, end};
    if (present.cpMin != start || present.cpMax != end) Ask(EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&range));
}

void RichText::ScrollToTop() {
    Select(0, 0);
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

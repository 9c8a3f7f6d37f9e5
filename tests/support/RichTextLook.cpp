#include "tests/support/RichTextLook.h"

#include "win/RichText.h"

#include <richedit.h>

namespace {

struct Brackets {
    const wchar_t* open;
    const wchar_t* close;
};

Brackets CharacterLook(win::RichText& text, LONG position) {
    CHARRANGE range{position, position + 1};
    text.Send(EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&range));
    CHARFORMAT2W format{};
    format.cbSize = sizeof format;
    text.Send(EM_GETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
    const bool isBold = (format.dwEffects & CFE_BOLD) != 0;
    const bool isOther = (format.dwEffects & (CFE_ITALIC | CFE_UNDERLINE | CFE_STRIKEOUT)) != 0;
    const bool isBlack = (format.dwEffects & CFE_AUTOCOLOR) || format.crTextColor == 0;
    const bool isRed = !isBlack && format.crTextColor == RGB(255, 0, 0);
    if (isOther || (!isBlack && !isRed) || (isRed && !isBold)) return {L"<", L">"};
    return isRed ? Brackets{L"{", L"}"} : isBold ? Brackets{L"[", L"]"} : Brackets{L"", L""};
}

std::wstring ParagraphLook(win::RichText& text, LONG position) {
    CHARRANGE range{position, position};
    text.Send(EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&range));
    PARAFORMAT2 format{};
    format.cbSize = sizeof format;
    text.Send(EM_GETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&format));
    if (format.wNumbering == PFN_BULLET && format.dxStartIndent == 150 && format.dxRightIndent == 150)
        return L"\u2022 ";
    if (format.wNumbering == 0 && format.dxStartIndent == 0 && format.dxRightIndent == 0) return {};
    return L"{" + std::to_wstring(format.wNumbering) + L" " + std::to_wstring(format.dxStartIndent) + L" " +
           std::to_wstring(format.dxRightIndent) + L"}";
}

} // namespace

std::wstring LookOf(win::RichText& text) {
    const std::wstring characters = text.Text();
    std::wstring look;
    Brackets current{L"", L""};
    bool lineBegins = true;
    for (std::size_t i = 0; i < characters.size(); ++i) {
        if (characters[i] == L'\r') { // the look of a line end itself cannot be seen
            look += current.close;
            if (lineBegins) look += ParagraphLook(text, static_cast<LONG>(i));
            look += L'\n';
            current = {L"", L""};
            lineBegins = true;
            continue;
        }
        const Brackets next = CharacterLook(text, static_cast<LONG>(i));
        if (lineBegins) look += ParagraphLook(text, static_cast<LONG>(i));
        if (std::wstring_view(next.open) != current.open) look += std::wstring(current.close) + next.open;
        look += characters[i];
        current = next;
        lineBegins = false;
    }
    return look + current.close;
}

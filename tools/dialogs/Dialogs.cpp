// Shows one of the product's small windows by itself. Its exit code is what the user answered; the name of
// an icon is printed.
//   dialogs message BUTTONS SIZE TITLE TEXT   the text with its mark-up; "|" for a line end
//   dialogs choice PRESET
//   dialogs icons FOLDER
#include "app/modLocations.h"
#include "ftw/frmChoice.h"
#include "shell/frmIcons.h"
#include "wizard/frmMessage.h"

#include <cstdio>
#include <cwchar>
#include <string>

namespace {

std::int16_t Number(const wchar_t* text) { return static_cast<std::int16_t>(std::wcstol(text, nullptr, 10)); }

std::wstring WithLineEnds(const std::wstring& text) {
    std::wstring result;
    for (const wchar_t c : text)
        result += c == L'|' ? std::wstring(L"\r\n") : std::wstring(1, c);
    return result;
}

} // namespace

int wmain(int count, wchar_t** words) {
    const std::wstring kind = count > 2 ? words[1] : L"";
    InitLocations();
    if (kind == L"message" && count == 6) {
        return ShowMessage(WithLineEnds(words[5]), Number(words[2]), Number(words[3]), words[4], nullptr);
    }
    if (kind == L"choice") {
        setupChoice = Number(words[2]);
        ShowChoice(nullptr);
        return setupChoice;
    }
    if (kind != L"icons") return -1;
    frmIcons form;
    form.OpenForm(words[2], nullptr);
    std::printf("%ls\n", form.Result().c_str());
    return 0;
}

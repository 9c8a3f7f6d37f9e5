#pragma once

// What the monkey sees of a page, held against the answers and files that the wizard has stored.

#include <string>
#include <vector>

inline constexpr wchar_t kNamePage[] = L"Configuration Name", kLastPage[] = L"Finished",
                         kLocationPage[] = L"Specify CNC file location";

// What a page shows.
struct Shown {
    std::wstring heading;
    std::vector<std::wstring> texts;
    int index = -1;          // of a list
    int option = -1;         // the first one that is set
    int set = 0, places = 0; // check boxes or options
};

// Each is "" when all is right. `left` was shown before `opened`: a page that was left has stored what it
// showed, a page that opens shows what is stored.
std::wstring WrongAnswer(const Shown& left, const Shown& opened);
bool MadeConfiguration(const Shown& left, const Shown& opened);
// The file that has just been made under this name is that of the answers, byte for byte but for the icon.
std::wstring WrongFile(const std::wstring& typedName);

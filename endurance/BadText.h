#pragma once

// Texts that break programs, tried wherever the wizards take one: as the name of a configuration, as a
// folder, in the inputs of a page, in the registry.

#include <string>
#include <vector>

// What a name of that text has to become, where kTakenNames exist.
enum class As { File, Refused };
inline constexpr const wchar_t* kTakenNames[] = {L"Mixed Case", L"\x00DC\x00F6\x00DF"};

struct BadText {
    std::wstring text;
    As name;
};

// At least 120, all different.
const std::vector<BadText>& BadTexts();

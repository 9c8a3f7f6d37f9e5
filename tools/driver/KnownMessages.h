#pragma once

#include <algorithm>
#include <iterator>
#include <string_view>

// How every message begins that the program has a reason to show in a box.
inline constexpr std::wstring_view kKnownMessages[] = {
    L"Unable to write data to configuration file: ",
    L"The configuration file could not be written:",
    L"The configuration name you specified is already used.",
    L"The name you specified ",
    L"You must specify a valid name to continue.",
    L"The file extension you specified is not valid.",
    L"The character ",
    L"Import ",
    L"W A R N I N G",
    L"Complete all steps to ensure that Varnel DNC",
    L"You chose to restore a previously-saved set of",
};

inline bool IsKnownMessage(std::wstring_view text) {
    return std::any_of(std::begin(kKnownMessages), std::end(kKnownMessages),
                       [&](std::wstring_view known) { return text.starts_with(known); });
}

#pragma once

#include <string>
#include <string_view>

// Without the blanks (code 32 only) at both ends.
std::wstring TrimBlanks(std::wstring_view text);

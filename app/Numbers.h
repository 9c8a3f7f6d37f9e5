#pragma once

#include <cstdint>
#include <string_view>

// The number that `text` begins with, as the settings file holds numbers: blanks in front are skipped,
// then a sign may stand, then decimal digits; what follows is ignored ("16 x" is 16). Without a digit
// the value is 0. A number beyond 32 bits becomes the nearest one that has 32 bits; callers that need
// 16 bits must compare before they narrow.
std::int32_t NumericValue(std::wstring_view text);

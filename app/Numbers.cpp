#include "app/Numbers.h"

#include <algorithm>
#include <limits>

// By hand: the library's conversions also skip tabs, take other bases, and say too little of a number that
// does not fit.
std::int32_t NumericValue(std::wstring_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(L' '), text.size()));
    const bool negative = !text.empty() && text.front() == L'-';
    if (negative || (!text.empty() && text.front() == L'+')) text.remove_prefix(1);

    using Limits = std::numeric_limits<std::int32_t>;
    std::int64_t value = 0;
    for (const wchar_t c : text) {
        // Once beyond 32 bits the rest cannot matter, and would leave 64 bits as well.
        if (c < L'0' || c > L'9' || value > Limits::max()) break;
        value = value * 10 + (c - L'0');
    }
    if (negative) value = -value;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

// A text of always N characters, as the fields of a configuration file are. Before the first assignment
// all have code 0. A shorter text is filled up with blanks on the right, a longer one is cut.
template <std::size_t N> class FixedText {
  public:
    static constexpr std::size_t kLength = N;

    FixedText& operator=(std::wstring_view text) {
        const auto end = std::copy_n(text.begin(), std::min(text.size(), N), characters_.begin());
        std::fill(end, characters_.end(), L' ');
        return *this;
    }

    std::wstring_view View() const { return {characters_.data(), N}; }

    // Blanks at the end count: a field that was given the empty text does not equal the empty text.
    friend bool operator==(const FixedText& a, std::wstring_view b) { return a.View() == b; }
    friend bool operator==(const FixedText& a, const FixedText& b) = default;

  private:
    std::array<wchar_t, N> characters_{};
};

#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <sstream>
#include <string>
#include <string_view>

// The bytes of a configuration file spelled out by hand, independent of the program's own tables: a
// record of what the programs that read these files expect.
class DcpByHand {
  public:
    // A configuration made with the answers that the wizard starts with.
    DcpByHand() {
        bytes_ = "VDNCW32A " + Blanks(40) + "\x1A" + Zeros(2 + 20 + 2) + Blanks(10) + Zeros(30);
        bytes_ += "Varnel" + Blanks(58);
        bytes_ += Hex("01 00  00 00  00 00");
        bytes_ += Hex("06 00  01 00  00 00  01 00  01 00  00 00");
        bytes_ += Hex("06 00  01 00  00 00  01 00  01 00  00 00");
        bytes_ += Hex("FF FF  FF FF  00 00") + Zeros(4 + 2) + Blanks(20);
        bytes_ += Blanks(10) + Blanks(10);
        bytes_ += Blanks(20 + 40 + 40) + Hex("00 00  FF FF") + Blanks(20 + 20 + 40 + 40) + Zeros(2);
        bytes_ += Blanks(10) + Blanks(1) + Hex("00 00  00 00  00 00");
        bytes_ += Hex("00 00  01 00  00 00  00 00  00 00  11 00  01 00  00 00  00 00");
        bytes_ += Blanks(256) + Hex("FF FF") + Blanks(10 + 10 + 10) + Zeros(2 + 8) + Hex("01 00");
        bytes_ += Blanks(256) + Zeros(2) + Hex("FF FF");
        bytes_ += "O" + Blanks(9) + Hex("01 00") + "1" + Blanks(9) + "5 " + Blanks(10 + 7 + 3);

        bytes_ += Zeros(40) + Blanks(10) + Zeros(90);
        bytes_ += Zeros(2500);

        bytes_ += Hex("00 00  02 00") + "O799" + Blanks(252);
        for (const char* code : {"+T", "+R", "+M", "+D"})
            bytes_ += code + Blanks(8) + ")" + Blanks(9) + Zeros(10);
        for (int entry = 4; entry < 32; ++entry)
            bytes_ += Blanks(20) + Zeros(10);
        bytes_ += "-" + Blanks(40) + "(" + Blanks(9) + ")" + Blanks(9) + Zeros(2 + 121 + 2 + 2);
        bytes_ += "O7999 (DNC MESSAGES)" + Blanks(234) + Zeros(2) + "(" + Blanks(9) + ")" + Blanks(9);
    }

    // The same with other bytes at these places: "178 00 01, 240 25 'text'".
    explicit DcpByHand(const std::string& places) : DcpByHand() {
        std::istringstream each(places);
        for (std::string place; std::getline(each, place, ',');) {
            std::size_t digits = 0;
            const std::size_t offset = std::stoul(place, &digits);
            With(offset, Hex(std::string_view(place).substr(digits)));
        }
    }

    // Other bytes at `offset`; the file keeps its length.
    DcpByHand& With(std::size_t offset, std::string_view bytes) {
        bytes_.replace(offset, bytes.size(), bytes);
        return *this;
    }

    std::string Bytes() const { return bytes_; }

  private:
    static std::string Blanks(std::size_t count) { return std::string(count, ' '); }
    static std::string Zeros(std::size_t count) { return std::string(count, '\0'); }
    static int Value(char digit) { return digit <= '9' ? digit - '0' : digit - 'A' + 10; }

    // Pairs of hexadecimal digits in capitals and 'text', blanks between them as one likes.
    static std::string Hex(std::string_view digits) {
        std::string bytes;
        bool isText = false;
        for (std::size_t i = 0; i < digits.size(); ++i) {
            if (digits[i] == '\'')
                isText = !isText;
            else if (isText)
                bytes += digits[i];
            else if (digits[i] != ' ')
                bytes += static_cast<char>(Value(digits[i]) * 16 + Value(digits[i + 1])), ++i;
        }
        return bytes;
    }

    std::string bytes_;
};

// The first difference is easier to read than two times 5449 bytes.
inline void ExpectBytes(const std::string& made, const std::string& expected) {
    ASSERT_EQ(made.size(), expected.size());
    const auto [m, e] = std::mismatch(made.begin(), made.end(), expected.begin());
    if (m == made.end()) return;
    const auto offset = static_cast<std::size_t>(m - made.begin());
    ADD_FAILURE() << "at offset " << offset << ": " << testing::PrintToString(made.substr(offset, 12))
                  << " instead of " << testing::PrintToString(expected.substr(offset, 12));
}

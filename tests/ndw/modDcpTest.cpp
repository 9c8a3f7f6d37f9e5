#include "ndw/modDcp.h"

#include "tests/support/DcpByHand.h"

#include <gtest/gtest.h>

namespace {

std::string AsText(const DcpRecords& records) {
    const auto bytes = DcpBytes(records, [](wchar_t c) { return static_cast<unsigned char>(c); });
    return std::string(bytes.begin(), bytes.end());
}

std::span<const unsigned char> AsBytes(const std::string& text) {
    return {reinterpret_cast<const unsigned char*>(text.data()), text.size()};
}

} // namespace

TEST(modDcp, TheFileIsReadOnlyWhenItIsOne) {
    const std::string file = DcpByHand("49 'x', 178 2C 01, 486 '('").Bytes();
    DcpRecords records;
    ASSERT_TRUE(ReadDcpBytes(AsBytes(file), records));
    ExpectBytes(AsText(records), file);
    EXPECT_EQ(DcpPortNumber(AsBytes(file)), 300);
    for (const std::string& wrong : {"X" + file.substr(1), file.substr(1), file + " ", std::string()}) {
        EXPECT_EQ(DcpPortNumber(AsBytes(wrong)), std::nullopt);
        EXPECT_FALSE(ReadDcpBytes(AsBytes(wrong), records));
    }
    EXPECT_EQ(records.header.portNumber, 300);
    PrepareForWriting(records);
    ExpectBytes(AsText(records), DcpByHand("178 2C 01, 486 '(', 1165 '('").Bytes());
}

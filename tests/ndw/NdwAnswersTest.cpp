#include "ndw/NdwAnswers.h"
#include "ndw/PortUse.h"

#include <gtest/gtest.h>

TEST(NdwAnswers, Codes) {
    struct Row {
        std::int16_t endOfBlock, prefix, suffix;
        std::wstring_view prefixCodes, suffixCodes;
        bool fit;
    };
    // clang-format off
    const Row rows[] = {
        {0,  0,  0, L"",              L"",               true },
        {0,  1,  1, L"^M^J",          L"^M^J",           true },
        {1,  2,  2, L"%",             L"%",              true },
        {1,  4,  4, L"^J",            L"^D",             true },
        {2,  8,  8, L"^R",            L"^T",             true },
        {0,  0, 16, L"",              L"^Z",             true },
        {0, 15, 31, L"^M^J%^M^J^R",   L"^M^J%^D^T^Z",    false},
        {1, 15, 31, L"^J%^J^R",       L"^J%^D^T^Z",      true },
        {2, 13, 29, L"^M^M^R",        L"^M^D^T^Z",       true },
    };
    // clang-format on
    for (const Row& row : rows) {
        NdwAnswers answers;
        answers.endOfBlockIndex = row.endOfBlock;
        answers.prefixChoice = row.prefix;
        answers.suffixChoice = row.suffix;
        EXPECT_EQ(PrefixCodes(answers), row.prefixCodes);
        EXPECT_EQ(SuffixCodes(answers), row.suffixCodes);
        EXPECT_EQ(CodesFit(row.prefixCodes) && CodesFit(row.suffixCodes), row.fit);
    }
    EXPECT_EQ(StoredCodes(L"^M^J%^M^J^R"), L"^M^J%^M^J^");
    EXPECT_TRUE(CodesFit(L"0123456789"));
}

TEST(NdwAnswers, Summary) {
    NdwAnswers answers;
    EXPECT_EQ(SummaryText(answers), L"COM1, 4800 baud, ISO\r\n"
                                    L"Flow control: Software (XON/XOFF); end of block: CR + LF\r\n"
                                    L"Prefix: none; suffix: none\r\n"
                                    L"File name: O number: O and 4 digits (O1234)");
    answers.characterFormatIndex = 5;
    answers.dataFormatIndex = 2;
    answers.flowControlIndex = -1;
    answers.prefixChoice = 15;
    answers.receiveNamingIndex = 12;
    EXPECT_EQ(SummaryText(answers), L"COM1, 4800 baud, ASCII (8 data bits, odd parity)\r\n"
                                    L"Flow control: ?; end of block: CR + LF\r\n"
                                    L"Prefix: ^M^J%^M^J^; suffix: none\r\n"
                                    L"File name: ?");
}

TEST(PortUse, Captions) {
    EXPECT_EQ(PortCaption(256, true, L""), L"COM256 - on this computer");
    EXPECT_EQ(PortCaption(3, false, L"LATHE2"), L"COM3 - used by LATHE2");
    EXPECT_EQ(PortCaption(3, true, L"LATHE2, Mill 1"), L"COM3 - on this computer, used by LATHE2, Mill 1");
}

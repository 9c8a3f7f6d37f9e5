#include "ndw/NdwAnswers.h"

#include <gtest/gtest.h>

TEST(NdwAnswers, Codes) {
    // clang-format off
    const struct {
        std::int16_t endOfBlock, prefix, suffix;
        std::wstring_view prefixCodes, suffixCodes;
        std::wstring_view cut; // codes, one behind the other
    } rows[] = {
        {0,  1,  1, L"^M^J",          L"^M^J",           L""    },
        {1,  2,  2, L"%",             L"%",              L""    },
        {1,  4,  4, L"^J",            L"^D",             L""    },
        {2,  8,  8, L"^R",            L"^T",             L""    },
        {0,  0, 16, L"",              L"^Z",             L""    },
        {0, 15, 31, L"^M^J%^M^J^R",   L"^M^J%^D^T^Z",    L"^R^Z"},
        {2, 13, 29, L"^M^M^R",        L"^M^D^T^Z",       L""    },
    };
    // clang-format on
    for (const auto& row : rows) {
        NdwAnswers answers;
        answers.endOfBlockIndex = row.endOfBlock;
        answers.prefixChoice = row.prefix;
        answers.suffixChoice = row.suffix;
        EXPECT_EQ(PrefixCodes(answers), row.prefixCodes);
        EXPECT_EQ(SuffixCodes(answers), row.suffixCodes);
        EXPECT_EQ(CutCode(row.prefixCodes) + CutCode(row.suffixCodes), row.cut);
    }
    EXPECT_TRUE(CodesFit(L"0123456789"));
    EXPECT_EQ(StoredCodes(L"0123456789A"), L"0123456789");
}

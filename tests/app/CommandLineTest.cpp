#include "app/CommandLine.h"

#include <gtest/gtest.h>

TEST(CommandLine, Switches) {
    struct Row {
        std::wstring_view text;
        std::int16_t mode;
        bool config;
        bool shift;
    };
    // clang-format off
    const Row rows[] = {
        {L"",                          0, false, false},
        {L"/NDW",                      1, false, false},
        {L"/ndw /shift",               1, false, true },
        {L"/SHIFT",                    0, false, false},
        {L"/VConfig",                  0, true,  false},
        {L"/VCONFIG /sHiFt /nDw",      1, true,  true },
        {L"\"C:\\jobs/ndw-old.txt\"",  1, false, false},
        {L"x/NDW/SHIFT/VCONFIGx",      1, true,  true },
        {L"-NDW / NDW /ND",            0, false, false},
        {L"/\u0274dw /\u017fhift",     0, false, false},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.text));
        const StartUpState state = ParseCommandLine(row.text);
        EXPECT_EQ(state.WizardMode, row.mode);
        EXPECT_EQ(state.ConfigLaunch, row.config);
        EXPECT_EQ(state.ShiftWindow, row.shift);
        EXPECT_EQ(state.WizardTitle, row.mode == 1 ? kNdwTitle : kFtwTitle);
    }
}

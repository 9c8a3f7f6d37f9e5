#include "app/CommandLine.h"

#include <gtest/gtest.h>

TEST(CommandLine, Switches) {
    const std::pair<std::wstring_view, std::string_view> rows[] = {{L"", ""},
                                                                   {L"/ndw /shift", "ns"},
                                                                   {L"\"C:\\jobs/ndw-old.txt\"", "n"},
                                                                   {L"/SHIFT", ""},
                                                                   {L"/VConfig", "c"},
                                                                   {L"x/NDW/SHIFT/VCONFIGx", "ncs"},
                                                                   {L"-NDW / NDW /ND", ""},
                                                                   {L"/\u0274dw /\u017fhift", ""}};
    for (const auto& [text, switches] : rows) {
        const StartUpState state = ParseCommandLine(text);
        std::string found = state.WizardMode == kNewDevice ? "n" : "";
        if (state.ConfigLaunch) found += 'c';
        if (state.ShiftWindow) found += 's';
        EXPECT_EQ(found, switches) << testing::PrintToString(text);
        EXPECT_EQ(state.WizardTitle, state.WizardMode == kNewDevice ? kNdwTitle : kFtwTitle);
    }
}

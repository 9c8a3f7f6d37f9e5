#include "tools/samples/SampleTable.h"
#include "app/FileNames.h"

#include <gtest/gtest.h>

#include <set>

// What the New Device Wizard would make of a sample, and what an owner would look for in its name.
TEST(SampleTable, EveryRowMakesAWholeConfigurationUnderItsOwnName) {
    std::set<std::wstring> names;
    for (const samples::Sample& sample : samples::kSamples) {
        const std::wstring name = NameOf(sample);
        const NdwAnswers answers = AnswersOf(sample);
        EXPECT_TRUE(names.insert(name).second && IsValidName(name) && !IsReservedName(name) &&
                    answers.baudIndex < static_cast<int>(kBaudRates.size()) && // the sample names its rate
                    CodesFit(PrefixCodes(answers)) && CodesFit(SuffixCodes(answers)))
            << testing::PrintToString(name);
    }
    EXPECT_EQ(NameOf(samples::kSamples[0]), L"Lathe ISO 4800 XON-XOFF");
}

#include "tools/samples/SampleTable.h"
#include "app/FileNames.h"

#include <gtest/gtest.h>

#include <set>

namespace {

using namespace samples;

// What the New Device Wizard would make of a sample, and what an owner would look for in its name.
TEST(SampleTable, EveryRowMakesAWholeConfigurationUnderItsOwnName) {
    std::set<std::wstring> names;
    for (const Sample& sample : kSamples) {
        const std::wstring name = NameOf(sample);
        SCOPED_TRACE(testing::PrintToString(name));
        EXPECT_TRUE(names.insert(name).second) << "two samples of one name";
        EXPECT_TRUE(IsValidName(name) && !IsReservedName(name));
        const NdwAnswers answers = AnswersOf(sample);
        ASSERT_LT(answers.baudIndex, static_cast<int>(kBaudRates.size())) << "no such baud rate";
        EXPECT_TRUE(CodesFit(PrefixCodes(answers)));
        EXPECT_TRUE(CodesFit(SuffixCodes(answers)));
    }
    EXPECT_GE(names.size(), 12U);
    EXPECT_EQ(NameOf(kSamples[0]), L"Lathe ISO 4800 XON-XOFF");
}

} // namespace

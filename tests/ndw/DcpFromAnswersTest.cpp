#include "ndw/DcpFromAnswers.h"

#include "tests/support/DcpByHand.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

std::string Created(const NdwAnswers& answers, std::wstring_view iconName = L"") {
    const auto records = std::make_unique<DcpRecords>();
    SetDcpHeaderDefaults(records->header);
    SetDcpRecord4Defaults(records->record4);
    FillDcpRecords(*records, answers, iconName);
    const auto bytes = DcpBytes(*records, [](wchar_t c) { return static_cast<unsigned char>(c); });
    return std::string(bytes.begin(), bytes.end());
}

} // namespace

TEST(DcpFromAnswers, EachAnswerHasItsPlace) {
    using A = NdwAnswers;
    // clang-format off
    const struct {
        std::int16_t NdwAnswers::*answer;
        std::int16_t value;
        const char* places;
    } rows[] = {
        {&A::portIndex,               0, ""}, // as the wizard starts
        {&A::portIndex,             255, "178 00 01"},
        {&A::baudIndex,              11, "184 0B 00, 196 0B 00"},
        {&A::dataFormatIndex,         2, "194 02 00, 206 02 00"},
        {&A::characterFormatIndex,    0, "186 00 00 00 00, 198 00 00 00 00"},
        {&A::characterFormatIndex,    5, "186 02 00 01 00, 198 02 00 01 00"},
        {&A::flowControlIndex,        2, "192 02 00, 204 02 00"},
        {&A::endOfBlockIndex,         1, "208 FF FF 00 00"},
        {&A::endOfBlockIndex,         2, "208 00 00 FF FF"},
        {&A::prefixChoice,           15, "240 '^M^J%^M^J^'"},
        {&A::prefixChoice,           10, "240 '%^R       '"},
        {&A::suffixChoice,           20, "250 '^D^Z      '"},
        {&A::suffixChoice,           31, "250 '^M^J%^D^T^'"},
        {&A::filterOptions,           1, "501 01 00"},
        {&A::filterOptions,           2, "497 03 00"},
        {&A::filterOptions,           4, "496 '1'"},
        {&A::filterOptions,           8, "499 FF FF"},
        {&A::transmitTriggerIndex,    0, "513 FF FF"},
        {&A::transmitTriggerIndex,    1, "513 FD FF"},
        {&A::transmitTriggerIndex,    3, "513 FE FF"},
        {&A::transmitTriggerIndex,    4, "513 11 00"},
        {&A::receiveNamingIndex,      1, "1081 'O         ' 01 00 '(         ) '"},
        {&A::receiveNamingIndex,      2, "1081 'O         ' 01 00 '1           '"},
        {&A::receiveNamingIndex,      3, "1081 ':         ' 01 00 '2         4 '"},
        {&A::receiveNamingIndex,      4, "1081 ':         ' 01 00 '2         4 '"},
        {&A::receiveNamingIndex,      5, "1081 ':         ' 01 00 '2           '"},
        {&A::receiveNamingIndex,      6, "1081 '$         ' 01 00 '2         . '"},
        {&A::receiveNamingIndex,      7, "1081 '$         ' 01 00 '2         . ', 1122 'MIN'"},
        {&A::receiveNamingIndex,      8, "1081 '%MPF      ' 01 00 '25        4 '"},
        {&A::receiveNamingIndex,      9, "1081 '%         ' 02 00 '(         ) '"},
        {&A::receiveNamingIndex,     10, "1081 '%         ' 02 00 '1           '"},
        {&A::receiveNamingIndex,     11, "1079 00 00, 1103 '  '"},
        {&A::receiveNamingIndex,     12, "1103 '  '"},
        {&A::receiveTerminationIndex, 1, "799 '2         ' 03 00"},
        {&A::receiveTerminationIndex, 2, "799 '30        ' 03 00"},
    };
    // clang-format on
    ASSERT_EQ(DcpByHand().Bytes().size(), 5449u);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.places);
        NdwAnswers answers;
        answers.*row.answer = row.value;
        ExpectBytes(Created(answers), DcpByHand(row.places).Bytes());
    }
}

TEST(DcpFromAnswers, Texts) {
    NdwAnswers answers;
    answers.removedLines = L"  (N\u00e4ch ";
    answers.receivePrefix = L"LATHE2-LEFT";
    answers.receiveExtension = L"NC"; // is not stored
    DcpByHand expected("486 '(N' E4 'ch     ', 1105 'LATHE2-LEF', 1165 '(N' E4 'ch     '");
    expected.With(114, std::string(64, 'X'));
    ExpectBytes(Created(answers, std::wstring(70, L'X')), expected.Bytes());
}

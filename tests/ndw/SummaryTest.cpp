#include "ndw/Summary.h"

#include <gtest/gtest.h>

TEST(Summary, SaysWhatIsStored) {
    NdwAnswers answers;
    answers.suffixChoice = 29; // ten characters, which fit
    answers.removedLines = L" (< ";
    answers.transmitTriggerIndex = 4;  // no such answer
    answers.receiveExtension = L"TAP"; // is not stored
    EXPECT_EQ(SummaryText(answers), L"COM1, 4800 baud, ISO\r\n"
                                    L"Flow control: Software (XON/XOFF); end of block: CR + LF\r\n"
                                    L"Prefix: none; suffix: ^M^J^D^T^Z\r\n"
                                    L"Lines removed: (<; filters: none\r\n"
                                    L"Trigger: ?\r\n"
                                    L"Received files are named by: O number: O and 4 digits (O1234)\r\n"
                                    L"Name begins with: none\r\n"
                                    L"End of reception: Manually, by the operator");
    answers.characterFormatIndex = 5;
    answers.dataFormatIndex = 2;
    answers.prefixChoice = 15;
    answers.suffixChoice = 31;
    answers.filterOptions = 9;
    answers.receivePrefix = L" P ";
    const std::wstring text = SummaryText(answers);
    for (const wchar_t* piece : {L" baud, ASCII (8 data bits, odd parity)\r",
                                 L"Prefix: ^M^J%^M^J^ (^R is cut); suffix: ^M^J%^D^T^ (^Z is cut)",
                                 L"filters: Remove spaces, Convert to upper case\r", L"with:  P\r"})
        EXPECT_NE(text.find(piece), text.npos) << testing::PrintToString(text);
}

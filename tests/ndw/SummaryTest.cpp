#include "ndw/Summary.h"

#include <gtest/gtest.h>

TEST(Summary, SaysWhatIsStored) {
    NdwAnswers answers;
    EXPECT_EQ(SummaryText(answers), L"COM1, 4800 baud, ISO\r\n"
                                    L"Flow control: Software (XON/XOFF); end of block: CR + LF\r\n"
                                    L"Prefix: none; suffix: none\r\n"
                                    L"Lines removed: none; filters: none\r\n"
                                    L"Trigger: When the CNC sends XON (DC1)\r\n"
                                    L"Received files are named by: O number: O and 4 digits (O1234)\r\n"
                                    L"Name begins with: none\r\n"
                                    L"End of reception: Manually, by the operator");
    answers.portIndex = 255;
    answers.characterFormatIndex = 5;
    answers.dataFormatIndex = 2;
    answers.flowControlIndex = -1;
    answers.prefixChoice = 15;
    answers.suffixChoice = 2;
    answers.removedLines = L" (< ";
    answers.filterOptions = 9;
    answers.transmitTriggerIndex = 4;
    answers.receiveNamingIndex = 12;
    answers.receivePrefix = L" P ";
    answers.receiveExtension = L"TAP"; // is not stored
    answers.receiveTerminationIndex = 2;
    EXPECT_EQ(SummaryText(answers), L"COM256, 4800 baud, ASCII (8 data bits, odd parity)\r\n"
                                    L"Flow control: ?; end of block: CR + LF\r\n"
                                    L"Prefix: ^M^J%^M^J^ (^R is cut); suffix: %\r\n"
                                    L"Lines removed: (<; filters: Remove spaces, Convert to upper case\r\n"
                                    L"Trigger: ?\r\n"
                                    L"Received files are named by: ?\r\n"
                                    L"Name begins with:  P\r\n"
                                    L"End of reception: Automatically, after 30 seconds");
}

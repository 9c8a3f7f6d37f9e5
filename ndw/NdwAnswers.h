#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

// What the user has answered on the pages of the New Device Wizard, with the answers that it starts with.
// An index counts the choices of a page from 0; in a set, bit k stands for the k-th check box of its page.
// The pages fill these members, DcpFromAnswers makes records of them.
struct NdwAnswers {
    std::int16_t portIndex = 0; // the port's number less 1
    std::int16_t baudIndex = 6;
    std::int16_t dataFormatIndex = 0;
    std::int16_t characterFormatIndex = 2; // matters to the user only with data format kAsciiDataFormat
    std::int16_t flowControlIndex = 1;
    std::int16_t endOfBlockIndex = 0;
    std::int16_t prefixChoice = 0;  // a set
    std::int16_t suffixChoice = 0;  // a set
    std::int16_t filterOptions = 0; // a set
    std::int16_t transmitTriggerIndex = 2;
    std::int16_t receiveNamingIndex = 0;
    std::int16_t receiveTerminationIndex = 0;
    std::wstring removedLines;     // marks the lines to leave out; at most kCodesLength characters
    std::wstring receivePrefix;    // put in front of a received file's name; at most kCodesLength characters
    std::wstring receiveExtension; // as CheckedExtension gives it
    std::wstring name;             // of the configuration, as typed
};

// ---- what the pages offer, in the order of the stored values ----
inline constexpr std::int16_t kPortCount = 256;
inline constexpr std::int16_t kAsciiDataFormat = 2;

// clang-format off
inline constexpr std::array<std::wstring_view, 12> kBaudRates = {
    L"110", L"150", L"300", L"600", L"1200", L"2400", L"4800", L"9600", L"19200", L"38400", L"57600", L"115200",
};
inline constexpr std::array<std::wstring_view, 3> kDataFormats = {
    L"ISO", L"EIA-244", L"ASCII",
};
inline constexpr std::array<std::wstring_view, 6> kCharacterFormats = {
    L"7 data bits, no parity",
    L"8 data bits, no parity",
    L"7 data bits, even parity",
    L"8 data bits, even parity",
    L"7 data bits, odd parity",
    L"8 data bits, odd parity",
};
inline constexpr std::array<std::wstring_view, 3> kFlowControls = {
    L"None", L"Software (XON/XOFF)", L"Hardware (RTS/CTS)",
};
inline constexpr std::array<std::wstring_view, 3> kEndOfBlocks = {
    L"CR + LF", L"LF Only", L"CR Only",
};
inline constexpr std::array<std::wstring_view, 4> kPrefixChoices = {
    L"End of block",
    L"% (percent sign)",
    L"End of block (after the %)",
    L"DC2 (tape punch on, Ctrl+R)",
};
inline constexpr std::array<std::wstring_view, 5> kSuffixChoices = {
    L"End of block",
    L"% (percent sign)",
    L"EOT (end of transmission, Ctrl+D)",
    L"DC4 (tape punch off, Ctrl+T)",
    L"SUB (end of file, Ctrl+Z)",
};
inline constexpr std::array<std::wstring_view, 4> kFilterOptions = {
    L"Remove spaces",
    L"Remove comments",
    L"Remove blank lines",
    L"Convert to upper case",
};
inline constexpr std::array<std::wstring_view, 4> kTransmitTriggers = {
    L"Start at once",
    L"When the CNC turns on its hardware signal (CTS)",
    L"When the CNC sends XON (DC1)",
    L"When the CNC sends any character",
};
inline constexpr std::array<std::wstring_view, 12> kReceiveNamings = {
    L"O number: O and 4 digits (O1234)",
    L"O number line: text in ( )",
    L"O number line: whole line from the O",
    L"Colon number: 4 digits (:1234)",
    L"Colon number: 4 digits, with a beginning of your own",
    L"Colon number: rest of the line",
    L"$ line: name before the dot ($NAME.)",
    L"$ line: name before the dot, extension MIN",
    L"%MPF line: 4 characters from position 25",
    L"% line: text in ( ) on the next line",
    L"% line: whole next line",
    L"No automatic name",
};
inline constexpr std::array<std::wstring_view, 3> kReceiveTerminations = {
    L"Manually, by the operator",
    L"Automatically, after 2 seconds",
    L"Automatically, after 30 seconds",
};
// clang-format on

// ---- what follows from the answers ----
// Codes are written in caret notation: "^M" carriage return, "^J" line feed, "^R" DC2, "^D" EOT,
// "^T" DC4, "^Z" SUB; every other character stands for itself.

// The room that a configuration file has for the codes sent before, and for those sent after a program.
inline constexpr std::size_t kCodesLength = 10;

// Whether the end of block chosen holds a carriage return, and a line feed.
bool SendsCr(const NdwAnswers& answers);
bool SendsLf(const NdwAnswers& answers);

// The codes sent before and after a program: whole, though the file may have no room for all of them.
std::wstring PrefixCodes(const NdwAnswers& answers);
std::wstring SuffixCodes(const NdwAnswers& answers);

// Whether all of `codes` will be stored. Otherwise the first kCodesLength characters are, which leaves the
// caret of the last code: the choices make one character more than fits, never two.
bool CodesFit(std::wstring_view codes);
std::wstring StoredCodes(std::wstring_view codes);

// The code that is cut in half, "^R"; empty when all of `codes` fit.
std::wstring CutCode(std::wstring_view codes);

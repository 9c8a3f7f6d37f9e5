#include "ndw/NdwAnswers.h"

namespace {

bool Chosen(std::int16_t set, int bit) { return ((set >> bit) & 1) != 0; }

std::wstring EndOfBlockCodes(const NdwAnswers& answers) {
    std::wstring codes;
    if (SendsCr(answers)) codes += L"^M";
    if (SendsLf(answers)) codes += L"^J";
    return codes;
}

} // namespace

// The choices in their order: CR + LF, LF, CR.
bool SendsCr(const NdwAnswers& answers) { return (answers.endOfBlockIndex & 1) == 0; }

bool SendsLf(const NdwAnswers& answers) { return answers.endOfBlockIndex < 2; }

// In the order in which the machine gets them, which is that of the boxes on the page.
std::wstring PrefixCodes(const NdwAnswers& answers) {
    std::wstring codes;
    if (Chosen(answers.prefixChoice, 0)) codes += EndOfBlockCodes(answers);
    if (Chosen(answers.prefixChoice, 1)) codes += L"%";
    if (Chosen(answers.prefixChoice, 2)) codes += EndOfBlockCodes(answers);
    if (Chosen(answers.prefixChoice, 3)) codes += L"^R";
    return codes;
}

std::wstring SuffixCodes(const NdwAnswers& answers) {
    std::wstring codes;
    if (Chosen(answers.suffixChoice, 0)) codes += EndOfBlockCodes(answers);
    if (Chosen(answers.suffixChoice, 1)) codes += L"%";
    if (Chosen(answers.suffixChoice, 2)) codes += L"^D";
    if (Chosen(answers.suffixChoice, 3)) codes += L"^T";
    if (Chosen(answers.suffixChoice, 4)) codes += L"^Z";
    return codes;
}

bool CodesFit(std::wstring_view codes) { return codes.size() <= kCodesLength; }

std::wstring StoredCodes(std::wstring_view codes) { return std::wstring(codes.substr(0, kCodesLength)); }

// From its caret, the last character that is stored, to its letter, which is not.
std::wstring CutCode(std::wstring_view codes) {
    return CodesFit(codes) ? std::wstring() : std::wstring(codes.substr(kCodesLength - 1));
}

#include "ndw/NdwAnswers.h"

namespace {

constexpr std::wstring_view kLineEnd = L"\r\n";

bool Chosen(std::int16_t set, int bit) { return ((set >> bit) & 1) != 0; }

std::wstring EndOfBlockCodes(const NdwAnswers& answers) {
    std::wstring codes;
    if (SendsCr(answers)) codes += L"^M";
    if (SendsLf(answers)) codes += L"^J";
    return codes;
}

template <std::size_t N>
std::wstring Caption(const std::array<std::wstring_view, N>& captions, std::int16_t index) {
    const auto position = static_cast<std::size_t>(index);
    return std::wstring(position < N ? captions[position] : L"?");
}

std::wstring OrNone(const std::wstring& codes) { return codes.empty() ? L"none" : codes; }

} // namespace

bool SendsCr(const NdwAnswers& answers) { return (answers.endOfBlockIndex & 1) == 0; }

bool SendsLf(const NdwAnswers& answers) { return answers.endOfBlockIndex < 2; }

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

std::wstring SummaryText(const NdwAnswers& answers) {
    std::wstring text = L"COM" + std::to_wstring(answers.portIndex + 1) + L", ";
    text += Caption(kBaudRates, answers.baudIndex) + L" baud, ";
    text += Caption(kDataFormats, answers.dataFormatIndex);
    if (answers.dataFormatIndex == kAsciiDataFormat) {
        text += L" (" + Caption(kCharacterFormats, answers.characterFormatIndex) + L")";
    }
    text += kLineEnd;
    text += L"Flow control: " + Caption(kFlowControls, answers.flowControlIndex);
    text += L"; end of block: " + Caption(kEndOfBlocks, answers.endOfBlockIndex);
    text += kLineEnd;
    text += L"Prefix: " + OrNone(StoredCodes(PrefixCodes(answers)));
    text += L"; suffix: " + OrNone(StoredCodes(SuffixCodes(answers)));
    text += kLineEnd;
    text += L"File name: " + Caption(kReceiveNamings, answers.receiveNamingIndex);
    return text;
}

#include "ndw/Summary.h"

#include "app/Blanks.h"

namespace {

constexpr std::wstring_view kLineEnd = L"\r\n";
constexpr std::wstring_view kNone = L"none";

template <std::size_t N>
std::wstring Caption(const std::array<std::wstring_view, N>& captions, std::int16_t index) {
    const auto position = static_cast<std::size_t>(index);
    return std::wstring(position < N ? captions[position] : L"?");
}

// An empty answer is one, too: it must not look like one that was forgotten.
std::wstring OrNone(const std::wstring& text) { return text.empty() ? std::wstring(kNone) : text; }

std::wstring Line(const NdwAnswers& answers) {
    std::wstring line = L"COM" + std::to_wstring(answers.portIndex + 1) + L", " +
                        Caption(kBaudRates, answers.baudIndex) + L" baud, " +
                        Caption(kDataFormats, answers.dataFormatIndex);
    // The other data formats bring their own: what was once chosen for ASCII means nothing with them.
    if (answers.dataFormatIndex == kAsciiDataFormat)
        line += L" (" + Caption(kCharacterFormats, answers.characterFormatIndex) + L")";
    return line;
}

std::wstring Codes(const std::wstring& codes) {
    const std::wstring cut = CutCode(codes);
    return OrNone(StoredCodes(codes)) + (cut.empty() ? L"" : L" (" + cut + L" is cut)");
}

std::wstring Filters(const NdwAnswers& answers) {
    std::wstring list;
    for (std::size_t i = 0; i < kFilterOptions.size(); ++i)
        if (answers.filterOptions >> i & 1) list.append(list.empty() ? L"" : L", ").append(kFilterOptions[i]);
    return OrNone(list);
}

// The file fills texts up with blanks: those at the end are not told from its own.
std::wstring WithoutBlanksBehind(std::wstring text) {
    text.resize(text.find_last_not_of(L' ') + 1);
    return text;
}

} // namespace

std::wstring SummaryText(const NdwAnswers& answers) {
    // In the order of the pages; pages that belong together share a row, so that the longest answers fit.
    const std::wstring rows[] = {
        Line(answers),
        L"Flow control: " + Caption(kFlowControls, answers.flowControlIndex) + L"; end of block: " +
            Caption(kEndOfBlocks, answers.endOfBlockIndex),
        L"Prefix: " + Codes(PrefixCodes(answers)) + L"; suffix: " + Codes(SuffixCodes(answers)),
        L"Lines removed: " + OrNone(TrimBlanks(answers.removedLines)) + L"; filters: " + Filters(answers),
        L"Trigger: " + Caption(kTransmitTriggers, answers.transmitTriggerIndex),
        L"Received files are named by: " + Caption(kReceiveNamings, answers.receiveNamingIndex),
        L"Name begins with: " + OrNone(WithoutBlanksBehind(answers.receivePrefix)),
        L"End of reception: " + Caption(kReceiveTerminations, answers.receiveTerminationIndex),
    };
    std::wstring text;
    for (const std::wstring& row : rows)
        text.append(text.empty() ? L"" : kLineEnd).append(row);
    return text;
}

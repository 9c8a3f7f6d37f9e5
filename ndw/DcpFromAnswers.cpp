#include "ndw/DcpFromAnswers.h"

#include "app/Blanks.h"

#include <array>

namespace {

constexpr std::int16_t kTrue = -1;
constexpr std::int16_t kFalse = 0;

constexpr std::int16_t Flag(bool set) { return set ? kTrue : kFalse; }

constexpr bool Chosen(std::int16_t set, int bit) { return ((set >> bit) & 1) != 0; }

// Answers need not come from the pages: the samples are made of a table.
template <class Table> constexpr bool HasIndex(const Table& table, std::int16_t index) {
    return index >= 0 && static_cast<std::size_t>(index) < table.size();
}

void FillLine(DcpHeader& header, const NdwAnswers& answers) {
    // The lowest bit of the index is the data bits, what is above it the parity: so the choices are ordered.
    const int format = answers.characterFormatIndex;
    header.portNumber = static_cast<std::int16_t>(answers.portIndex + 1);
    header.baudA = header.baudB = answers.baudIndex;
    header.dataFormatA = header.dataFormatB = answers.dataFormatIndex;
    header.parityA = header.parityB = static_cast<std::int16_t>((format >> 1) & 3);
    header.dataBitsA = header.dataBitsB = static_cast<std::int16_t>(format & 1);
    header.flowControlA = header.flowControlB = answers.flowControlIndex;
}

void FillTransmission(DcpHeader& header, const NdwAnswers& answers) {
    header.sendsCr = Flag(SendsCr(answers));
    header.sendsLf = Flag(SendsLf(answers));
    // Cut by the field when they are too long. The page and the summary have said so.
    header.transmitPrefix = PrefixCodes(answers);
    header.transmitSuffix = SuffixCodes(answers);

    header.removedLines = TrimBlanks(answers.removedLines);
    // Each option has a way of its own to be on; off is 0 also where the default is not.
    header.removesSpaces = Chosen(answers.filterOptions, 0) ? 1 : 0;
    header.removesComments = Chosen(answers.filterOptions, 1) ? 3 : 0;
    if (Chosen(answers.filterOptions, 2)) header.removesBlankLines = L"1";
    header.toUpperCase = Flag(Chosen(answers.filterOptions, 3));

    constexpr std::array<std::int16_t, 4> kTriggerCodes = {-1, -3, 17, -2};
    static_assert(kTriggerCodes.size() == kTransmitTriggers.size());
    if (HasIndex(kTriggerCodes, answers.transmitTriggerIndex)) {
        header.transmitTrigger = kTriggerCodes[static_cast<std::size_t>(answers.transmitTriggerIndex)];
    }
}

// What each way of naming received files stores. Where the name begins: the marker, then on which line
// counted from the marker's, from which column or character, and how many characters or up to which. Two rows
// are the same on purpose: what parts them is the beginning that the user types, which is stored behind them.
struct NamingFormat {
    const wchar_t* marker;
    std::int16_t line;
    const wchar_t* start;
    const wchar_t* end;
    const wchar_t* prefix;
    const wchar_t* extension;
};

// clang-format off
constexpr std::array<NamingFormat, 11> kNamingFormats = {{
    // marker  line  start   end    prefix   extension
    {L"O",     1,    L"1",   L"5",  nullptr, nullptr},
    {L"O",     1,    L"(",   L")",  nullptr, nullptr},
    {L"O",     1,    L"1",   L"",   nullptr, nullptr},
    {L":",     1,    L"2",   L"4",  L"O",    nullptr},
    {L":",     1,    L"2",   L"4",  L"O",    nullptr},
    {L":",     1,    L"2",   L"",   L"O",    nullptr},
    {L"$",     1,    L"2",   L".",  nullptr, nullptr},
    {L"$",     1,    L"2",   L".",  nullptr, L"MIN" },
    {L"%MPF",  1,    L"25",  L"4",  nullptr, nullptr},
    {L"%",     2,    L"(",   L")",  nullptr, nullptr},
    {L"%",     2,    L"1",   L"",   nullptr, nullptr},
}};
// clang-format on
constexpr std::int16_t kNoNaming = 11;
static_assert(kNamingFormats.size() == kNoNaming && kReceiveNamings.size() == kNoNaming + 1);

void FillNaming(DcpHeader& header, std::int16_t index) {
    header.namesReceived = Flag(index != kNoNaming);
    if (!HasIndex(kNamingFormats, index)) return;
    const NamingFormat& format = kNamingFormats[static_cast<std::size_t>(index)];
    header.namingMarker = format.marker;
    header.namingLine = format.line;
    header.namingStart = format.start;
    header.namingEnd = format.end;
    if (format.prefix) header.receivePrefix = format.prefix;
    if (format.extension) header.receiveExtension = format.extension;
}

void FillReception(DcpHeader& header, const NdwAnswers& answers) {
    struct Termination {
        std::int16_t mode;
        const wchar_t* timeout;
    };
    constexpr std::array<Termination, 3> kTerminations = {{{0, nullptr}, {3, L"2"}, {3, L"30"}}};
    static_assert(kTerminations.size() == kReceiveTerminations.size());
    if (HasIndex(kTerminations, answers.receiveTerminationIndex)) {
        const Termination& chosen = kTerminations[static_cast<std::size_t>(answers.receiveTerminationIndex)];
        header.receiveTermination = chosen.mode;
        // Without a time-out the field keeps its blanks: "0" would be a time.
        if (chosen.timeout) header.receiveTimeout = chosen.timeout;
    }
    FillNaming(header, answers.receiveNamingIndex);
    // The field holds three blanks or "MIN" by now and so never equals the empty text: the extension typed
    // is not stored, as the page says.
    if (header.receiveExtension == L"") header.receiveExtension = answers.receiveExtension;
    header.receivePrefix = answers.receivePrefix; // also over the one of the naming format
}

} // namespace

void FillDcpRecords(DcpRecords& records, const NdwAnswers& answers, std::wstring_view iconName) {
    if (!iconName.empty()) records.header.iconName = iconName;
    FillLine(records.header, answers);
    FillTransmission(records.header, answers);
    FillReception(records.header, answers);
    // Writing copies it once more. Here it is done so that the records are right as they are.
    records.record2.removedLines = records.header.removedLines.View();
}

#include "ndw/modDcp.h"

#include "app/Blanks.h"
#include "ndw/DcpFields.h"

#include <algorithm>
#include <cassert>

DcpRecords dcpRecords;

namespace {

constexpr std::int16_t kTrue = -1;
constexpr std::int16_t kFalse = 0;

constexpr std::int16_t Flag(bool set) { return set ? kTrue : kFalse; }

constexpr bool Chosen(std::int16_t set, int bit) { return ((set >> bit) & 1) != 0; }

template <class Table> constexpr bool HasIndex(const Table& table, std::int16_t index) {
    return index >= 0 && static_cast<std::size_t>(index) < table.size();
}

// ---- defaults ----
template <std::size_t N> void SetDefault(FixedText<N>& text, const wchar_t* byDefault) {
    if (byDefault != kUnassigned) text = byDefault;
}

void SetDefault(std::int16_t& number, std::int16_t byDefault) { number = byDefault; }

void SetDefault(DcpTable& table, const wchar_t*) {
    constexpr std::array<std::wstring_view, 4> kCodes = {L"+T", L"+R", L"+M", L"+D"};
    for (std::size_t i = 0; i < table.size(); ++i) {
        const bool named = i < kCodes.size();
        table[i].first = named ? kCodes[i] : L"";
        table[i].second = named ? L")" : L"";
    }
}

template <class Record, class Fields> void SetDefaults(Record& record, const Fields& fields) {
    std::apply([&](const auto&... field) { (SetDefault(record.*field.member, field.byDefault), ...); },
               fields);
}

// ---- answers ----
void FillLine(DcpHeader& header, const NdwAnswers& answers) {
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
    header.transmitPrefix = PrefixCodes(answers);
    header.transmitSuffix = SuffixCodes(answers);

    header.removedLines = TrimBlanks(answers.removedLines);
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
// counted from the marker's, from which column or character, and how many characters or up to which.
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
    SetDefault(header.receivePrefix, format.prefix);
    SetDefault(header.receiveExtension, format.extension);
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
        SetDefault(header.receiveTimeout, chosen.timeout);
    }
    FillNaming(header, answers.receiveNamingIndex);
    // The field holds three blanks or "MIN" by now and so never equals the empty text: the extension typed
    // is not stored, as the page says.
    if (header.receiveExtension == L"") header.receiveExtension = answers.receiveExtension;
    header.receivePrefix = answers.receivePrefix;
}

// ---- bytes ----
class ByteWriter {
  public:
    ByteWriter(std::span<unsigned char> bytes, AnsiByte ansiByte) : bytes_(bytes), ansiByte_(ansiByte) {}

    template <std::size_t N> void operator()(const FixedText<N>& text) {
        for (const wchar_t c : text.View())
            Put(ansiByte_(c));
    }
    void operator()(std::int16_t number) {
        const auto bits = static_cast<std::uint16_t>(number);
        Put(static_cast<unsigned char>(bits & 0xFF));
        Put(static_cast<unsigned char>(bits >> 8));
    }

  private:
    void Put(unsigned char byte) {
        assert(next_ < bytes_.size());
        bytes_[next_++] = byte;
    }

    std::span<unsigned char> bytes_;
    AnsiByte ansiByte_;
    std::size_t next_ = 0;
};

class ByteReader {
  public:
    explicit ByteReader(std::span<const unsigned char> bytes) : bytes_(bytes) {}

    template <std::size_t N> void operator()(FixedText<N>& text) {
        std::wstring characters;
        for (std::size_t i = 0; i < N; ++i)
            characters += static_cast<wchar_t>(Take());
        text = characters;
    }
    void operator()(std::int16_t& number) {
        const unsigned low = Take();
        const unsigned high = Take();
        number = static_cast<std::int16_t>(low | high << 8);
    }

  private:
    unsigned char Take() {
        assert(next_ < bytes_.size());
        return bytes_[next_++];
    }

    std::span<const unsigned char> bytes_;
    std::size_t next_ = 0;
};

// The table counts as the texts of its entries, one after the other.
template <class Field, class Act> void VisitField(Field& field, Act& act) {
    if constexpr (requires { act(field); }) {
        act(field);
    } else {
        for (auto& entry : field) {
            act(entry.first);
            act(entry.second);
            act(entry.third);
        }
    }
}

// Hands every field of every record to `act`, in file order.
template <class Records, class Act> void VisitFields(Records& records, Act act) {
    const auto visit = [&](auto& record, const auto& fields) {
        std::apply([&](const auto&... field) { (VisitField(record.*field.member, act), ...); }, fields);
    };
    visit(records.header, kHeaderFields);
    visit(records.record2, kRecord2Fields);
    visit(records.record3, kRecord3Fields);
    visit(records.record4, kRecord4Fields);
}

bool IsDcpFile(std::span<const unsigned char> bytes) {
    constexpr std::wstring_view kSignature = kDcpSignature;
    return bytes.size() == kDcpFileSize && std::equal(kSignature.begin(), kSignature.end(), bytes.begin());
}

} // namespace

void SetDcpHeaderDefaults(DcpHeader& header) { SetDefaults(header, kHeaderFields); }

void SetDcpRecord4Defaults(DcpRecord4& record) { SetDefaults(record, kRecord4Fields); }

void FillDcpRecords(DcpRecords& records, const NdwAnswers& answers, std::wstring_view iconName) {
    if (!iconName.empty()) records.header.iconName = iconName;
    FillLine(records.header, answers);
    FillTransmission(records.header, answers);
    FillReception(records.header, answers);
    records.record2.removedLines = records.header.removedLines.View();
}

void PrepareForWriting(DcpRecords& records) {
    records.header.endOfFileMarker = kEndOfFileMarker;
    records.record2.removedLines = records.header.removedLines.View();
}

std::array<unsigned char, kDcpFileSize> DcpBytes(const DcpRecords& records, AnsiByte ansiByte) {
    std::array<unsigned char, kDcpFileSize> bytes{};
    VisitFields(records, ByteWriter(bytes, ansiByte));
    return bytes;
}

bool ReadDcpBytes(std::span<const unsigned char> bytes, DcpRecords& records) {
    if (!IsDcpFile(bytes)) return false;
    VisitFields(records, ByteReader(bytes));
    return true;
}

std::optional<std::int16_t> DcpPortNumber(std::span<const unsigned char> bytes) {
    if (!IsDcpFile(bytes)) return std::nullopt;
    std::int16_t number = 0;
    ByteReader(bytes.subspan(OffsetOf(kHeaderFields, &DcpHeader::portNumber)))(number);
    return number;
}

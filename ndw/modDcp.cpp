#include "ndw/modDcp.h"

#include "ndw/DcpFields.h"

#include <algorithm>
#include <cassert>

DcpRecords dcpRecords;

namespace {

// ---- defaults ----
// A text without a default is left alone: assigning nothing to it would make blanks of its zeros.
template <std::size_t N> void SetDefault(FixedText<N>& text, const wchar_t* byDefault) {
    if (byDefault != kUnassigned) text = byDefault;
}

void SetDefault(std::int16_t& number, std::int16_t byDefault) { number = byDefault; }

// The third text of an entry is one of those that stay unassigned.
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

// ---- bytes ----
// Byte after byte, so that neither the machine's order nor its padding gets into the file.
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

// The same way back. Records are read from checked files alone, so that running out of bytes is a bug.
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

// The last character of the signature, a blank, counts.
bool IsDcpFile(std::span<const unsigned char> bytes) {
    constexpr std::wstring_view kSignature = kDcpSignature;
    return bytes.size() == kDcpFileSize && std::equal(kSignature.begin(), kSignature.end(), bytes.begin());
}

} // namespace

void SetDcpHeaderDefaults(DcpHeader& header) { SetDefaults(header, kHeaderFields); }

void SetDcpRecord4Defaults(DcpRecord4& record) { SetDefaults(record, kRecord4Fields); }

// Both belong to the file's form: they hold whoever has filled the records, and with what.
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

// Two bytes, not four records: the port page asks thousands of files.
std::optional<std::int16_t> DcpPortNumber(std::span<const unsigned char> bytes) {
    if (!IsDcpFile(bytes)) return std::nullopt;
    std::int16_t number = 0;
    ByteReader(bytes.subspan(OffsetOf(kHeaderFields, &DcpHeader::portNumber)))(number);
    return number;
}

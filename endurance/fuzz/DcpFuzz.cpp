#include "endurance/fuzz/Fuzz.h"
#include "ndw/DcpFromAnswers.h"
#include "ndw/Summary.h"

namespace {

unsigned char LowByte(wchar_t c) { return static_cast<unsigned char>(c); }

// Answers become bytes, and the bytes records that become the same bytes.
std::array<unsigned char, kDcpFileSize> ExamineAnswers(Generator& from) {
    DcpRecords records;
    SetDcpHeaderDefaults(records.header);
    SetDcpRecord4Defaults(records.record4);
    const NdwAnswers answers = ValidAnswers(from);
    FillDcpRecords(records, answers, from.Text(70, L"Lathe 12"));
    PrepareForWriting(records);
    const auto bytes = DcpBytes(records, LowByte);

    DcpRecords read;
    REQUIRE(ReadDcpBytes(bytes, read));
    REQUIRE(DcpBytes(read, LowByte) == bytes);
    REQUIRE(DcpPortNumber(bytes) == answers.portIndex + 1);
    REQUIRE(CodesFit(PrefixCodes(answers)) == (StoredCodes(PrefixCodes(answers)) == PrefixCodes(answers)));
    REQUIRE(read.header.transmitSuffix.View().starts_with(StoredCodes(SuffixCodes(answers))));
    REQUIRE(read.header.endOfFileMarker == L"\x1A");
    REQUIRE(SummaryText(answers).find(L'?') == std::wstring::npos);
    return bytes;
}

// A damaged file is refused with nothing changed, or read as it is.
void ExamineDamage(Generator& from, std::vector<unsigned char> bytes) {
    bytes.resize(from.Below(4) == 0 ? from.Below(6000) : bytes.size());
    for (std::size_t count = from.Below(20); count > 0 && !bytes.empty(); --count) {
        bytes[from.Below(bytes.size())] = from.Byte();
    }
    DcpRecords records;
    records.header.portNumber = 99;
    const auto port = DcpPortNumber(bytes);
    if (ReadDcpBytes(bytes, records)) {
        const auto again = DcpBytes(records, LowByte);
        REQUIRE(std::equal(again.begin(), again.end(), bytes.begin(), bytes.end()));
        REQUIRE(port == records.header.portNumber);
    } else {
        REQUIRE(!port && records.header.portNumber == 99);
    }
}

} // namespace

void Examine(Generator& from) {
    const auto bytes = ExamineAnswers(from);
    ExamineDamage(from, {bytes.begin(), bytes.end()});
}

#include "endurance/fuzz/Fuzz.h"
#include "ndw/DcpFromAnswers.h"
#include "ndw/Summary.h"

namespace {

unsigned char LowByte(wchar_t c) { return static_cast<unsigned char>(c); }

// Answers that the pages can give; the texts are ASCII.
NdwAnswers ValidAnswers(FuzzedDataProvider& from) {
    const auto index = [&](std::size_t count) { return static_cast<std::int16_t>(Below(from, count)); };
    const auto ascii = [&] {
        std::wstring text = Text(from, kCodesLength, L"ABCxyz019 (%$-+.");
        std::erase_if(text, [](wchar_t c) { return c < L' ' || c > L'~'; });
        return text;
    };
    NdwAnswers answers;
    answers.portIndex = index(kPortCount);
    answers.baudIndex = index(kBaudRates.size());
    answers.dataFormatIndex = index(kDataFormats.size());
    answers.characterFormatIndex = index(kCharacterFormats.size());
    answers.flowControlIndex = index(kFlowControls.size());
    answers.endOfBlockIndex = index(kEndOfBlocks.size());
    answers.prefixChoice = index(std::size_t{1} << kPrefixChoices.size());
    answers.suffixChoice = index(std::size_t{1} << kSuffixChoices.size());
    answers.filterOptions = index(std::size_t{1} << kFilterOptions.size());
    answers.transmitTriggerIndex = index(kTransmitTriggers.size());
    answers.receiveNamingIndex = index(kReceiveNamings.size());
    answers.receiveTerminationIndex = index(kReceiveTerminations.size());
    answers.removedLines = ascii();
    answers.receivePrefix = ascii();
    answers.receiveExtension = from.PickValueInArray({L"", L"NC", L"MIN", L"x"});
    return answers;
}

// Answers become bytes, and the bytes records that become the same bytes.
std::array<unsigned char, kDcpFileSize> ExamineAnswers(FuzzedDataProvider& from) {
    DcpRecords records;
    SetDcpHeaderDefaults(records.header);
    SetDcpRecord4Defaults(records.record4);
    const NdwAnswers answers = ValidAnswers(from);
    FillDcpRecords(records, answers, Text(from, 70, L"Lathe 12"));
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
void ExamineDamage(FuzzedDataProvider& from, std::vector<unsigned char> bytes) {
    bytes.resize(Below(from, 4) == 0 ? Below(from, 6000) : bytes.size());
    for (std::size_t count = Below(from, 20); count > 0 && !bytes.empty(); --count)
        bytes[Below(from, bytes.size())] = from.ConsumeIntegral<unsigned char>();
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

void Examine(FuzzedDataProvider& from) {
    const auto bytes = ExamineAnswers(from);
    ExamineDamage(from, {bytes.begin(), bytes.end()});
}

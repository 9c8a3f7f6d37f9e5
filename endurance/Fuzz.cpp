// Made-up answers, damaged configurations and texts: what has to hold for each of them.
//   fuzz -runs=N -seed=1 -max_len=256
#include "app/Blanks.h"
#include "app/FileNames.h"
#include "app/Numbers.h"
#include "app/Paths.h"
#include "ndw/DcpFromAnswers.h"
#include "ndw/Summary.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <cstdio>
#include <cstdlib>

namespace {

// Ends the program, and so is reported with the input that led here, unless `holds`.
void Require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "Does not hold: %s\n", what);
    std::abort();
}
#define REQUIRE(condition) Require((condition), #condition)

// 0 to count - 1. When the input is used up every choice is the first one, so that all of it ends.
std::size_t Below(FuzzedDataProvider& from, std::size_t count) {
    return from.ConsumeIntegralInRange<std::size_t>(0, count - 1);
}

// Mostly of the characters in `alphabet`, now and then of any 16-bit code.
std::wstring Text(FuzzedDataProvider& from, std::size_t longest, std::wstring_view alphabet) {
    std::wstring text(Below(from, longest + 1), L' ');
    for (wchar_t& c : text)
        c = Below(from, 16) ? alphabet[Below(from, alphabet.size())] : from.ConsumeIntegral<std::uint16_t>();
    return text;
}

unsigned char LowByte(wchar_t c) { return static_cast<unsigned char>(c); }

// Answers that the pages can give; the texts are ASCII, without what stands for an answer that is none.
NdwAnswers ValidAnswers(FuzzedDataProvider& from) {
    const auto index = [&](std::size_t count) { return static_cast<std::int16_t>(Below(from, count)); };
    const auto ascii = [&] {
        std::wstring text = Text(from, kCodesLength, L"ABCxyz019 (%$-+.");
        std::erase_if(text, [](wchar_t c) { return c < L' ' || c > L'~' || c == L'?'; });
        return text;
    };
    return {index(kPortCount),
            index(kBaudRates.size()),
            index(kDataFormats.size()),
            index(kCharacterFormats.size()),
            index(kFlowControls.size()),
            index(kEndOfBlocks.size()),
            index(std::size_t{1} << kPrefixChoices.size()),
            index(std::size_t{1} << kSuffixChoices.size()),
            index(std::size_t{1} << kFilterOptions.size()),
            index(kTransmitTriggers.size()),
            index(kReceiveNamings.size()),
            index(kReceiveTerminations.size()),
            ascii(),
            ascii(),
            from.PickValueInArray({L"", L"NC", L"MIN", L"x"}),
            L""};
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

void ExaminePaths(FuzzedDataProvider& from) {
    constexpr std::size_t kNone = std::wstring::npos;
    const std::wstring path = Text(from, 40, L"cC:\\\\..ab /");
    const std::wstring drive = SplitPath(path, 1);
    const std::wstring folder = SplitPath(path, 2);
    const std::wstring name = SplitPath(path, 3);
    const std::wstring extension = SplitPath(path, 4);
    const std::wstring file = SplitPath(path, 5);
    REQUIRE(drive + folder + file == path);
    REQUIRE(drive + folder == SplitPath(path, 6));
    REQUIRE(drive.empty() || (drive.size() == 2 && drive[1] == L':'));
    REQUIRE(folder.empty() || folder.back() == L'\\');
    REQUIRE(file == name || file == name + L"." + extension);
    REQUIRE((file + extension).find(L'\\') == kNone && extension.find(L'.') == kNone);
    REQUIRE(SplitPath(path, static_cast<std::int16_t>(7 + Below(from, 30000))).empty());

    const std::wstring whole = WithBackslash(path);
    REQUIRE(whole == path || whole == path + L"\\");
    REQUIRE(WithBackslash(whole) == whole && (path.empty() || whole.back() == L'\\'));

    const std::wstring text = Text(from, 8, L" .ab*09-+\t");
    const std::wstring trimmed = TrimBlanks(text);
    REQUIRE(text.find(trimmed) != kNone && TrimBlanks(L" " + trimmed + L"  ") == trimmed);
    REQUIRE(IsReservedName(text) == IsReservedName(L" " + text + L".x"));
    const auto checked = CheckedExtension(text);
    REQUIRE(!checked || (checked->size() <= 3 && IsValidName(*checked) && checked->find(L'.') == kNone));
    const auto number = from.ConsumeIntegral<std::int32_t>();
    REQUIRE(NumericValue(L" " + std::to_wstring(number) + L"x" + text) == number);
}

} // namespace

// What the fuzzer calls.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    FuzzedDataProvider from(data, size);
    const auto bytes = ExamineAnswers(from);
    ExamineDamage(from, {bytes.begin(), bytes.end()});
    ExaminePaths(from);
    return 0;
}

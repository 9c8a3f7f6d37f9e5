#include "endurance/MonkeyAnswers.h"

#include "app/CodePage.h"
#include "app/Names.h"
#include "app/modLocations.h"
#include "ftw/FtwPages.h"
#include "ndw/DcpFromAnswers.h"
#include "ndw/NdwPages.h"
#include "win/Handles.h"

#include <algorithm>
#include <cwctype>

namespace {

// How a page's inputs, in their order, become answers.
enum class Stores { One, Set, Typed, TypedAsItIs };
struct Row {
    const wchar_t* heading;
    Stores how;
    std::int16_t* index;
    std::wstring* texts[2];
    const wchar_t* skippedTo; // page after Skip, which stores nothing
};

NdwAnswers& answers = ndwSession.answers;

// clang-format off
const Row kRows[] = {
    {L"COM Port",                  Stores::One,         &answers.portIndex,               {}, nullptr},
    {L"Baud Rate",                 Stores::One,         &answers.baudIndex,               {}, nullptr},
    {L"Data Format",               Stores::One,         &answers.dataFormatIndex,         {}, nullptr},
    {L"ASCII Character Format",    Stores::One,         &answers.characterFormatIndex,    {}, nullptr},
    {L"Flow Control",              Stores::One,         &answers.flowControlIndex,        {}, nullptr},
    {L"End of Block",              Stores::One,         &answers.endOfBlockIndex,         {}, nullptr},
    {L"Transmit Prefix",           Stores::Set,         &answers.prefixChoice,            {}, nullptr},
    {L"Transmit Suffix",           Stores::Set,         &answers.suffixChoice,            {}, nullptr},
    {L"Line Removal",              Stores::Typed,       nullptr, {&answers.removedLines},     nullptr},
    {L"Filter Options",            Stores::Set,         &answers.filterOptions,           {}, nullptr},
    {L"Transmit Trigger",          Stores::One,         &answers.transmitTriggerIndex,    {}, nullptr},
    {L"Receive File Name",         Stores::Typed,       &answers.receiveNamingIndex,
                                             {&answers.receivePrefix, &answers.receiveExtension}, nullptr},
    {L"End of Reception",          Stores::One,         &answers.receiveTerminationIndex, {}, nullptr},
    {kNamePage,                    Stores::TypedAsItIs, nullptr, {&answers.name},             nullptr},
    {kLocationPage,                Stores::TypedAsItIs, nullptr, {&ftwSession.location.folders},
                                                                        L"Configure Communication Options"},
};
// clang-format on

constexpr int kIconOffset = 114, kIconEnd = 178;

// What cannot be stored leaves the answer as it was.
bool CanBeStored(const std::wstring& typed, std::size_t limit) {
    return typed.size() <= limit &&
           std::all_of(typed.begin(), typed.end(), [](wchar_t c) { return std::iswalnum(c) && c < 128; });
}

std::wstring Difference(const Row& row, const Shown& shown, bool left) {
    const int chosen = row.how == Stores::Set ? shown.set : shown.places ? shown.option : shown.index;
    if (row.index && *row.index != std::max(chosen, 0))
        return std::wstring(row.heading) + L" shows " + std::to_wstring(chosen) + L", stored is " +
               std::to_wstring(*row.index);
    for (std::size_t i = 0; i < 2 && row.texts[i]; ++i) {
        const std::wstring& typed = shown.texts.at(i);
        if (left && row.how == Stores::Typed && !CanBeStored(typed, i == 0 ? kCodesLength : 3)) continue;
        if (*row.texts[i] != typed)
            return std::wstring(row.heading) + L" shows \"" + typed + L"\", stored is \"" + *row.texts[i] +
                   L"\"";
    }
    return {};
}

} // namespace

bool MadeConfiguration(const Shown& left, const Shown& opened) {
    return left.heading == kNamePage && opened.heading == kLastPage;
}

std::wstring WrongAnswer(const Shown& left, const Shown& opened) {
    std::wstring wrong;
    for (const Row& row : kRows) {
        const bool skipped = row.skippedTo && opened.heading == row.skippedTo;
        if (left.heading == row.heading && !skipped && !MadeConfiguration(left, opened))
            wrong += Difference(row, left, true);
        if (opened.heading == row.heading) wrong += Difference(row, opened, false);
    }
    return wrong;
}

std::wstring WrongFile(const std::wstring& typedName) {
    std::vector<unsigned char> bytes(2 * kDcpFileSize);
    DWORD size = 0;
    const std::wstring path = ConfigurationFile(TrimBlanks(typedName));
    const win::UniqueKernelHandle file(
        CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    ReadFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &size, nullptr);
    DcpRecords records;
    SetDcpHeaderDefaults(records.header);
    SetDcpRecord4Defaults(records.record4);
    FillDcpRecords(records, answers, L"");
    PrepareForWriting(records);
    const auto expected = DcpBytes(records, ToAnsiByte);
    const auto same = [&](int from, int to) {
        return std::equal(expected.begin() + from, expected.begin() + to, bytes.begin() + from);
    };
    if (size == kDcpFileSize && same(0, kIconOffset) && same(kIconEnd, kDcpFileSize)) return {};
    return L"a file of " + std::to_wstring(size) + L" bytes differs from the answers";
}

#pragma once

#include "ndw/modDcp.h"

#include <tuple>
#include <type_traits>

// The fields of the four records in file order, each with its offset within its record and the default
// that a new configuration gives it. modDcp sets defaults, writes and reads by these tables;
// docs/dcp-format.md holds the same tables in words.

// The default of a text that stays at code 0.
inline constexpr const wchar_t* kUnassigned = nullptr;

// One row: where the field begins in its record, which member it is, what a new configuration holds there.
template <class Record, class Member, class Default> struct DcpField {
    std::size_t offset;
    Member Record::*member;
    Default byDefault;
};

// The makers of rows, by kind of field. An offset is written out so that a reader can hold it against the
// document; FieldsFill holds it against the widths.
template <class Record, std::size_t N>
constexpr auto DcpText(std::size_t offset, FixedText<N> Record::*member,
                       const wchar_t* byDefault = kUnassigned) {
    return DcpField<Record, FixedText<N>, const wchar_t*>{offset, member, byDefault};
}

template <class Record>
constexpr auto DcpNumber(std::size_t offset, std::int16_t Record::*member, std::int16_t byDefault = 0) {
    return DcpField<Record, std::int16_t, std::int16_t>{offset, member, byDefault};
}

constexpr auto DcpEntries(std::size_t offset, DcpTable DcpRecord4::*member) {
    return DcpField<DcpRecord4, DcpTable, const wchar_t*>{offset, member, kUnassigned};
}

// clang-format off
inline constexpr std::tuple kHeaderFields{
    DcpText(      0, &DcpHeader::signature,            kDcpSignature),
    DcpText(      9, &DcpHeader::unknown9,             L""),
    DcpText(     49, &DcpHeader::endOfFileMarker,      kEndOfFileMarker),
    DcpNumber(   50, &DcpHeader::unknown50,            0),
    DcpText(     52, &DcpHeader::unknown52,            kUnassigned),
    DcpNumber(   72, &DcpHeader::unknown72,            0),
    DcpText(     74, &DcpHeader::unknown74,            L""),
    DcpText(     84, &DcpHeader::unknown84,            kUnassigned),
    DcpText(    114, &DcpHeader::iconName,             L"Varnel"),
    DcpNumber(  178, &DcpHeader::portNumber,           1),
    DcpNumber(  180, &DcpHeader::unknown180,           0),
    DcpNumber(  182, &DcpHeader::unknown182,           0),
    DcpNumber(  184, &DcpHeader::baudA,                7),
    DcpNumber(  186, &DcpHeader::parityA,              1),
    DcpNumber(  188, &DcpHeader::dataBitsA,            0),
    DcpNumber(  190, &DcpHeader::unknown190,           1),
    DcpNumber(  192, &DcpHeader::flowControlA,         1),
    DcpNumber(  194, &DcpHeader::dataFormatA,          0),
    DcpNumber(  196, &DcpHeader::baudB,                7),
    DcpNumber(  198, &DcpHeader::parityB,              1),
    DcpNumber(  200, &DcpHeader::dataBitsB,            0),
    DcpNumber(  202, &DcpHeader::unknown202,           1),
    DcpNumber(  204, &DcpHeader::flowControlB,         1),
    DcpNumber(  206, &DcpHeader::dataFormatB,          0),
    DcpNumber(  208, &DcpHeader::sendsLf,              -1),
    DcpNumber(  210, &DcpHeader::sendsCr,              0),
    DcpNumber(  212, &DcpHeader::unknown212,           0),
    DcpText(    214, &DcpHeader::unknown214,           kUnassigned),
    DcpNumber(  218, &DcpHeader::unknown218,           0),
    DcpText(    220, &DcpHeader::unknown220,           L""),
    DcpText(    240, &DcpHeader::transmitPrefix,       L"^J"),
    DcpText(    250, &DcpHeader::transmitSuffix,       L"%"),
    DcpText(    260, &DcpHeader::unknown260,           L""),
    DcpText(    280, &DcpHeader::unknown280,           L""),
    DcpText(    320, &DcpHeader::unknown320,           L""),
    DcpNumber(  360, &DcpHeader::unknown360,           0),
    DcpNumber(  362, &DcpHeader::unknown362,           -1),
    DcpText(    364, &DcpHeader::unknown364,           L""),
    DcpText(    384, &DcpHeader::unknown384,           L""),
    DcpText(    404, &DcpHeader::unknown404,           L""),
    DcpText(    444, &DcpHeader::unknown444,           L""),
    DcpNumber(  484, &DcpHeader::unknown484,           0),
    DcpText(    486, &DcpHeader::removedLines,         L""),
    DcpText(    496, &DcpHeader::removesBlankLines,    L""),
    DcpNumber(  497, &DcpHeader::removesComments,      1),
    DcpNumber(  499, &DcpHeader::toUpperCase,          0),
    DcpNumber(  501, &DcpHeader::removesSpaces,        0),
    DcpNumber(  503, &DcpHeader::unknown503,           0),
    DcpNumber(  505, &DcpHeader::unknown505,           1),
    DcpNumber(  507, &DcpHeader::unknown507,           0),
    DcpNumber(  509, &DcpHeader::unknown509,           0),
    DcpNumber(  511, &DcpHeader::unknown511,           0),
    DcpNumber(  513, &DcpHeader::transmitTrigger,      17),
    DcpNumber(  515, &DcpHeader::unknown515,           1),
    DcpNumber(  517, &DcpHeader::unknown517,           0),
    DcpNumber(  519, &DcpHeader::unknown519,           0),
    DcpText(    521, &DcpHeader::unknown521,           L""),
    DcpNumber(  777, &DcpHeader::unknown777,           -1),
    DcpText(    779, &DcpHeader::unknown779,           L""),
    DcpText(    789, &DcpHeader::unknown789,           L""),
    DcpText(    799, &DcpHeader::receiveTimeout,       L""),
    DcpNumber(  809, &DcpHeader::receiveTermination,   0),
    DcpText(    811, &DcpHeader::unknown811,           kUnassigned),
    DcpNumber(  819, &DcpHeader::unknown819,           1),
    DcpText(    821, &DcpHeader::unknown821,           L""),
    DcpNumber( 1077, &DcpHeader::unknown1077,          0),
    DcpNumber( 1079, &DcpHeader::namesReceived,        0),
    DcpText(   1081, &DcpHeader::namingMarker,         L"O"),
    DcpNumber( 1091, &DcpHeader::namingLine,           1),
    DcpText(   1093, &DcpHeader::namingStart,          L"1"),
    DcpText(   1103, &DcpHeader::namingEnd,            L""),
    DcpText(   1105, &DcpHeader::receivePrefix,        L""),
    DcpText(   1115, &DcpHeader::unknown1115,          L""),
    DcpText(   1122, &DcpHeader::receiveExtension,     L""),
};

inline constexpr std::tuple kRecord2Fields{
    DcpText(      0, &DcpRecord2::unknown0),
    DcpNumber(    4, &DcpRecord2::unknown4),
    DcpText(      6, &DcpRecord2::unknown6),
    DcpNumber(   26, &DcpRecord2::unknown26),
    DcpText(     28, &DcpRecord2::unknown28),
    DcpNumber(   38, &DcpRecord2::unknown38),
    DcpText(     40, &DcpRecord2::removedLines),
    DcpText(     50, &DcpRecord2::unknown50),
};

inline constexpr std::tuple kRecord3Fields{
    DcpText(      0, &DcpRecord3::unknown0),
};

inline constexpr std::tuple kRecord4Fields{
    DcpNumber(    0, &DcpRecord4::unknown0,            0),
    DcpNumber(    2, &DcpRecord4::unknown2,            2),
    DcpText(      4, &DcpRecord4::unknown4,            L"O799"),
    DcpEntries( 260, &DcpRecord4::entries),
    DcpText(   1220, &DcpRecord4::unknown1220,         L"-"),
    DcpText(   1221, &DcpRecord4::unknown1221,         L""),
    DcpText(   1261, &DcpRecord4::unknown1261,         L"("),
    DcpText(   1271, &DcpRecord4::unknown1271,         L")"),
    DcpNumber( 1281, &DcpRecord4::unknown1281,         0),
    DcpText(   1283, &DcpRecord4::unknown1283,         kUnassigned),
    DcpNumber( 1404, &DcpRecord4::unknown1404,         0),
    DcpNumber( 1406, &DcpRecord4::unknown1406,         0),
    DcpText(   1408, &DcpRecord4::unknown1408,         L"O7999 (DNC MESSAGES)"),
    DcpNumber( 1662, &DcpRecord4::unknown1662,         0),
    DcpText(   1664, &DcpRecord4::unknown1664,         L"("),
    DcpText(   1674, &DcpRecord4::unknown1674,         L")"),
};
// clang-format on

// ---- widths in the file ----
// Bytes of a member, by its type.
template <class Member> struct DcpWidth;
template <> struct DcpWidth<std::int16_t> { static constexpr std::size_t value = 2; };
template <std::size_t N> struct DcpWidth<FixedText<N>> { static constexpr std::size_t value = N; };
template <> struct DcpWidth<DcpTable> {
    static constexpr std::size_t value = std::tuple_size_v<DcpTable> * 30;
};

// Whether the fields follow each other without a gap and fill `size` bytes.
template <class... Record, class... Member, class... Default>
constexpr bool FieldsFill(const std::tuple<DcpField<Record, Member, Default>...>& fields, std::size_t size) {
    std::size_t end = 0;
    bool inOrder = true;
    const auto append = [&](std::size_t offset, std::size_t width) {
        inOrder = inOrder && offset == end;
        end += width;
    };
    std::apply([&](const auto&... field) { (append(field.offset, DcpWidth<Member>::value), ...); }, fields);
    return inOrder && end == size;
}

// Where the field of a member begins within its record.
template <class Fields, class Member> constexpr std::size_t OffsetOf(const Fields& fields, Member member) {
    std::size_t offset = 0;
    const auto compare = [&](const auto& field) {
        if constexpr (std::is_same_v<std::remove_cvref_t<decltype(field.member)>, Member>) {
            if (field.member == member) offset = field.offset;
        }
    };
    std::apply([&](const auto&... field) { (compare(field), ...); }, fields);
    return offset;
}

static_assert(FieldsFill(kHeaderFields, 1125));
static_assert(FieldsFill(kRecord2Fields, 140));
static_assert(FieldsFill(kRecord3Fields, 2500));
static_assert(FieldsFill(kRecord4Fields, 1684));
static_assert(1125 + 140 + 2500 + 1684 == kDcpFileSize);

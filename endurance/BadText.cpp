#include "endurance/BadText.h"

#include <string_view>

namespace {

using namespace std::literals;

struct Row {
    std::wstring_view text;
    As name;
};

// clang-format off
constexpr Row kTexts[] = {
    // devices
    {L"CON"sv,              As::Refused}, {L"con"sv,             As::Refused}, {L"PRN"sv,           As::Refused},
    {L"AUX"sv,              As::Refused}, {L"NUL"sv,             As::Refused}, {L"nul.txt"sv,       As::Refused},
    {L"COM1"sv,             As::Refused}, {L"COM9"sv,            As::Refused}, {L"COM1 "sv,         As::Refused},
    {L" COM1"sv,            As::Refused}, {L"COM1 .x"sv,         As::Refused}, {L"COM1.a.b"sv,      As::Refused},
    {L"COM0"sv,             As::Refused}, {L"LPT0"sv,            As::Refused}, {L"LPT1"sv,          As::Refused},
    {L"lpt9.nc"sv,          As::Refused}, {L"COM\x00B9"sv,       As::Refused}, {L"LPT\x00B2"sv,     As::Refused},
    {L"COM\x00B3.x"sv,      As::Refused}, {L"CONIN$"sv,          As::Refused}, {L"conout$"sv,       As::Refused},
    {L"\\\\.\\COM1"sv,      As::Refused}, {L"COM1:"sv,           As::Refused}, {L"AUX .DCP"sv,      As::Refused},
    {L"COM10"sv,            As::File},    {L"COMX"sv,            As::File},    {L"COM"sv,           As::File},
    {L"LPT"sv,              As::File},    {L"NULL"sv,            As::File},    {L"CONS"sv,          As::File},
    {L"x.COM1"sv,           As::File},    {L"CLOCK$"sv,          As::File},    {L"COM1x"sv,         As::File},
    // ways elsewhere
    {L"."sv,                As::Refused}, {L".."sv,              As::Refused}, {L"..."sv,           As::Refused},
    {L"..\\x"sv,            As::Refused}, {L"../x"sv,            As::Refused}, {L"a/b"sv,           As::Refused},
    {L"a\\b"sv,             As::Refused}, {L"C:x"sv,             As::Refused}, {L"C:\\x"sv,         As::Refused},
    {L"\\\\?\\x"sv,         As::Refused}, {L"\\\\host\\share"sv, As::Refused}, {L"x:stream"sv,      As::Refused},
    {L"x::$DATA"sv,         As::Refused}, {L"\\"sv,              As::Refused}, {L"/"sv,             As::Refused},
    {L".. "sv,              As::Refused}, {L" ."sv,              As::Refused}, {L".\\x"sv,          As::Refused},
    // tails that get lost
    {L"abc."sv,             As::Refused}, {L"abc.."sv,           As::Refused}, {L"abc. "sv,         As::Refused},
    {L"abc . "sv,           As::Refused}, {L"tail blank "sv,     As::File},    {L" head blank"sv,   As::File},
    {L"tab\t"sv,            As::Refused}, {L"\ttab"sv,           As::Refused}, {L".head"sv,         As::File},
    // the nine characters, wildcards among them
    {L"a*b"sv,              As::Refused}, {L"a?b"sv,             As::Refused}, {L"a\"b"sv,          As::Refused},
    {L"a<b"sv,              As::Refused}, {L"a>b"sv,             As::Refused}, {L"a|b"sv,           As::Refused},
    {L"a:b"sv,              As::Refused}, {L"*"sv,               As::Refused}, {L"?"sv,             As::Refused},
    {L"*.*"sv,              As::Refused}, {L"\""sv,              As::Refused}, {L"<b>x</b>"sv,      As::Refused},
    // control characters
    {L"a\x01z"sv,           As::Refused}, {L"a\x02z"sv,          As::Refused}, {L"a\x07z"sv,        As::Refused},
    {L"a\x08z"sv,           As::Refused}, {L"a\tz"sv,            As::Refused}, {L"a\x0Bz"sv,        As::Refused},
    {L"a\x0Cz"sv,           As::Refused}, {L"a\x1Bz"sv,          As::Refused}, {L"a\x1Fz"sv,        As::Refused},
    {L"a\x7Fz"sv,           As::Refused}, {L"a\x81z"sv,          As::Refused}, {L"a\x9Fz"sv,        As::Refused},
    // nothing
    {L""sv,                 As::Refused}, {L" "sv,               As::Refused}, {L"          "sv,    As::Refused},
    {L"\t"sv,               As::Refused}, {L"\x00A0"sv,          As::File},    {L"\x3000"sv,        As::Refused},
    // outside the code page, best-fit characters among them
    {L"\xD83D\xDE00"sv,     As::Refused}, {L"a\xD83D\xDE00z"sv,  As::Refused}, {L"a\xD83Dz"sv,      As::Refused},
    {L"a\xDE00z"sv,         As::Refused}, {L"\x05E9\x05DC"sv,    As::Refused}, {L"\x0645\x0631"sv,  As::Refused},
    {L"a\x202Egpj.z"sv,     As::Refused}, {L"a\x200Fz"sv,        As::Refused}, {L"a\x200Bz"sv,      As::Refused},
    {L"e\x0301"sv,          As::Refused}, {L"\xFF21\xFF22"sv,    As::Refused}, {L"a\x2215z"sv,      As::Refused},
    {L"a\xFF0Fz"sv,         As::Refused}, {L"a\xFF3Cz"sv,        As::Refused}, {L"a\xFF1Az"sv,      As::Refused},
    {L"\xFF23\xFF2F\xFF2D\xFF11"sv, As::Refused},                              {L"a\x2044z"sv,      As::Refused},
    {L"a\x0430z"sv,         As::Refused}, {L"\x4E2D\x6587"sv,    As::Refused}, {L"a\xFFFEz"sv,      As::Refused},
    {L"a\xFFFFz"sv,         As::Refused}, {L"a\xFEFFz"sv,        As::Refused}, {L"\x0141\x00F3"sv,  As::Refused},
    {L"a\x2028z"sv,         As::Refused}, {L"a\xE000z"sv,        As::Refused}, {L"a\x0131z"sv,      As::Refused},
    // odd but whole; the first two names are there already
    {L"%TEMP%"sv,           As::File},    {L"%1"sv,              As::File},    {L"%s%n%x"sv,        As::File},
    {L"Mixed Case"sv,       As::Refused},   {L"MIXED CASE"sv,      As::Refused}, {L"mixed case"sv,    As::Refused},
    {L"\x00DC\x00F6\x00DF"sv, As::Refused}, {L"\x00FC\x00D6\x00DF"sv, As::Refused}, {L"\x20AC 5"sv,   As::File},
    {L"a&b"sv,              As::File},    {L"&File"sv,           As::File},    {L"a'b"sv,           As::File},
    {L"a;b"sv,              As::File},    {L"a,b"sv,             As::File},    {L"a=b"sv,           As::File},
    {L"[General]"sv,        As::File},    {L"{x}"sv,             As::File},    {L"$(x)"sv,          As::File},
    {L"`x`"sv,              As::File},    {L"~"sv,               As::File},    {L"a^b"sv,           As::File},
    {L"!"sv,                As::File},    {L"#"sv,               As::File},    {L"@"sv,             As::File},
    {L"x.DCP"sv,            As::File},    {L"x.dcp.dcp"sv,       As::File},    {L"VarnelDnc.ini"sv, As::File},
    {L"two  blanks"sv,      As::File},    {L"-x"sv,              As::File},    {L"0"sv,             As::File},
};
// clang-format on

} // namespace

const std::vector<BadText>& BadTexts() {
    static const std::vector<BadText> texts = [] {
        std::vector<BadText> all;
        for (const Row& row : kTexts)
            all.push_back({std::wstring(row.text), row.name});
        all.push_back({std::wstring(300, L'n'), As::Refused});
        all.push_back({std::wstring(5000, L'n'), As::Refused});
        all.push_back({std::wstring(30000, L'\\'), As::Refused});
        all.push_back({std::wstring(251, L'\x00E4'), As::Refused});
        return all;
    }();
    return texts;
}

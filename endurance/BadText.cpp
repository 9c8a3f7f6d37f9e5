#include "endurance/BadText.h"

namespace {

// clang-format off
constexpr const wchar_t* kRefused[] = {
    // devices
    L"CON", L"con", L"PRN", L"AUX", L"NUL", L"nul.txt", L"COM1", L"COM9", L"COM1 ", L" COM1", L"COM1 .x",
    L"COM1.a.b", L"COM0", L"LPT0", L"LPT1", L"lpt9.nc", L"COM\x00B9", L"LPT\x00B2", L"COM\x00B3.x", L"CONIN$",
    L"conout$", L"\\\\.\\COM1", L"COM1:", L"AUX .DCP",
    // ways elsewhere
    L".", L"..", L"...", L"..\\x", L"../x", L"a/b", L"a\\b", L"C:x", L"C:\\x", L"\\\\?\\x", L"\\\\host\\share",
    L"x:stream", L"x::$DATA", L"\\", L"/", L".. ", L" .", L".\\x",
    // tails that get lost
    L"abc.", L"abc..", L"abc. ", L"abc . ", L"tab\t", L"\ttab",
    // the nine characters, wildcards among them
    L"a*b", L"a?b", L"a\"b", L"a<b", L"a>b", L"a|b", L"a:b", L"*", L"?", L"*.*", L"\"", L"<b>x</b>",
    // control characters
    L"a\x01z", L"a\x02z", L"a\x07z", L"a\x08z", L"a\tz", L"a\x0Bz", L"a\x0Cz", L"a\x1Bz", L"a\x1Fz", L"a\x7Fz",
    L"a\x81z", L"a\x9Fz",
    // nothing
    L"", L" ", L"          ", L"\t", L"\x3000",
    // outside the code page, best-fit characters among them
    L"\xD83D\xDE00", L"a\xD83D\xDE00z", L"a\xD83Dz", L"a\xDE00z", L"\x05E9\x05DC", L"\x0645\x0631",
    L"a\x202Egpj.z", L"a\x200Fz", L"a\x200Bz", L"e\x0301", L"\xFF21\xFF22", L"a\x2215z", L"a\xFF0Fz",
    L"a\xFF3Cz", L"a\xFF1Az", L"\xFF23\xFF2F\xFF2D\xFF11", L"a\x2044z", L"a\x0430z", L"\x4E2D\x6587",
    L"a\xFFFEz", L"a\xFFFFz", L"a\xFEFFz", L"\x0141\x00F3", L"a\x2028z", L"a\xE000z", L"a\x0131z",
    // there already, or equal to these but for case
    L"Mixed Case", L"MIXED CASE", L"mixed case", L"\x00DC\x00F6\x00DF", L"\x00FC\x00D6\x00DF",
};
constexpr const wchar_t* kFiles[] = {
    // not quite devices
    L"COM10", L"COMX", L"COM", L"LPT", L"NULL", L"CONS", L"x.COM1", L"CLOCK$", L"COM1x",
    // tails that get lost
    L"tail blank ", L" head blank", L".head",
    // odd but whole
    L"\x00A0", L"%TEMP%", L"%1", L"%s%n%x", L"\x20AC 5", L"a&b", L"&File", L"a'b", L"a;b", L"a,b", L"a=b", L"[General]",
    L"{x}", L"$(x)", L"`x`", L"~", L"a^b", L"!", L"#", L"@", L"x.DCP", L"x.dcp.dcp", L"VarnelDnc.ini",
    L"two  blanks", L"-x", L"0",
};
// clang-format on

} // namespace

const std::vector<BadText>& BadTexts() {
    static const std::vector<BadText> texts = [] {
        std::vector<BadText> all = {{std::wstring(300, L'n'), As::Refused},
                                    {std::wstring(5000, L'n'), As::Refused},
                                    {std::wstring(30000, L'\\'), As::Refused},
                                    {std::wstring(251, L'\x00E4'), As::Refused}};
        for (const wchar_t* text : kRefused)
            all.push_back({text, As::Refused});
        for (const wchar_t* text : kFiles)
            all.push_back({text, As::File});
        return all;
    }();
    return texts;
}

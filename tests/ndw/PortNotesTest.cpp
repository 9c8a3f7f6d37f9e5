#include "ndw/PortNotes.h"

#include <gtest/gtest.h>

TEST(PortNotes, ListAndUse) {
    const std::wstring just24(24, L'W'), cut24 = std::wstring(23, L'W') + L"\u2026";
    const std::wstring pairs = std::wstring(22, L'x') + L"\xD83D\xDE00yz";
    const struct {
        PortNote note;
        std::wstring_view caption;
        std::wstring use;
    } rows[] = {
        {{false, {}}, L"COM3", L""},
        {{true, {}}, L"COM3 - on this computer", L""},
        {{true, {L"A", L"B"}}, L"COM3 - on this computer, in use", L"COM3 is used by A and B."},
        {{false, {L"A", L"B", L"C"}}, L"COM3 - in use", L"COM3 is used by A, B and C."},
        {{false, {L"A", L"B", L"C", L"D", L"E"}}, L"COM3 - in use", L"COM3 is used by A, B, C and 2 more."},
        {{false, {just24, just24 + L"W"}},
         L"COM3 - in use",
         L"COM3 is used by " + just24 + L" and " + cut24 + L"."},
        {{false, {pairs}}, L"COM3 - in use", L"COM3 is used by " + std::wstring(22, L'x') + L"\u2026."},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(PortCaption(3, row.note), row.caption);
        EXPECT_EQ(PortUseText(3, row.note), row.use);
    }
}

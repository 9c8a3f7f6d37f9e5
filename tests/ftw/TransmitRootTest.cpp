#include "ftw/TransmitRoot.h"

#include <gtest/gtest.h>

TEST(TransmitRoot, StoredValueOfWhatIsTyped) {
    // clang-format off
    const struct {
        std::wstring typed;
        bool floppy;
        std::wstring_view value, path;
    } rows[] = {
        {L"   ",               true,  L"Computer;",            L""},
        {L"D:\\Cnc",           false, L"D:\\Cnc;",             L"D:\\Cnc"},
        {L"  D:\\My Cnc;  ",   true,  L"D:\\My Cnc;A:;",       L"D:\\My Cnc"},
        {L"D:\\Cnc;E:\\Prog",  false, L"D:\\Cnc;E:\\Prog;",    L"D:\\Cnc;E:\\Prog"},
        {L"D:\\Cnc;;",         false, L"D:\\Cnc;;",            L"D:\\Cnc;"},
        {L";",                 false, L";",                    L""},
    };
    // clang-format on
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.typed));
        EXPECT_EQ(TransmitRootValue({row.typed, row.floppy}), row.value);
        EXPECT_EQ(LocationPath(row.typed), row.path);
        EXPECT_EQ(IsFolderList(row.path), row.path.find(L';') != row.path.npos);
    }
}

TEST(TransmitRoot, KeptValueIsShownAndStoredAsItWas) {
    // clang-format off
    const struct {
        std::wstring value, folders;
        bool floppy;
    } rows[] = {
        {L"Computer;",             L"",                    false},
        {L"D:\\Cnc;",              L"D:\\Cnc",             false},
        {L"D:\\Cnc;E:\\Prog;A:;",  L"D:\\Cnc;E:\\Prog",    true },
        {L"A:;",                   L"A:",                  false}, // the one folder there is
        {L"D:\\DATA:;",            L"D:\\DATA:",           false}, // no folder of its own
        {L"D:\\Cnc;;",             L"D:\\Cnc;;",           false},
        {L";A:;",                  L";",                   true },
    };
    // clang-format on
    for (const auto& row : rows) {
        const CncLocation location = ReadTransmitRoot(row.value);
        EXPECT_EQ(location.folders, row.folders);
        EXPECT_EQ(location.floppy, row.floppy) << testing::PrintToString(row.value);
        EXPECT_EQ(TransmitRootValue(location), row.value);
    }
    EXPECT_EQ(ReadTransmitRoot(L"D:\\Cnc").folders, L"D:\\Cnc"); // written by hand
}

TEST(TransmitRoot, QuotationMarksAroundAPathAreDropped) {
    const std::pair<const wchar_t*, const wchar_t*> rows[] = {
        {L" \"D:\\A\" ; E:\\ B;\"F:\\C\";", L"D:\\A; E:\\ B;F:\\C;"},
        {L"\"D:\\A;E:\\B\"", L"D:\\A;E:\\B"}, // around the whole list
        {L"\"D:\\A", L"\"D:\\A"},
        {L"\"A\" \"B\"", L"\"A\" \"B\""},
        {L"\"\"", L"\"\""},
    };
    for (const auto& [typed, folders] : rows)
        EXPECT_EQ(WithoutQuotes(typed), folders);
}

TEST(TransmitRoot, ShownIsTheBeginning) {
    const std::wstring most(2000, L'x'), half = most.substr(1) + L"\xD83D";
    EXPECT_EQ(ShownLocation(most), most);
    EXPECT_EQ(ShownLocation(half + L"\xDE00"), most.substr(1) + L"\x2026");
}

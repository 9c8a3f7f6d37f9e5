#include "ftw/TransmitRoot.h"

#include <gtest/gtest.h>

TEST(TransmitRoot, StoredValueOfWhatIsTyped) {
    struct Row {
        std::wstring_view typed;
        bool floppy;
        std::wstring_view value, path;
    };
    // clang-format off
    const Row rows[] = {
        {L"",                  false, L"Computer;",            L""},
        {L"   ",               true,  L"Computer;",            L""},
        {L"D:\\Cnc",           false, L"D:\\Cnc;",             L"D:\\Cnc"},
        {L"D:\\Cnc;",          true,  L"D:\\Cnc;A:;",          L"D:\\Cnc"},
        {L"  D:\\My Cnc;  ",   false, L"D:\\My Cnc;",          L"D:\\My Cnc"},
        {L"D:\\Cnc;E:\\Prog",  false, L"D:\\Cnc;E:\\Prog;",    L"D:\\Cnc;E:\\Prog"},
        {L"D:\\Cnc;;",         false, L"D:\\Cnc;;",            L"D:\\Cnc;"},
        {L";",                 false, L";",                    L""},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.typed));
        EXPECT_EQ(TransmitRootValue({std::wstring(row.typed), row.floppy}), row.value);
        EXPECT_EQ(LocationPath(row.typed), row.path);
        EXPECT_EQ(IsFolderList(row.path), row.path.find(L';') != row.path.npos);
    }
}

TEST(TransmitRoot, KeptValueIsShownAndStoredAsItWas) {
    struct Row {
        std::wstring value, folders;
        bool floppy;
    };
    // clang-format off
    const Row rows[] = {
        {L"Computer;",             L"",                    false},
        {L"D:\\Cnc;",              L"D:\\Cnc",             false},
        {L"D:\\Cnc;A:;",           L"D:\\Cnc",             true },
        {L"D:\\Cnc;E:\\Prog;A:;",  L"D:\\Cnc;E:\\Prog",    true },
        {L"A:;",                   L"A:",                  false}, // the one folder there is
        {L"D:\\DATA:;",            L"D:\\DATA:",           false}, // no folder of its own
        {L"Computer;A:;",          L"Computer",            true },
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.value));
        const CncLocation location = ReadTransmitRoot(row.value);
        EXPECT_EQ(location.folders, row.folders);
        EXPECT_EQ(location.floppy, row.floppy);
        EXPECT_EQ(TransmitRootValue(location), row.value);
    }
    EXPECT_EQ(ReadTransmitRoot(L"").folders, L"");
    EXPECT_EQ(ReadTransmitRoot(L"D:\\Cnc").folders, L"D:\\Cnc"); // written by hand
}

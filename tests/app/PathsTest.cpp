#include "app/Paths.h"

#include <gtest/gtest.h>

TEST(Paths, SplitPath) {
    struct Row {
        std::wstring_view path, drive, folder, name, extension;
    };
    // clang-format off
    const Row rows[] = {
        {L"",                      L"",   L"",                   L"",        L""   },
        {L"C:\\CNC\\Mill.v2.nc",   L"C:", L"\\CNC\\",            L"Mill.v2", L"nc" },
        {L"C:\\CNC.old\\",         L"C:", L"\\CNC.old\\",        L"",        L""   },
        {L"C:\\CNC.old\\Mill",     L"C:", L"\\CNC.old\\",        L"Mill",    L""   },
        {L"c:Mill.nc",             L"c:", L"",                   L"Mill",    L"nc" },
        {L"C:",                    L"C:", L"",                   L"",        L""   },
        {L"\\\\srv\\cnc\\a.b",     L"",   L"\\\\srv\\cnc\\",     L"a",       L"b"  },
        {L"\\\\?\\C:\\a",          L"",   L"\\\\?\\C:\\",        L"a",       L""   },
        {L".nc",                   L"",   L"",                   L"",        L"nc" },
        {L"Mill",                  L"",   L"",                   L"Mill",    L""   },
        {L"a/b:c.d",               L"",   L"",                   L"a/b:c",   L"d"  },
        {L"1:\\a",                 L"",   L"1:\\",               L"a",       L""   },
        {L"{:\\a",                 L"",   L"{:\\",               L"a",       L""   },
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.path));
        EXPECT_EQ(SplitPath(row.path, 1), row.drive);
        EXPECT_EQ(SplitPath(row.path, 2), row.folder);
        EXPECT_EQ(SplitPath(row.path, 3), row.name);
        EXPECT_EQ(SplitPath(row.path, 4), row.extension);
        EXPECT_EQ(SplitPath(row.path, 6), SplitPath(row.path, 1) + SplitPath(row.path, 2));
        EXPECT_EQ(SplitPath(row.path, 6) + SplitPath(row.path, 5), row.path);
        EXPECT_EQ(SplitPath(row.path, 0) + SplitPath(row.path, 7) + SplitPath(row.path, -1), L"");
    }
    EXPECT_EQ(SplitPath(L"a\\Mill.", 5), L"Mill.");
}

TEST(Paths, WithBackslash) {
    EXPECT_EQ(WithBackslash(L"C:\\CNC"), L"C:\\CNC\\");
    EXPECT_EQ(WithBackslash(L"C:\\"), L"C:\\");
    EXPECT_EQ(WithBackslash(L""), L"");
}

#include "app/Paths.h"

#include <gtest/gtest.h>

TEST(Paths, SplitPath) {
    // clang-format off
    const struct {
        std::wstring_view path, drive, folder, name, extension;
    } rows[] = {
        {L"",                      L"",   L"",                   L"",        L""   },
        {L"C:\\CNC\\Mill.v2.nc",   L"C:", L"\\CNC\\",            L"Mill.v2", L"nc" },
        {L"C:\\CNC.old\\Mill",     L"C:", L"\\CNC.old\\",        L"Mill",    L""   },
        {L"c:Mill.nc",             L"c:", L"",                   L"Mill",    L"nc" },
        {L"C:",                    L"C:", L"",                   L"",        L""   },
        {L"\\\\?\\C:\\.b",         L"",   L"\\\\?\\C:\\",        L"",        L"b"  },
        {L"a/b:c.d",               L"",   L"",                   L"a/b:c",   L"d"  },
        {L"1:\\a",                 L"",   L"1:\\",               L"a",       L""   },
        {L"{:\\a",                 L"",   L"{:\\",               L"a",       L""   },
    };
    // clang-format on
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.path));
        EXPECT_EQ(SplitPath(row.path, 1), row.drive);
        EXPECT_EQ(SplitPath(row.path, 2), row.folder);
        EXPECT_EQ(SplitPath(row.path, 3), row.name);
        EXPECT_EQ(SplitPath(row.path, 4), row.extension);
        EXPECT_EQ(SplitPath(row.path, 6), SplitPath(row.path, 1) + SplitPath(row.path, 2));
        EXPECT_EQ(SplitPath(row.path, 6) + SplitPath(row.path, 5), row.path);
        EXPECT_EQ(SplitPath(row.path, 0) + SplitPath(row.path, 7), L"");
    }
}

#include "ftw/SampleImport.h"

#include <gtest/gtest.h>

using Texts = std::vector<std::wstring>;

TEST(SampleImport, EntriesAreTheNamesWithoutExtension) {
    EXPECT_EQ(SampleEntries({L"Mill v2.1.dcp", L"Dr\u00fcck & Stanz.DCP", L".dcp"}),
              (Texts{L"Mill v2.1", L"Dr\u00fcck & Stanz", L""}));
    EXPECT_EQ(SampleEntries({}), Texts{L"(No sample files were found)"});
}

TEST(SampleImport, FilesOfTheEntriesInOneList) {
    EXPECT_EQ(SampleFileList(L"C:\\S\\", {}), L"");
    const std::wstring nul(1, L'\0');
    const std::wstring expected = L"C:\\S\\Mill v2.1.DCP" + nul + L"C:\\S\\Drill.DCP" + nul;
    EXPECT_EQ(SampleFileList(L"C:\\S\\", {L"Mill v2.1", L"Drill"}), expected);
}

TEST(SampleImport, Question) {
    EXPECT_EQ(ImportQuestion(1), L"Import 1 sample configuration file?\r\nAre you sure?");
    EXPECT_EQ(ImportQuestion(12), L"Import 12 sample configuration files?\r\nAre you sure?");
}

TEST(SampleImport, NamesWhatIsLeftOut) {
    EXPECT_EQ(LeftOutMessage({L"Mill"}),
              L"This sample was not imported, because its path is too long:\r\n\r\nMill");
    const std::wstring many = LeftOutMessage(Texts(12, L"Mill"));
    EXPECT_TRUE(many.starts_with(L"These samples") && many.ends_with(L"Mill\r\nMill\r\nand 2 more"))
        << many.size();
}

#include "ftw/SampleImport.h"

#include <gtest/gtest.h>

using Texts = std::vector<std::wstring>;

TEST(SampleImport, EntriesAreTheNamesWithoutExtension) {
    EXPECT_EQ(SampleEntries({L"Mill v2.1.dcp", L".dcp"}), (Texts{L"Mill v2.1", L""}));
    EXPECT_EQ(SampleEntries({}), Texts{L"(No sample files were found)"});
}

TEST(SampleImport, FilesOfTheEntriesInOneList) {
    EXPECT_EQ(SampleFileList(L"C:\\", {L"a.b", L"c"}), std::wstring_view(L"C:\\a.b.DCP\0C:\\c.DCP\0", 20));
}

TEST(SampleImport, NamesWhatIsLeftOut) {
    const std::wstring ten = LeftOutMessage(Texts(10, L"Mill")), more = LeftOutMessage(Texts(12, L"Mill"));
    EXPECT_TRUE(more.starts_with(L"These samples") && ten.ends_with(L"\r\nMill\r\nMill"));
    EXPECT_EQ(more, ten + L"\r\nand 2 more");
}

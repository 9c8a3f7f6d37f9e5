#include "ndw/DcpFile.h"

#include "ndw/NdwAnswers.h"
#include "ndw/modDcp.h"
#include "tests/ndw/DcpByHand.h"
#include "tests/support/DemoSuite.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

namespace {

void FillRecords() {
    SetDcpHeaderDefaults(dcpRecords.header);
    SetDcpRecord4Defaults(dcpRecords.record4);
    FillDcpRecords(dcpRecords, NdwDefaultAnswers(), L"");
}

} // namespace

TEST(DcpFile, WritesInPlace) {
    const ScratchFolder folder;
    const std::wstring path = folder.Path() + L"D\u00e4n 1.DCP";
    FillRecords();
    const std::string expected = DcpByHand().Bytes();
    const struct {
        const char* what;
        std::string before;
    } rows[] = {{"shorter", "x"}, {"as long", std::string(5449, 'x')}};
    EXPECT_TRUE(WriteDcpFile(path));
    EXPECT_EQ(FileBytes(path), expected);
    for (const auto& row : rows) {
        WriteFileBytes(path, row.before);
        EXPECT_TRUE(WriteDcpFile(path)) << row.what;
        EXPECT_EQ(FileBytes(path), expected) << row.what;
    }
    EXPECT_EQ(FileNames(folder).size(), 1u);
}

TEST(DcpFile, ALongerFileIsNotCut) {
    const ScratchFolder folder;
    FillRecords();
    WriteFileBytes(folder.Path() + L"a.DCP", std::string(6000, 'x'));
    EXPECT_FALSE(WriteDcpFile(folder.Path() + L"a.DCP")); // not the length that a configuration has
    EXPECT_EQ(FileBytes(folder.Path() + L"a.DCP"), DcpByHand().Bytes() + std::string(551, 'x'));
}

TEST(DcpFile, Refusals) {
    const ScratchFolder folder;
    FillRecords();
    Spoil(folder.Path() + L"folder.DCP", Spoilt::Folder);
    const auto lock = Spoil(folder.Path() + L"locked.DCP", Spoilt::Locked);
    for (const wchar_t* name : {L"missing\\a.DCP", L"folder.DCP", L"locked.DCP", L"COM1.DCP", L"COM1 .DCP",
                                L"NUL.DCP", L"aux.dcp", L"LPT1.x.DCP", L"CONOUT$", L"a?.DCP"})
        EXPECT_FALSE(WriteDcpFile(folder.Path() + name)) << Utf8(name);
    EXPECT_EQ(FileNames(folder), (std::vector<std::wstring>{L"folder.DCP", L"locked.DCP"}));
}

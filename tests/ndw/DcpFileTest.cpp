#include "ndw/DcpFile.h"

#include "ndw/DcpFromAnswers.h"
#include "tests/support/DcpByHand.h"
#include "tests/support/Imports.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

namespace {

decltype(&WriteFile) systemWrite;
BOOL WINAPI WriteHalf(HANDLE file, LPCVOID bytes, DWORD size, LPDWORD written, LPOVERLAPPED overlapped) {
    return systemWrite(file, bytes, size / 2, written, overlapped);
}

} // namespace

TEST(DcpFile, WritesInPlaceOrRefuses) {
    const ScratchFolder folder;
    SetDcpHeaderDefaults(dcpRecords.header);
    SetDcpRecord4Defaults(dcpRecords.record4);
    FillDcpRecords(dcpRecords, NdwAnswers(), L"");
    const std::string expected = DcpByHand().Bytes();
    const std::wstring path = folder.Path() + L"D\u00e4n 1.DCP";
    for (const std::size_t before : {0U, 1U, 5449U, 6000U}) {
        if (before) WriteFileBytes(path, std::string(before, 'x'));
        EXPECT_TRUE(WriteDcpFile(path)) << before;
        ExpectBytes(FileBytes(path).substr(0, 5449), expected);
        EXPECT_EQ(FileBytes(path).size(), std::max<std::size_t>(before, 5449)) << "a longer one is not cut";
    }
    Spoil(folder.Path() + L"folder.DCP", Spoilt::Folder);
    const auto lock = Spoil(folder.Path() + L"locked.DCP", Spoilt::Locked);
    for (const wchar_t* name : {L"missing\\a.DCP", L"folder.DCP", L"locked.DCP", L"COM1.DCP", L"COM1 .DCP",
                                L"NUL.DCP", L"aux.dcp", L"LPT1.x.DCP", L"CONOUT$", L"a?.DCP"})
        EXPECT_FALSE(WriteDcpFile(folder.Path() + name)) << Utf8(name);
    EXPECT_EQ(FileNames(folder),
              (std::vector<std::wstring>{L"D\u00e4n 1.DCP", L"folder.DCP", L"locked.DCP"}));
    const ReplacedImport half("WriteFile", reinterpret_cast<void*>(&WriteHalf)); // as on a disk that is full
    systemWrite = half.Original<decltype(systemWrite)>();
    EXPECT_FALSE(WriteDcpFile(folder.Path() + L"half.DCP"));
}

#include "ndw/PortUse.h"

#include "tests/support/DcpByHand.h"
#include "tests/support/Scratch.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace {

std::string ForPort(const char* hex) { return DcpByHand("178 " + std::string(hex)).Bytes(); }

} // namespace

TEST(PortUse, PassOverWhatIsNoConfiguration) {
    const ScratchFolder folder;
    const std::pair<const wchar_t*, std::string> files[] = {
        {L"LATHE2.DCP", ForPort("03 00")},
        {L"Mill 1.dcp", ForPort("03 00")},
        {L"D\u00e4n.Dcp", ForPort("00 01")},
        {L"longer.dcpx", ForPort("04 00")},
        {L"short.DCP", ForPort("04 00").substr(1)},
        {L"long.DCP", ForPort("04 00") + " "},
        {L"damaged.DCP", "X" + ForPort("04 00").substr(1)},
        {L"locked.DCP", ForPort("04 00")},
    };
    for (const auto& [name, bytes] : files)
        WriteFileBytes(folder.Path() + name, bytes);
    Spoil(folder.Path() + L"X.DCP", Spoilt::Folder);
    constexpr DWORD kAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const win::UniqueFile saved(CreateFileW((folder.Path() + L"LATHE2.DCP").c_str(), GENERIC_WRITE, kAll,
                                            nullptr, OPEN_EXISTING, 0, nullptr)); // by VConfig, just now
    const auto lock = Spoil(folder.Path() + L"locked.DCP", Spoilt::Locked);
    auto uses = PortsInUse(folder, 60000); // however busy the machine is
    EXPECT_EQ(uses.size(), 2u);
    std::sort(uses[3].begin(), uses[3].end());
    EXPECT_EQ(uses[3], (std::vector<std::wstring>{L"LATHE2", L"Mill 1"}));
    EXPECT_EQ(uses[256], std::vector<std::wstring>{L"D\u00e4n"});
    EXPECT_LE(PortsInUse(folder, 0).size(), 1u) << "the time is over";
    EXPECT_TRUE(PortsInUse(folder.Path() + L"missing\\").empty());
}

TEST(PortUse, PortsOfTheSerialMap) {
    const ScratchKey key;
    int count = 0;
    for (const wchar_t* port : {L"COM3", L"COM4", L"COM256", L"COM257", L"COM0", L"COM", L"COM5x", L"LPT1",
                                L"COM6 far too long for a port", L"", L"COM-7", L"COM 8"})
        key.Set(L"\\Device\\Serial" + std::to_wstring(++count), REG_SZ, port);
    key.Set(std::wstring(L"With a NUL"), REG_SZ, std::wstring_view(L"COM3", 5));
    key.Set(std::wstring(L"Number"), REG_DWORD, L"\x4F43");
    EXPECT_EQ(PortsOfComputer(HKEY_CURRENT_USER, key.Path().c_str()), (std::set<int>{3, 4, 256}));
    EXPECT_TRUE(PortsOfComputer(HKEY_CURRENT_USER, (key.Path() + L"\\missing").c_str()).empty());
}

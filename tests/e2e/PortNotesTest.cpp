#include "tests/ndw/DcpByHand.h"
#include "tests/support/DemoSuite.h"
#include "tests/support/WizardDriver.h"

#include <gtest/gtest.h>

namespace {

constexpr wchar_t kSerialMap[] = L"HARDWARE\\DEVICEMAP\\SERIALCOMM";

// A port more than this computer has, as long as the test lasts.
class SerialPort {
  public:
    explicit SerialPort(const std::wstring& port) {
        RegSetKeyValueW(HKEY_LOCAL_MACHINE, kSerialMap, L"VarnelTest", REG_SZ, port.c_str(),
                        static_cast<DWORD>((port.size() + 1) * sizeof port[0]));
    }
    ~SerialPort() { RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, kSerialMap, L"VarnelTest"); }
    SerialPort(const SerialPort&) = delete;
    SerialPort& operator=(const SerialPort&) = delete;
};

} // namespace

TEST(PortPage, SaysWhatIsKnownOfEachPort) {
    const DemoSuite suite;
    const SerialPort port(L"COM200");
    for (const wchar_t* name : {L"LATHE2", L"Mill 1"})
        WriteFileBytes(suite.Settings() + name + L".DCP",
                       DcpByHand().With(178, DcpByHand::Hex("C8 00")).Bytes());
    WriteFileBytes(suite.Settings() + L"OLD.DCP", DcpByHand().With(178, DcpByHand::Hex("07 00")).Bytes());
    WriteFileBytes(suite.Settings() + L"short.DCP", "VDNCW32A");
    const WizardDriver wizard(suite, L"/NDW");
    wizard.Next(L"Before You Begin");
    wizard.Next(L"COM Port");
    const struct {
        int index;
        const wchar_t* text;
    } rows[] = {{199, L"COM200 - on this computer, used by LATHE2, Mill 1"},
                {6, L"COM7 - used by OLD"},
                {254, L"COM255"}};
    for (const auto& row : rows) {
        wizard.Select(L"&COM port", row.index);
        EXPECT_EQ(wizard.SelectedText(L"&COM port"), row.text);
    }
}

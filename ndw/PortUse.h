#pragma once

#include <string>
#include <string_view>

// How a serial port is listed: "COM3", "COM3 - on this computer", "COM3 - used by LATHE2" or
// "COM3 - on this computer, used by LATHE2". `usedBy` names the configurations that use the port, with
// ", " between them; empty when none does.
std::wstring PortCaption(int number, bool onComputer, std::wstring_view usedBy);

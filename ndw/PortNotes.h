#pragma once

#include <string>
#include <vector>

// What is known of one serial port, and how the port page says it. A help for the user's choice, never a
// bar.
struct PortNote {
    bool onComputer = false;                  // the computer has the port at present
    std::vector<std::wstring> configurations; // names of those that use it
};

// As the port is listed: "COM3", "COM3 - on this computer", "COM3 - in use" or both.
std::wstring PortCaption(int number, const PortNote& note);

// "COM3 is used by GRINDER 1, LATHE 2, MILL 05 and 2 more."; empty when no configuration uses the port. At
// most three names; one of more than 24 characters is cut and ends in "…".
std::wstring PortUseText(int number, const PortNote& note);

#pragma once

#include <string>
#include <vector>

// "COM1" to "COM256", each with a note when this computer has the port or another configuration uses it.
std::vector<std::wstring> PortCaptions();

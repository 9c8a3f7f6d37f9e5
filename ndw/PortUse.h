#pragma once

// Which serial ports this computer has, and which ones the configurations of a folder use.

#include "ndw/PortNotes.h"

#include <windows.h>

#include <map>
#include <set>
#include <string>
#include <vector>

// Port numbers of the computer's serial device map: the values below `subKey` of `root` that read "COMn".
std::set<int> PortsOfComputer(HKEY root, const wchar_t* subKey);

// Port number to the names of the configurations in `folder` (ends in a backslash) that use it. Files of
// another length or signature, locked ones and folders are passed over. Reading stops after `time_ms`;
// what was not read by then is missing.
inline constexpr unsigned kReadingTime_ms = 200;
std::map<int, std::vector<std::wstring>> PortsInUse(const std::wstring& folder,
                                                    unsigned time_ms = kReadingTime_ms);

// COM1 to COM256, for this computer and the suite's settings folder.
std::vector<PortNote> LookUpPorts();

#pragma once

// Where the CNC programs lie, as the user types it and as the settings file stores it.
//
//   typed             stored, without and with the floppy drive
//   (blank)           Computer;          Computer;
//   D:\Cnc            D:\Cnc;            D:\Cnc;A:;
//   D:\Cnc;           D:\Cnc;            D:\Cnc;A:;
//   D:\Cnc;E:\Prog    D:\Cnc;E:\Prog;    D:\Cnc;E:\Prog;A:;

#include <string>
#include <string_view>

inline constexpr wchar_t kTransmitRootKey[] = L"TransmitRoot";

// What the programs of the suite can read back of it: 254 characters, less ";" and "A:;".
inline constexpr std::size_t kLocationLimit = 250;

struct CncLocation {
    std::wstring folders; // separated by ";"; blank: the whole computer
    bool floppy = false;  // "A:" is offered besides
};

// The value to store. Blanks around the folders are dropped.
std::wstring TransmitRootValue(const CncLocation& location);

// The way back, for a user who keeps his configuration: storing the result gives `value` again. An absent
// value is the empty text.
CncLocation ReadTransmitRoot(std::wstring_view value);

// The folders as one path, to be tested or created: without blanks around it and without one ";" at its
// end. Empty for the whole computer.
std::wstring LocationPath(std::wstring_view folders);

// More than one folder: such a path exists only by a freak and is never created.
bool IsFolderList(std::wstring_view path);

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

// What the programs of the suite can read back of it, in bytes: 254, less ";" and "A:;".
inline constexpr std::size_t kLocationLimit = 250;

struct CncLocation {
    std::wstring folders; // separated by ";"; blank: the whole computer
    bool floppy = false;  // "A:" is offered besides
};

// Without the pair of quotation marks around it, or around a folder of it, with which a path is copied from
// the Explorer. Blanks around such a pair go with it.
std::wstring WithoutQuotes(const std::wstring& typed);

// The value to store. Blanks around the folders are dropped.
std::wstring TransmitRootValue(const CncLocation& location);

// The way back, for a user who keeps the configuration: storing the result gives `value` again. One that was
// written by hand may gain the ";" at its end and lose blanks around it. The absent value, "", is the whole
// computer.
CncLocation ReadTransmitRoot(std::wstring_view value);

// The folders as one path, to be tested or created: without blanks around it and without one ";" at its
// end. Empty for the whole computer.
std::wstring LocationPath(std::wstring_view folders);

// As a page shows it: of a very long one the beginning and "…".
std::wstring ShownLocation(const std::wstring& folders);

// More than one folder: such a path exists only by a freak and is never created.
bool IsFolderList(std::wstring_view path);

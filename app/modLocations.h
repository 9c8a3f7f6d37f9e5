#pragma once

// Every folder and file of the suite that the wizard uses. Found once, first of all at start-up. A folder's
// path ends in a backslash; nothing is created or tested. A special folder that the shell does not know is
// the empty text, and what lies below it then counts from the current folder.

#include "app/Suite.h"

#include <string>
#include <string_view>

struct ProgramLocations {
    std::wstring ExeName;             // the program's file name without extension
    std::wstring AppPath;             // the program's folder; doubled backslash at a drive's root
    std::wstring ProgramFolder;       // the same, as the folder of the programs beside it
    std::wstring SamplesPath;         // in AppPath
    std::wstring LocalAppDataPath;    // holds TempPath
    std::wstring CommonAppDataPath;   // holds LogPath, and SettingsPath where the user has moved nothing
    std::wstring MyDocumentsPath;     // read by nobody here, as the last three
    std::wstring CommonDocumentsPath; // holds the default folder of CNC programs
    std::wstring SettingsPath;        // the value of the user's registry, or below CommonAppDataPath
    std::wstring IniFile;             // in SettingsPath
    // Part of the set that the suite's programs have in common, like MyDocumentsPath:
    std::wstring LogPath;
    std::wstring TempPath;
    std::wstring ProgramFilesPath;
};

extern const ProgramLocations& locations;

// Finds all of them and makes them those of the program.
void InitLocations();

// The same in two halves, for tests and benchmarks: another key below HKEY_CURRENT_USER, other folders.
ProgramLocations FindLocations(const std::wstring& userKey = suite::kUserKey);
void UseLocations(const ProgramLocations& found);

// The path of a CSIDL_… folder with one backslash at its end; "" when the shell has no path for it.
std::wstring GetSpecialFolder(int csidl);

// The folder Icons\ in AppPath, or AppPath itself when there is no such folder now.
std::wstring IconFolder();

// Settings folder, configuration name, ".DCP".
std::wstring ConfigurationFile(std::wstring_view name);

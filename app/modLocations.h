#pragma once

// Every folder and file of the suite that the wizard uses. Computed once, first of all at start-up.
// A folder path ends in a backslash; callers append file names directly. Nothing is created or tested
// here, and a special folder that the shell does not know is the empty text.

#include <string>
#include <string_view>

struct ProgramLocations {
    std::wstring ExeName;             // the program's file name without extension
    std::wstring AppPath;             // the program's folder; doubled backslash at a drive's root
    std::wstring LocalAppDataPath;    //
    std::wstring CommonAppDataPath;   //
    std::wstring MyDocumentsPath;     //
    std::wstring CommonDocumentsPath; // holds the default folder of CNC programs
    std::wstring SettingsPath;        // the user's registry value, else below the common application data
    std::wstring LogPath;             // LogPath, TempPath and ProgramFilesPath: the same set
    std::wstring IniFile;             //   in every program of the suite
    std::wstring TempPath;
    std::wstring ProgramFilesPath;
    std::wstring SamplesPath; // set by modMain
    std::wstring IconsPath;   // Icons\ in AppPath, or AppPath itself when there is no such folder
    std::wstring& ProgramFolder = AppPath; // one folder under its two names
};

extern ProgramLocations locations;

void InitLocations();

// The path of a CSIDL_… folder with one backslash at its end, or "" when the shell cannot resolve it.
std::wstring GetSpecialFolder(int csidl);

// The key of the user's registry that may move the settings folder. Read, never written.
inline constexpr wchar_t kSuiteKey[] = L"SOFTWARE\\Varnel\\Varnel DNC";
inline constexpr wchar_t kPathsKey[] = L"Paths";
inline constexpr wchar_t kSettingsPathValue[] = L"SettingsPath";

// File names of the suite, one place for all.
inline constexpr wchar_t kIniName[] = L"VarnelDnc.ini";
inline constexpr wchar_t kSuiteFolder[] = L"Varnel DNC\\";
inline constexpr wchar_t kConfigurationExtension[] = L".DCP";

// Name of the folder of CNC programs that the wizard offers, in the documents of all users.
inline constexpr wchar_t kDefaultCncFolder[] = L"CNC Programs";

// Settings folder, configuration name, ".DCP".
std::wstring ConfigurationFile(std::wstring_view name);

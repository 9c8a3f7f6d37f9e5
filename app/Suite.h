#pragma once

// What the suite's programs, documents, files, settings and registry values are called: every name stands
// here and nowhere else. A file that two places spell in two ways has two names here; Windows finds it by
// either.

namespace suite {

// ---- folders and files ----
inline constexpr wchar_t kDataFolder[] = L"Varnel DNC\\"; // below the system's folders of application data
inline constexpr wchar_t kSettingsFolder[] = L"Settings\\";
inline constexpr wchar_t kLogFolder[] = L"Log\\";
inline constexpr wchar_t kTempFolder[] = L"Temp\\";
inline constexpr wchar_t kSamplesFolder[] = L"Samples\\"; // beside the programs
inline constexpr wchar_t kIconsFolder[] = L"Icons\\";     // beside the programs
inline constexpr wchar_t kCncFolder[] = L"CNC Programs";  // offered in the documents of all users
inline constexpr wchar_t kIniFile[] = L"VarnelDnc.ini";
inline constexpr wchar_t kProbeFile[] = L"VAccessTest.txt"; // in the settings folder, for a moment
inline constexpr wchar_t kConfigurationExtension[] = L".DCP";
inline constexpr wchar_t kIconExtension[] = L".ICO";

// ---- programs beside the wizard ----
inline constexpr wchar_t kConfigProgram[] = L"VConfig.exe";
inline constexpr wchar_t kFileManager[] = L"VFileMgr.exe";
inline constexpr wchar_t kFileManagerTarget[] = L"VFileMgr.EXE"; // of its shortcut
inline constexpr wchar_t kLinkManager[] = L"VLinkMgr.exe";
inline constexpr wchar_t kNavigator[] = L"VDNAV.EXE";
inline constexpr wchar_t kRemoteServerTarget[] = L"VRemote.EXE"; // of its shortcut
inline constexpr wchar_t kTerminal[] = L"VTerminal.exe";
inline constexpr wchar_t kWizard[] = L"VWizard.exe";
inline constexpr wchar_t kHelpViewer[] = L"HH.exe"; // the system's own

// ---- documents beside the wizard ----
inline constexpr wchar_t kTutorial[] = L"QuickTour.chm"; // "Getting Started"
inline constexpr wchar_t kLinkCheck[] = L"LinkCheck.chm";
inline constexpr wchar_t kCommunication[] = L"Linkcheck.chm"; // the same, in the New Device Wizard
inline constexpr wchar_t kCharacterCodes[] = L"CharCodes.chm";
inline constexpr wchar_t kTechNotes[] = L"TechNotes.chm";
inline constexpr wchar_t kSetupReference[] = L"Setup Reference.pdf";
inline constexpr wchar_t kDeviceReference[] = L"Varnel DNC Setup Reference.PDF"; // on the first page of /NDW
inline constexpr wchar_t kDeviceManual[] = L"Varnel DNC Setup Reference.pdf";    // the same, on the second
inline constexpr wchar_t kOperatorGuide[] = L"Operator Guide.pdf";
inline constexpr wchar_t kTourGuide[] = L"Quick Tour Guide.pdf";

// ---- settings file: sections and keys ----
inline constexpr wchar_t kGeneral[] = L"General"; // the only section that the wizard writes to
inline constexpr wchar_t kInstall[] = L"Install"; // section, and key of kOptions
inline constexpr wchar_t kOptions[] = L"Options"; // section, and key of kInstall
inline constexpr wchar_t kMaxProgress[] = L"FTSW_MaxProgress";
inline constexpr wchar_t kTransmitRoot[] = L"TransmitRoot";
inline constexpr wchar_t kSecurity[] = L"Security";
inline constexpr wchar_t kAccessTest[] = L"AccessTest";
inline constexpr const wchar_t* kStartUpKeys[] = {L"RxNameMode", L"RxChangeNameMode", L"NavAutoStart"};

// ---- registry ----
inline constexpr wchar_t kUserKey[] = L"SOFTWARE\\Varnel\\Varnel DNC"; // of the current user
inline constexpr wchar_t kPathsKey[] = L"Paths";                       // below it
inline constexpr wchar_t kSettingsPathValue[] = L"SettingsPath";
inline constexpr wchar_t kRunOnceKey[] = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\RunOnce";
inline constexpr wchar_t kRunOnceValue[] = L"Varnel_DNC_FTSW";
inline constexpr wchar_t kSerialMapKey[] =
    L"HARDWARE\\DEVICEMAP\\SERIALCOMM"; // the system's, of its COM ports

} // namespace suite

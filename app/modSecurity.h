#pragma once

// May this user change the suite's configuration? Found out before the first page, by a real write.

#include <cstdint>
#include <string>

struct ConfigAccess {
    bool IsAdmin = false;          // member of the administrators group
    bool SecurityRestrict = false; // bit value 2 of [General] Security
    bool SecurityEnabled = false;  // bit value 1
    bool ConfigWritable = false;   // the whole test succeeded
    std::int32_t AccessError = 0;  // system error of what failed, 0 when none
    std::int16_t Code = 0;         // what TestConfigAccess returns
};

extern ConfigAccess configAccess;

enum ConfigAccessCode : std::int16_t {
    kConfigAccessGranted = 0,
    kFolderMissing = 1,
    kProbeNotMade = 3,
    kProbeNotWritten = 4,
    kProbeNotOpened = 5,
    kProbeNotRead = 6,
    kProbeDiffers = 7,
    kProbeNotDeleted = 8,
    kIniMissing = 10,
    kIniReadOnly = 11,
    kIniWriteFailed = 12,
    kIniReadBackDiffers = 13,
};

// Runs the whole test on the suite's settings folder and sets `configAccess`. Needs InitLocations. Shows
// nothing, throws nothing. Each file is waited for up to half a second while another program has it for
// itself.
std::int16_t TestConfigAccess();

// The same for any folder (ends in a backslash), into the result alone.
ConfigAccess FindConfigAccess(const std::wstring& settingsFolder);

// Makes, reads and deletes the probe file in `folder` (ends in a backslash); one of an earlier run is no
// fault. Granted, or what failed first: a code below 10.
std::int16_t TestFolderWrite(const std::wstring& folder);

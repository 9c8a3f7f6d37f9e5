#pragma once

// May this user change the suite's configuration? Found out before the first page, by a real write.

#include <cstdint>
#include <string>

struct ConfigAccess {
    bool IsAdmin = false;          // member of the administrators group
    bool SecurityRestrict = false; // bit value 2 of [General] Security
    bool SecurityEnabled = false;  // bit value 1
    bool ConfigWritable = false;   // every step below succeeded
    std::int32_t AccessError = 0;  // system error of the failed step, 0 when none
};

extern ConfigAccess configAccess;

enum ConfigAccessCode : std::int16_t {
    kConfigAccessGranted = 0, // 1 to 8: the failed step of TestFolderWrite
    kIniMissing = 10,
    kIniReadOnly = 11,
    kIniWriteFailed = 12,
    kIniReadBackDiffers = 13,
};

// Runs the whole test and sets `configAccess`. Needs InitLocations. Shows nothing, throws nothing.
std::int16_t TestConfigAccess();

// Makes, writes, reads and deletes the probe file in `folder` (ends in a backslash): 0, or the number of
// the step that failed: 1 folder exists, 3 create, 4 write, 5 open, 6 read, 7 compare, 8 delete. Step 2
// looks for an old probe file, which is no failure.
std::int16_t TestFolderWrite(const std::wstring& folder);

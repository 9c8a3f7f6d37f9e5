#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The parts of a path. With "C:\CNC\Mill.v2.nc":
enum PathPart : std::int16_t {
    kDrive = 1,            // "C:"          a letter and a colon at the start, else empty
    kFolder,               // "\CNC\"       up to and with the last backslash
    kNameWithoutExtension, // "Mill.v2"     up to the last "." behind the last backslash
    kExtension,            // "nc"          without its "."
    kNameWithExtension,    // "Mill.v2.nc"
    kDriveAndFolder,       // "C:\CNC\"
};

// One part of `path`, which is only looked at as text; a "/" is a character like others. kDriveAndFolder and
// kNameWithExtension together are always the whole path. Any other part number gives the empty text.
std::wstring SplitPath(std::wstring_view path, std::int16_t part);

// `path` with a backslash at its end, one that it has already included. The empty text, which means
// "no such folder", stays empty.
std::wstring WithBackslash(std::wstring path);

#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// One part of `path`, which is only looked at as text. With "C:\CNC\Mill.v2.nc":
//   1  drive                   "C:"          a letter and a colon at the start, else empty
//   2  folder                  "\CNC\"       up to and with the last backslash
//   3  name without extension  "Mill.v2"     up to the last "." behind the last backslash
//   4  extension               "nc"          without its "."
//   5  name with extension     "Mill.v2.nc"
//   6  drive and folder        "C:\CNC\"
// Parts 6 and 5 together are always the whole path. Any other part number gives the empty text.
// A "/" is a character like others.
std::wstring SplitPath(std::wstring_view path, std::int16_t part);

// `path` with a backslash at its end, one that it has already included. The empty text, which means
// "no such folder", stays empty.
std::wstring WithBackslash(std::wstring path);

#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// A shell link file taken apart byte by byte, without the system's help. Texts of an ANSI link are widened
// byte by byte. Throws std::runtime_error when the bytes are no link.
struct LinkFile {
    std::wstring target; // the local path
    std::wstring description, relativePath, workingFolder, arguments, iconFile;
    std::int32_t iconIndex = 0;
    std::uint32_t showCommand = 0;
    std::uint16_t hotKey = 0;
};

LinkFile ParseLinkFile(std::string_view bytes);

#pragma once

// The icon files of a folder, read once: their names in order and one picture each at the size shown.

#include "win/Handles.h"

#include <windows.h>

#include <commctrl.h>

#include <cstdint>
#include <string>
#include <vector>

// Names of the ".ico" files in `folder` (ends in a backslash) without the extension, ascending without
// regard to case. One that a configuration cannot name is left out: with ".ico" longer than 64 characters, or
// with a character that is not exactly one byte in the system's code page.
std::vector<std::wstring> IconKeys(const std::wstring& folder);

class IconList {
  public:
    // Reads each of `keys` from `folder`; a file that holds no picture is passed over. The pictures are
    // `pixels` wide and high.
    IconList(const std::wstring& folder, const std::vector<std::wstring>& keys, int pixels);

    std::int16_t Count() const { return static_cast<std::int16_t>(keys_.size()); }
    const std::vector<std::wstring>& Keys() const { return keys_; }
    // `position` counts from 1.
    const std::wstring& Key(std::int16_t position) const {
        return keys_[static_cast<std::size_t>(position - 1)];
    }
    void Draw(std::int16_t position, HDC dc, int x, int y) const;

  private:
    win::Unique<HIMAGELIST, ImageList_Destroy> pictures_;
    std::vector<std::wstring> keys_; // in step with the pictures
};

#pragma once

// What a test may spoil: a folder, a registry key, the suite's locations, message boxes. All of it is put
// back or removed at the end.

#include "app/modLocations.h"
#include "tools/driver/Words.h"
#include "win/Handles.h"

#include <windows.h>

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

// Files. What cannot be done throws std::runtime_error.
std::vector<std::wstring> FileNames(const std::wstring& folder, const wchar_t* pattern = L"*"); // sorted
std::string FileBytes(const std::wstring& path);
void WriteFileBytes(const std::wstring& path, std::string_view bytes);
void Copy(const std::wstring& from, const std::wstring& to); // over what is there

std::wstring TestFolder(); // of the test program, backslash at its end

// Text values only; the key is made.
void SetRegText(HKEY root, const std::wstring& key, const wchar_t* value, const std::wstring& text);

class ScratchFolder {
  public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::wstring& Path() const { return path_; } // backslash at its end
    operator const std::wstring&() const { return path_; }

  private:
    std::wstring path_;
};

// A folder that is the suite's settings folder, and the program's too, as long as the test lasts.
class ScratchSuite : public ScratchFolder {
  public:
    ScratchSuite();
    ~ScratchSuite();
    // The settings file, with these bytes.
    void Ini(std::string_view bytes) const { WriteFileBytes(locations.IniFile, bytes); }
    std::string Ini() const { return FileBytes(locations.IniFile); }

  private:
    const ProgramLocations before_ = locations;
};

class ScratchKey {
  public:
    ScratchKey();
    ~ScratchKey();
    ScratchKey(const ScratchKey&) = delete;
    ScratchKey& operator=(const ScratchKey&) = delete;

    const std::wstring& Path() const { return path_; } // below HKEY_CURRENT_USER
    // Just these bytes, of 8-bit or of wide characters: no NUL is added to a text.
    void Set(const std::string& name, DWORD type, std::string_view bytes) const;
    void Set(const std::wstring& name, DWORD type, std::wstring_view text) const;

  private:
    std::wstring path_;
    HKEY key_ = nullptr;
};

// Ways in which a file or folder can stand in the program's way.
enum class Spoilt { Not, Missing, File, Folder, ReadOnly, Locked };

// Brings `path` into this state; locked only as long as the result lives.
win::UniqueFile Spoil(const std::wstring& path, Spoilt how);

// Runs `act` while another thread presses `buttons` (IDOK, IDYES ...), one in each box that this process
// opens, in this order, and returns the boxes seen: title, line end, text. One box too many is closed, too.
std::vector<std::wstring> Answering(std::initializer_list<int> buttons, const std::function<void()>& act);

#pragma once

// What a test in this process may spoil: a folder, a registry key, the suite's locations and the message
// boxes that the program opens. All of it is put back or removed at the end of the test.

#include "app/modLocations.h"
#include "win/Handles.h"

#include <windows.h>

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

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
    void Ini(std::string_view bytes) const;
    std::string Ini() const;
    // A stand-in for a companion program, and what it wrote down about its starts (waits for the first).
    void AddStandIn(const std::wstring& file) const;
    std::string StartsOf(const std::wstring& file) const;

  private:
    std::wstring settings_, ini_, program_;
};

class ScratchKey {
  public:
    ScratchKey();
    ~ScratchKey();
    ScratchKey(const ScratchKey&) = delete;
    ScratchKey& operator=(const ScratchKey&) = delete;

    const std::wstring& Path() const { return path_; } // below HKEY_CURRENT_USER
    // Just these bytes: no NUL is added to a text.
    void Set(const char* name, DWORD type, std::string_view bytes) const;
    void SetWide(const std::wstring& name, DWORD type, std::wstring_view text) const;

  private:
    std::wstring path_;
    HKEY key_ = nullptr;
};

// Ways in which a file or folder can stand in the program's way.
enum class Spoilt { Not, Missing, File, Folder, ReadOnly, Locked };

// Brings `path` into this state; locked only as long as the result lives.
win::UniqueKernelHandle Spoil(const std::wstring& path, Spoilt how);
// Whether the read-only attribute stops this user's writes: not root's, for one.
bool ReadOnlyStops();

struct Box {
    std::wstring title, text;
};

// Runs `act` while another thread presses `buttons` (IDOK, IDYES ...), one in each box that this process
// opens, in this order, and returns the boxes seen. One box too many is closed all the same.
std::vector<Box> Answering(std::initializer_list<int> buttons, const std::function<void()>& act);

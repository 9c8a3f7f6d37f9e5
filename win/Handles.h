#pragma once

// Owners of system handles: each gives back what it holds, once, and cannot be copied.

#include <windows.h>

#include <utility>

namespace win {

template <class Handle> Handle NullHandle() { return Handle{}; }

// What the system's file functions return when they fail; the others return null.
inline HANDLE InvalidHandle() { return INVALID_HANDLE_VALUE; }

template <class Handle, auto Close, Handle (*None)() = NullHandle<Handle>> class Unique {
  public:
    Unique() = default;
    explicit Unique(Handle handle) : handle_(handle) {}
    Unique(Unique&& other) noexcept : handle_(std::exchange(other.handle_, None())) {}
    Unique& operator=(Unique&& other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }
    ~Unique() {
        if (handle_ != None()) Close(handle_);
    }

    Handle Get() const { return handle_; }
    explicit operator bool() const { return handle_ != None(); }
    // For functions that hand a handle out through a pointer; only while nothing is held.
    Handle* Out() { return &handle_; }

  private:
    Handle handle_ = None();
};

using UniqueFont = Unique<HFONT, DeleteObject>;
using UniqueBrush = Unique<HBRUSH, DeleteObject>;
using UniqueBitmap = Unique<HBITMAP, DeleteObject>;
using UniqueMemoryDc = Unique<HDC, DeleteDC>;
using UniqueIcon = Unique<HICON, DestroyIcon>;
using UniqueKey = Unique<HKEY, RegCloseKey>;
using UniqueKernelHandle = Unique<HANDLE, CloseHandle>; // processes, threads, mutexes
using UniqueFile = Unique<HANDLE, CloseHandle, InvalidHandle>;
using UniqueFind = Unique<HANDLE, FindClose, InvalidHandle>;

// What a window (null: the screen) is measured with or drawn on outside of its own painting.
class WindowDc {
  public:
    explicit WindowDc(HWND window) : window_(window), dc_(GetDC(window)) {}
    WindowDc(const WindowDc&) = delete;
    WindowDc& operator=(const WindowDc&) = delete;
    ~WindowDc() { ReleaseDC(window_, dc_); }
    HDC Get() const { return dc_; }

  private:
    HWND window_;
    HDC dc_;
};

// A font, bitmap or the like in a device context; the one before comes back at the end.
class SelectedObject {
  public:
    SelectedObject(HDC dc, HGDIOBJ object) : dc_(dc), before_(SelectObject(dc, object)) {}
    SelectedObject(const SelectedObject&) = delete;
    SelectedObject& operator=(const SelectedObject&) = delete;
    ~SelectedObject() { SelectObject(dc_, before_); }

  private:
    HDC dc_;
    HGDIOBJ before_;
};

} // namespace win

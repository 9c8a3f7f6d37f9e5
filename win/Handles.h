#pragma once

// Owners of system handles: each closes what it holds, once, and cannot be copied.

#include <windows.h>

#include <utility>

namespace win {

template <class Handle, auto Close, Handle kNone = Handle{}> class Unique {
  public:
    Unique() = default;
    explicit Unique(Handle handle) : handle_(handle) {}
    Unique(Unique&& other) noexcept : handle_(std::exchange(other.handle_, kNone)) {}
    Unique& operator=(Unique&& other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }
    ~Unique() {
        if (handle_ != kNone) Close(handle_);
    }

    Handle Get() const { return handle_; }
    explicit operator bool() const { return handle_ != kNone; }
    // For functions that hand a handle out through a pointer; only while nothing is held.
    Handle* Out() { return &handle_; }

  private:
    Handle handle_ = kNone;
};

using UniqueFont = Unique<HFONT, DeleteObject>;
using UniqueBrush = Unique<HBRUSH, DeleteObject>;
using UniqueBitmap = Unique<HBITMAP, DeleteObject>;
using UniqueIcon = Unique<HICON, DestroyIcon>;
using UniqueKey = Unique<HKEY, RegCloseKey>;
using UniqueKernelHandle = Unique<HANDLE, CloseHandle>; // what is NULL when it could not be made
using UniqueFind = Unique<HANDLE, FindClose>;           // made only from a valid search handle

} // namespace win

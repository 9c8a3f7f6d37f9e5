#pragma once

#include "tests/support/Imports.h"

#include <windows.h>

// As long as it lives, the system's code page is 932, in which some characters are two bytes.
class JapaneseSystem {
  public:
    JapaneseSystem() {
        toBytes = bytesImport_.Original<decltype(toBytes)>();
        toWide = wideImport_.Original<decltype(toWide)>();
    }

  private:
    static UINT Page(UINT page) { return page == CP_ACP ? 932 : page; }
    static inline decltype(&WideCharToMultiByte) toBytes;
    static int WINAPI ToBytes(UINT page, DWORD flags, LPCWSTR wide, int length, LPSTR bytes, int size,
                              LPCSTR standIn, LPBOOL replaced) {
        return toBytes(Page(page), flags, wide, length, bytes, size, standIn, replaced);
    }
    static inline decltype(&MultiByteToWideChar) toWide;
    static int WINAPI ToWide(UINT page, DWORD flags, LPCSTR bytes, int size, LPWSTR wide, int length) {
        return toWide(Page(page), flags, bytes, size, wide, length);
    }
    const ReplacedImport bytesImport_{"WideCharToMultiByte", reinterpret_cast<void*>(&ToBytes)};
    const ReplacedImport wideImport_{"MultiByteToWideChar", reinterpret_cast<void*>(&ToWide)};
};

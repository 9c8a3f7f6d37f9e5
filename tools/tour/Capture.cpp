#include "tools/tour/Capture.h"
#include "win/Handles.h"

#include <vector>

namespace {

BITMAPINFO Describe(int width, int height) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    return info;
}

// From the screen and not from the window: what lies above it, and its frame, belong to what is seen.
std::vector<char> ReadPixels(const RECT& area, BITMAPINFO& info) {
    const int width = info.bmiHeader.biWidth, height = info.bmiHeader.biHeight;
    const win::WindowDc screen(nullptr);
    const win::UniqueMemoryDc memory(CreateCompatibleDC(screen.Get()));
    const win::UniqueBitmap bitmap(CreateCompatibleBitmap(screen.Get(), width, height));
    {
        const win::SelectedObject selected(memory.Get(), bitmap.Get());
        BitBlt(memory.Get(), 0, 0, width, height, screen.Get(), area.left, area.top, SRCCOPY);
    } // while it is selected its bits cannot be had
    // Rows of a bitmap file begin at multiples of four bytes.
    const size_t rowBytes = (static_cast<size_t>(width) * 3 + 3) / 4 * 4;
    std::vector<char> pixels(rowBytes * static_cast<size_t>(height));
    GetDIBits(memory.Get(), bitmap.Get(), 0, static_cast<UINT>(height), pixels.data(), &info, DIB_RGB_COLORS);
    return pixels;
}

bool Put(HANDLE file, const void* data, size_t size) {
    DWORD written = 0;
    return WriteFile(file, data, static_cast<DWORD>(size), &written, nullptr) && written == size;
}

} // namespace

bool CaptureScreen(const RECT& area, const std::wstring& file) {
    BITMAPINFO info = Describe(area.right - area.left, area.bottom - area.top);
    const std::vector<char> pixels = ReadPixels(area, info);
    BITMAPFILEHEADER header{};
    header.bfType = 0x4D42; // "BM"
    header.bfOffBits = sizeof header + sizeof info.bmiHeader;
    header.bfSize = header.bfOffBits + static_cast<DWORD>(pixels.size());
    const win::UniqueFile bitmap(
        CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    return bitmap && Put(bitmap.Get(), &header, sizeof header) &&
           Put(bitmap.Get(), &info.bmiHeader, sizeof info.bmiHeader) &&
           Put(bitmap.Get(), pixels.data(), pixels.size());
}

#include "benchmark/Figures.h"
#include "benchmark/Table.h"

#include <windows.h>

namespace {

BOOL CALLBACK AddOne(HMODULE module, LPCWSTR type, LPWSTR name, LONG_PTR sum) {
    *reinterpret_cast<DWORD*>(sum) += SizeofResource(module, FindResourceW(module, name, type));
    return TRUE;
}

// Bytes of bitmaps and icons in a program's file.
DWORD ArtworkIn(const std::wstring& path) {
    const HMODULE module = LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    DWORD sum = 0;
    for (const LPCWSTR type : {RT_BITMAP, RT_ICON})
        EnumResourceNamesW(module, type, AddOne, reinterpret_cast<LONG_PTR>(&sum));
    FreeLibrary(module);
    return sum;
}

DWORD SizeOf(const std::wstring& path) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data);
    return data.nFileSizeLow;
}

double Kilobytes(DWORD bytes) { return static_cast<double>(bytes) / 1024; }

} // namespace

// The pictures are the designer's, in four resolutions: what we answer for is the rest.
void MeasureSize(const Bench& bench) {
    const std::wstring wizard = bench.suite + L"VWizard.exe";
    const DWORD all = SizeOf(wizard);
    const double code = Kilobytes(all - ArtworkIn(wizard));
    const double bare = Kilobytes(SizeOf(bench.programs + L"bare_window.exe"));
    PrintRatio("program without artwork", "bare window", code, bare, "kB", 2.0);
    PrintValue("program without artwork", code, "kB", 640);
    PrintValue("program with artwork", Kilobytes(all), "kB", 640);
}

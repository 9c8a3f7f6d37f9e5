#include "ndw/DcpFile.h"

#include "app/CodePage.h"
#include "ndw/modDcp.h"
#include "win/Handles.h"

#include <windows.h>

bool WriteDcpFile(const std::wstring& path) {
    PrepareForWriting(dcpRecords);
    const auto bytes = DcpBytes(dcpRecords, ToAnsiByte);
    const HANDLE handle = CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return false;
    const win::UniqueKernelHandle file(handle);
    if (GetFileType(handle) != FILE_TYPE_DISK) return false; // a port or another device
    DWORD written = 0;
    if (!WriteFile(handle, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr)) return false;
    // A full disk may report success and keep a part. Nobody can delete the file while it is open.
    LARGE_INTEGER size{};
    return GetFileSizeEx(handle, &size) && size.QuadPart == static_cast<LONGLONG>(bytes.size());
}

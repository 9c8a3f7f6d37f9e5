#include "ndw/DcpFile.h"

#include "app/CodePage.h"
#include "ndw/modDcp.h"
#include "win/Handles.h"

bool WriteDcpFile(const std::wstring& path) {
    PrepareForWriting(dcpRecords);
    const auto bytes = DcpBytes(dcpRecords, ToAnsiByte);
    // In place: a file of this name is there only when this run has failed to write it whole.
    const win::UniqueFile file(CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_ALWAYS,
                                           FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file) return false;
    if (GetFileType(file.Get()) != FILE_TYPE_DISK) return false; // a port or another device
    DWORD written = 0;
    if (!WriteFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr))
        return false;
    // A full disk may report success and keep a part. Nobody can delete the file while it is open.
    LARGE_INTEGER size{};
    return written == bytes.size() && GetFileSizeEx(file.Get(), &size) &&
           size.QuadPart >= static_cast<LONGLONG>(bytes.size());
}

#include "app/Files.h"
#include "benchmark/Clock.h"
#include "benchmark/Figures.h"
#include "benchmark/Table.h"
#include "ndw/DcpFile.h"
#include "ndw/NdwAnswers.h"
#include "ndw/modDcp.h"

#include <windows.h>

#include <stdexcept>
#include <vector>

namespace {

constexpr int kSamples = 10000;
constexpr DWORD kDcpSize = 5449;

void MakeFile(const std::wstring& path, const void* bytes, DWORD size) {
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    WriteFile(file, bytes, size, &written, nullptr);
    CloseHandle(file);
    if (written != size) throw std::runtime_error("cannot write a file");
}

double RawWrite(const std::wstring& path) {
    static const std::vector<char> bytes(kDcpSize, 'x');
    const double time = TimeOf([&] { MakeFile(path, bytes.data(), kDcpSize); });
    DeleteFileW(path.c_str());
    return time;
}

double DcpWrite(const std::wstring& path) {
    bool written = false;
    const double time = TimeOf([&] {
        SetDcpHeaderDefaults(dcpRecords.header);
        SetDcpRecord4Defaults(dcpRecords.record4);
        FillDcpRecords(dcpRecords, NdwDefaultAnswers(), L"MILL.ico");
        written = WriteDcpFile(path);
    });
    DeleteFileW(path.c_str());
    if (!written) throw std::runtime_error("cannot write a configuration");
    return time;
}

// The folder's entries, each looked at and forgotten.
int Enumerate(const std::wstring& folder) {
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW((folder + L"*.dcp").c_str(), &found);
    int count = 0;
    if (search != INVALID_HANDLE_VALUE) {
        do
            ++count;
        while (FindNextFileW(search, &found));
        FindClose(search);
    }
    return count;
}

void MeasureDcp(const Bench& bench) {
    std::vector<double> ours, theirs;
    for (int run = 0; run < bench.runs * 10; ++run) {
        const std::wstring name = bench.scratch + L"Device" + std::to_wstring(run);
        theirs.push_back(RawWrite(name + L".RAW"));
        ours.push_back(DcpWrite(name + L".DCP"));
    }
    PrintRatio("one configuration file", "create, write 5449 bytes, close", Median(ours) * 1000,
               Median(theirs) * 1000, "us", 1.3);
}

} // namespace

void MeasureFiles(const Bench& bench) {
    MeasureDcp(bench);
    const std::wstring folder = bench.scratch + L"Samples\\";
    CreateDirectoryW(folder.c_str(), nullptr);
    for (int i = 0; i < kSamples; ++i)
        MakeFile(folder + L"Sample " + std::to_wstring(i) + L".dcp", "", 0);
    std::vector<double> ours, theirs;
    for (int run = 0; run < bench.runs; ++run) {
        theirs.push_back(TimeOf([&] {
            if (Enumerate(folder) != kSamples) throw std::runtime_error("samples are missing");
        }));
        ours.push_back(TimeOf([&] {
            if (ListFiles(folder, L".dcp").size() != kSamples)
                throw std::runtime_error("samples are missing");
        }));
    }
    PrintRatio("names of 10,000 samples", "bare enumeration", Median(ours), Median(theirs), "ms", 2.0);
}

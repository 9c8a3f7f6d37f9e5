#include "app/Files.h"
#include "app/StartUp.h"
#include "app/modLocations.h"
#include "benchmark/Figures.h"
#include "benchmark/Table.h"
#include "ftw/FtwPages.h"
#include "ndw/DcpFile.h"
#include "ndw/DcpFromAnswers.h"
#include "ndw/NdwAnswers.h"
#include "shell/frmIcons.h"
#include "tools/driver/Clock.h"
#include "win/Handles.h"
#include "wizard/frmWizard.h"

#include <windows.h>

#include <stdexcept>
#include <vector>

namespace {

constexpr int kSamples = 10000;
constexpr std::int16_t kSamplePage = 12;
constexpr std::size_t kIcons = 1000;

double iconsOpened = 0; // when the picker was painted
constexpr DWORD kDcpSize = 5449;

void MakeFile(const std::wstring& path, const void* bytes, DWORD size) {
    const win::UniqueFile file(
        CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    DWORD written = 0;
    WriteFile(file.Get(), bytes, size, &written, nullptr);
    if (written != size) throw std::runtime_error("cannot write a file");
}

// Each file is new, and gone again outside the time: writing over one costs less.
double RawWrite(const std::wstring& path) {
    static const std::vector<char> bytes(kDcpSize, 'x');
    const double time = TimeOf([&] { MakeFile(path, bytes.data(), kDcpSize); });
    DeleteFileW(path.c_str());
    return time;
}

// From the answers to the file on disk, as the name page does it.
double DcpWrite(const std::wstring& path) {
    bool written = false;
    const double time = TimeOf([&] {
        SetDcpHeaderDefaults(dcpRecords.header);
        SetDcpRecord4Defaults(dcpRecords.record4);
        FillDcpRecords(dcpRecords, NdwAnswers(), L"MILL.ico");
        written = WriteDcpFile(path);
    });
    DeleteFileW(path.c_str());
    if (!written) throw std::runtime_error("cannot write a configuration");
    return time;
}

// The folder's entries, each looked at and forgotten.
int Enumerate(const std::wstring& folder) {
    WIN32_FIND_DATAW found{};
    const win::UniqueFind search(FindFirstFileW((folder + L"*.dcp").c_str(), &found));
    int count = 0;
    for (bool more = static_cast<bool>(search); more; more = FindNextFileW(search.Get(), &found))
        ++count;
    return count;
}

// Ours and the raw one in turn, many times: what else goes on in the machine falls on both.
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

void MeasureSamples(const Bench& bench) {
    const std::wstring folder = bench.scratch + L"Samples\\";
    CreateDirectoryW(folder.c_str(), nullptr);
    for (int i = 0; i < kSamples; ++i)
        MakeFile(folder + L"Sample " + std::to_wstring(i) + L".dcp", "", 0);
    ProgramLocations scratch = locations;
    scratch.SamplesPath = folder;
    UseLocations(scratch);
    startUp.WizardMode = kFirstTimeSetup;
    frmWizard form(FtwBook(), {.configAllowed = true});
    form.Form_Load();
    std::vector<double> ours, theirs;
    for (int run = 0; run < bench.runs; ++run) {
        theirs.push_back(TimeOf([&] {
            if (Enumerate(folder) != kSamples) throw std::runtime_error("samples are missing");
        }));
        form.PageNo = kSamplePage;
        ours.push_back(TimeOf([&] {
            form.ShowPage();
            UpdateWindow(form.pool.lstUserInput[0].Handle());
        }));
        if (form.pool.lstUserInput[0].Count() != kSamples) throw std::runtime_error("samples are not listed");
    }
    PrintRatio("page with 10,000 samples", "bare enumeration", Median(ours), Median(theirs), "ms", 2.0);
}

// A timer's turn comes when nothing is left to be painted.
VOID CALLBACK CloseIcons(HWND, UINT, UINT_PTR timer, DWORD) {
    const HWND icons = FindWindowW(L"VarnelIcons", nullptr);
    if (!icons || !IsWindowVisible(icons)) return;
    KillTimer(nullptr, timer);
    iconsOpened = Now();
    SendMessageW(icons, WM_CLOSE, 0, 0);
}

// Without the window and its drawing, the peer does what any picker has to.
void MeasureIcons(const Bench& bench) {
    const std::wstring folder = bench.scratch + L"Icons\\";
    CreateDirectoryW(folder.c_str(), nullptr);
    const std::vector<std::wstring> icons = ListFiles(bench.suite + L"Icons\\", L".ico");
    if (icons.empty()) throw std::runtime_error("no icons");
    for (std::size_t i = 0; i < kIcons; ++i)
        CopyFileW((bench.suite + L"Icons\\" + icons[i % icons.size()]).c_str(),
                  (folder + std::to_wstring(i) + L".ICO").c_str(), FALSE);
    constexpr int kPixels = 32;
    std::vector<double> ours, theirs;
    for (int run = 0; run < bench.runs; ++run) {
        theirs.push_back(TimeOf([&] {
            for (const std::wstring& name : ListFiles(folder, L".ico"))
                DestroyIcon(static_cast<HICON>(LoadImageW(nullptr, (folder + name).c_str(), IMAGE_ICON,
                                                          kPixels, kPixels, LR_LOADFROMFILE)));
        }));
        SetTimer(nullptr, 0, USER_TIMER_MINIMUM, CloseIcons);
        const double start = Now();
        frmIcons picker;
        picker.OpenForm(folder, nullptr);
        ours.push_back(iconsOpened - start);
    }
    PrintRatio("icon picker with 1,000 icons, opening", "reading and decoding the files", Median(ours),
               Median(theirs), "ms", 1.5);
}

} // namespace

void MeasureFiles(const Bench& bench) {
    MeasureDcp(bench);
    MeasureSamples(bench);
    MeasureIcons(bench);
}

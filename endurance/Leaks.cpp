// Long use: tours of all pages, message windows, icon pickers, imports. What the wizard holds is counted
// from outside; after warming up none of it grows.
#include "endurance/Scene.h"
#include "endurance/Soak.h"
#include "tests/support/DemoSuite.h"
#include "tools/driver/LinuxProcess.h"
#include "tools/driver/Walker.h"

#include <winternl.h>

#include <algorithm>
#include <memory>

namespace {

struct Held {
    int gdi = 0;
    int windows = 0; // user objects that can be counted from outside
    int handles = 0;
    long memory = 0; // private, kB
};

constexpr long kMemoryNoise_kB = 512;

// Entries in use of the table of GDI objects that the process shares with the system.
int GdiObjects(HANDLE process) {
    constexpr std::size_t kEntries = 16384, kStride = 24, kType = 14, kTableInPeb = 0x94;
    PROCESS_BASIC_INFORMATION basic{};
    NtQueryInformationProcess(process, ProcessBasicInformation, &basic, sizeof basic, nullptr);
    void* table = nullptr;
    std::vector<unsigned char> entries(kEntries * kStride);
    const auto* peb = reinterpret_cast<const unsigned char*>(basic.PebBaseAddress);
    if (!ReadProcessMemory(process, peb + kTableInPeb, &table, sizeof table, nullptr) ||
        !ReadProcessMemory(process, table, entries.data(), entries.size(), nullptr))
        Fail(L"cannot read the table of GDI objects");
    int count = 0;
    for (std::size_t i = 0; i < kEntries; ++i)
        count += entries[i * kStride + kType] != 0;
    return count;
}

int KernelHandles(DWORD process) {
    struct Entry {
        void* object;
        ULONG_PTR process, handle;
        ULONG access;
        USHORT trace, type;
        ULONG attributes, reserved;
    };
    // Number 64, which the header does not name, gives the handles of all processes with whole numbers.
    using Query = NTSTATUS(NTAPI*)(int, void*, ULONG, ULONG*);
    const auto query = reinterpret_cast<Query>(reinterpret_cast<void*>(&NtQuerySystemInformation));
    constexpr int kExtendedHandles = 64;
    std::vector<unsigned char> table(1 << 16);
    while (query(kExtendedHandles, table.data(), static_cast<ULONG>(table.size()), nullptr) < 0)
        table.resize(table.size() * 2);
    const ULONG_PTR count = *reinterpret_cast<const ULONG_PTR*>(table.data());
    const auto* entries = reinterpret_cast<const Entry*>(table.data() + 2 * sizeof(ULONG_PTR));
    int own = 0;
    for (ULONG_PTR i = 0; i < count; ++i)
        own += entries[i].process == process;
    return own;
}

BOOL CALLBACK CountOne(HWND, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

int Windows(HWND main) {
    int count = 0;
    const auto data = reinterpret_cast<LPARAM>(&count);
    EnumThreadWindows(GetWindowThreadProcessId(main, nullptr), CountOne, data);
    EnumChildWindows(main, CountOne, data);
    return count;
}

// A wizard on its first page, of a suite with icons and a sample.
class Patient {
  public:
    explicit Patient(const wchar_t* arguments) {
        suite_.AddIcons();
        AddSamples(suite_, {L"Sample"});
        const std::wstring mark = L"leaks" + std::to_wstring(GetTickCount());
        wizard_ = std::make_unique<WizardDriver>(suite_.CommandLine(arguments + (L" " + mark)));
        walker_ = std::make_unique<Walker>(*wizard_);
        walker_->WaitUntilReady();
        linux_ = LinuxProcess(Utf8(mark));
    }

    Held Count() const {
        const HANDLE process =
            OpenProcess(PROCESS_VM_READ | PROCESS_QUERY_INFORMATION, FALSE, wizard_->ProcessId());
        Held held{GdiObjects(process), Windows(walker_->Main()), KernelHandles(wizard_->ProcessId()),
                  PrivateMemory(linux_)};
        CloseHandle(process);
        return held;
    }

    Walker& Walk() { return *walker_; }
    const DemoSuite& Suite() const { return suite_; }

    void ClickTo(HWND (Walker::*way)() const, const wchar_t* heading) {
        for (int i = 0; i < 40 && walker_->Heading() != heading; ++i) {
            walker_->Press(((*walker_).*way)());
            walker_->Answer();
        }
        if (walker_->Heading() != heading) Fail(std::wstring(L"no way to the page ") + heading);
    }

  private:
    DemoSuite suite_;
    std::unique_ptr<WizardDriver> wizard_;
    std::unique_ptr<Walker> walker_;
    int linux_ = 0;
};

void TourNdw(Patient& patient) {
    patient.ClickTo(&Walker::Next, L"Configuration Name");
    patient.ClickTo(&Walker::Back, L"New CNC Configuration");
}

void TourFtw(Patient& patient) {
    patient.ClickTo(&Walker::Next, L"Finished");
    patient.ClickTo(&Walker::Back, L"Getting Started"); // the pages before it hide Back
    patient.ClickTo(&Walker::Back, L"Choose setup mode");
}

void AskToExit(Patient& patient) {
    SendNotifyMessageW(patient.Walk().Main(), WM_CLOSE, 0, 0);
    patient.Walk().Answer(IDNO);
}

// The picker opens, and a folder in the way keeps the file from being made.
void PickIcon(Patient& patient) {
    patient.ClickTo(&Walker::Next, L"Configuration Name");
    patient.Walk().name = L"Blocked";
    CreateDirectoryW((patient.Suite().Settings() + L"Blocked.DCP").c_str(), nullptr);
    if (patient.Walk().CreateConfiguration().empty()) Fail(L"the file was made");
}

struct Row {
    const wchar_t* what;
    const wchar_t* arguments;
    void (*act)(Patient&);
    int full, few;
};

// clang-format off
constexpr Row kRows[] = {
    {L"tours, New Device Wizard",       L"/NDW", TourNdw,   1000, 6},
    {L"tours, First-Time Setup Wizard", L"",     TourFtw,   1000, 6},
    {L"message windows",                L"/NDW", AskToExit, 500,  20},
    {L"icon pickers",                   L"/NDW", PickIcon,  500,  6},
};
// clang-format on

bool Grew(const Held& before, const Held& after, int turns) {
    const int noise = std::min(turns - 1, 10);
    return after.gdi > before.gdi + noise || after.windows > before.windows + noise ||
           after.handles > before.handles + noise || after.memory > before.memory + kMemoryNoise_kB;
}

std::wstring Growth(const Held& before, const Held& after) {
    return L": GDI " + std::to_wstring(before.gdi) + L" to " + std::to_wstring(after.gdi) + L", windows " +
           std::to_wstring(before.windows) + L" to " + std::to_wstring(after.windows) + L", handles " +
           std::to_wstring(before.handles) + L" to " + std::to_wstring(after.handles) + L", memory " +
           std::to_wstring(before.memory) + L" to " + std::to_wstring(after.memory) + L" kB";
}

} // namespace

void CheckLeaks(Tally& tally) {
    for (const Row& row : kRows) {
        Patient patient(row.arguments);
        const int count = tally.Of(row.full, row.few);
        for (int i = 0; i < std::max(count / 4, 8); ++i)
            row.act(patient);
        // The system makes some things late, sometimes twice; what leaks grows with every turn, in each part.
        const Held before = patient.Count();
        Held now = before;
        bool grows = true;
        for (int part = 0; part < 2 || (grows && part < 4); ++part) {
            const Held last = now;
            for (int i = 0; i < count / 2; ++i)
                row.act(patient);
            now = patient.Count();
            grows = grows && Grew(last, now, count / 2);
        }
        tally.Expect(!grows, row.what + Growth(before, now));
        tally.Note(std::to_string(count) + " " + Utf8(row.what));
    }
}

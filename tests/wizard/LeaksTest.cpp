// Long use: what each turn through all pages, each message and each picker makes is gone behind it.

#include "app/StartUp.h"
#include "shell/frmIcons.h"
#include "tests/support/FormUnderTest.h"
#include "tests/support/IconFile.h"
#include "tests/support/Scratch.h"
#include "wizard/frmMessage.h"

#include <gtest/gtest.h>

#include <winternl.h>

#include <atomic>
#include <cstdlib>
#include <new>
#include <thread>

namespace {

std::atomic<int> blocks = 0; // of memory, made and not given back

// Entries in use of the process's own table of GDI objects.
int GdiObjects() {
    constexpr std::size_t kEntries = 16384, kStride = 24, kType = 14, kTableInPeb = 0x94;
    PROCESS_BASIC_INFORMATION process{};
    NtQueryInformationProcess(GetCurrentProcess(), ProcessBasicInformation, &process, sizeof(process),
                              nullptr);
    const auto* peb = reinterpret_cast<const unsigned char*>(process.PebBaseAddress);
    const auto* table = *reinterpret_cast<const unsigned char* const*>(peb + kTableInPeb);
    int count = 0;
    for (std::size_t i = 0; i < kEntries; ++i)
        count += table[i * kStride + kType] != 0;
    return count;
}

int KernelHandles() {
    DWORD count = 0; // the system's own count is 0 at times: each handle is asked for
    for (ULONG_PTR handle = 4; handle < 0x10000; handle += 4) {
        DWORD flags = 0;
        count += GetHandleInformation(reinterpret_cast<HANDLE>(handle), &flags) ? 1u : 0u;
    }
    return static_cast<int>(count);
}

BOOL CALLBACK CountOne(HWND, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

std::vector<int> Held() {
    int windows = 0;
    EnumThreadWindows(GetCurrentThreadId(), CountOne, reinterpret_cast<LPARAM>(&windows));
    return {GdiObjects(), KernelHandles(), windows, blocks};
}

void Tour(std::int16_t mode) {
    FormUnderTest test(mode);
    for (const Page& page : test.book.pages)
        test.Show(page.number);
}

void Message() {
    frmMessage box;
    PostMessageW(box.cmdButton[0].Handle(), BM_CLICK, 0, 0);
    box.Show(L"<b>Text</b>", 0, 0, L"", nullptr);
}

void Picker() {
    const ScratchFolder folder;
    WriteFileBytes(folder.Path() + L"a.ico", IconFile("", false));
    frmIcons form;
    const std::jthread person([&] {
        while (!IsWindowVisible(form.Hwnd()))
            Sleep(1);
        PostMessageW(form.cmdOK.Handle(), BM_CLICK, 0, 0);
    });
    form.OpenForm(folder, nullptr);
}

TEST(Leaks, NothingGrows) {
    const struct {
        const char* what;
        void (*act)();
    } rows[] = {{"First-Time Setup Wizard", [] { Tour(kFirstTimeSetup); }},
                {"New Device Wizard", [] { Tour(kNewDevice); }},
                {"message", Message},
                {"icon picker", Picker}};
    constexpr int kTurns = 10;
    const ScratchSuite suite;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        for (int i = 0; i < kTurns / 2; ++i) // the system makes some things late
            row.act();
        const std::vector<int> before = Held();
        for (int i = 0; i < kTurns; ++i)
            row.act();
        const std::vector<int> after = Held();
        const char* const kinds[] = {"GDI objects", "kernel handles", "windows", "blocks of memory"};
        for (std::size_t i = 0; i < after.size(); ++i)
            EXPECT_LT(after[i], before[i] + kTurns) << kinds[i];
    }
}

} // namespace

void* operator new(std::size_t size) {
    void* block = std::malloc(size);
    if (!block) throw std::bad_alloc();
    ++blocks;
    return block;
}
void operator delete(void* block) noexcept {
    if (block) --blocks;
    std::free(block);
}
void operator delete(void* block, std::size_t) noexcept { operator delete(block); }

// Programs and libraries of the same name planted on the way: the wizard loads its libraries from the system
// and starts the suite's own programs, whatever the folders are called.
#include "endurance/Scene.h"
#include "endurance/Soak.h"
#include "tools/driver/Walker.h"

#include "tests/support/DemoSuite.h"

#include <algorithm>

namespace {

// Libraries that are loaded while a program runs, by itself or by the system on its behalf. Those that are
// loaded before its first instruction are the system's business.
constexpr const wchar_t* kLibraries[] = {
    L"dwmapi",        L"propsys",       L"textshaping", L"oleacc", L"riched20", L"riched32", L"msftedit",
    L"usp10",         L"cryptbase",     L"cryptsp",     L"rsaenh", L"profapi",  L"ntmarta",  L"apphelp",
    L"linkinfo",      L"ntshrui",       L"srvcli",      L"cscapi", L"netutils", L"slc",      L"xmllite",
    L"windowscodecs", L"edputil",       L"iertutil",    L"urlmon", L"wldp",     L"dui70",    L"duser",
    L"hhctrl",        L"olepro32",      L"userenv",     L"mpr",    L"dbghelp",  L"clbcatq",  L"winmm",
    L"bcrypt",        L"explorerframe",
};

constexpr std::size_t kStarts = 14; // by the links and the ends of both walks

// Loads each library by its bare name within the wizard, as parts of the system do that it has loaded.
void LoadWithin(DWORD wizard) {
    const HANDLE process = OpenProcess(PROCESS_ALL_ACCESS, FALSE, wizard);
    constexpr std::size_t kRoom = 64 * sizeof(wchar_t);
    void* name = VirtualAllocEx(process, nullptr, kRoom, MEM_COMMIT, PAGE_READWRITE);
    // The system's own libraries lie at the same place in every process.
    const auto load = reinterpret_cast<LPTHREAD_START_ROUTINE>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "LoadLibraryW")));
    for (const wchar_t* library : kLibraries) {
        const std::wstring file = library + std::wstring(L".dll");
        WriteProcessMemory(process, name, file.c_str(), (file.size() + 1) * sizeof(wchar_t), nullptr);
        const HANDLE thread = CreateRemoteThread(process, nullptr, 0, load, name, 0, nullptr);
        if (!thread) Fail(L"cannot load within the wizard");
        WaitForSingleObject(thread, 10000);
        CloseHandle(thread);
    }
    CloseHandle(process);
}

// Follows every link of the page: they are the buttons that the wizard draws itself.
void FollowLinks(const Walker& walker) {
    for (HWND child : ControlsOf(walker.Main(), L"Button")) {
        if ((GetWindowLongW(child, GWL_STYLE) & BS_TYPEMASK) != BS_OWNERDRAW) continue;
        walker.Press(child);
        for (int i = 0; i < 200 && !IsWindowEnabled(walker.Main()) && !walker.Modal(); ++i)
            Sleep(10);
        while (HWND modal = walker.Modal()) // the folder dialog
            walker.AnswerModal(modal);
    }
}

// The other wizard that one of the links starts.
BOOL CALLBACK EndOther(HWND window, LPARAM own) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (ClassOf(window) != L"VWizardForm" || process == static_cast<DWORD>(own)) return TRUE;
    const HANDLE handle = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, process);
    TerminateProcess(handle, 0);
    WaitForSingleObject(handle, 5000);
    CloseHandle(handle);
    return TRUE;
}

void Run(Tally& tally, const DemoSuite& suite, const wchar_t* arguments) {
    const WizardDriver wizard(suite.CommandLine(arguments));
    Walker walker(wizard);
    walker.onPage = [&](const std::wstring& heading) {
        FollowLinks(walker);
        if (heading == L"Finished") LoadWithin(wizard.ProcessId());
    };
    const Journey journey = walker.Walk();
    tally.Expect(journey.trouble.empty() && journey.Passed(L"Finished"),
                 std::wstring(arguments) + L": " + journey.Story());
    EnumWindows(EndOther, static_cast<LPARAM>(wizard.ProcessId()));
}

} // namespace

void CheckPlanted(Tally& tally) {
    const std::wstring temp = FromEnvironment(L"TMP");
    const std::wstring parent = L"C:\\Program Files\\S\x00F6hne & Co\\";
    CreateDirectoryW(L"C:\\Program Files", nullptr);
    CreateDirectoryW(parent.c_str(), nullptr);
    CreateDirectoryW(L"C:\\elsewhere", nullptr);
    SetEnvironmentVariableW(L"TMP", parent.c_str());
    {
        const DemoSuite suite;
        SetEnvironmentVariableW(L"TMP", temp.c_str());
        const std::wstring planted = FromEnvironment(L"SOAK_PLANTED");
        for (const wchar_t* name : kLibraries)
            for (const std::wstring& folder : {suite.Folder(), std::wstring(L"C:\\elsewhere\\")})
                Copy(planted, folder + name + L".dll");
        const wchar_t* programs[] = {L"C:\\Program.exe", L"C:\\Program Files\\S\x00F6hne.exe"};
        for (const wchar_t* program : programs)
            Copy(suite.Folder() + L"VConfig.exe", program);

        // Whether a load would show at all.
        const std::wstring control = suite.Folder() + L"control.dll";
        Copy(planted, control);
        FreeLibrary(LoadLibraryW(control.c_str()));
        tally.Expect(Exists(control + L".loaded"), L"a loaded library leaves no trace");

        SetCurrentDirectoryW(L"C:\\elsewhere");
        for (const wchar_t* arguments : {L"", L"/NDW /VCONFIG"})
            Run(tally, suite, arguments);
        SetCurrentDirectoryW(L"C:\\");
        for (const wchar_t* name : kLibraries)
            for (const std::wstring& folder : {suite.Folder(), std::wstring(L"C:\\elsewhere\\")})
                tally.Expect(!Exists(folder + name + L".dll.loaded"), folder + name + L" was loaded");
        for (const wchar_t* program : programs) {
            tally.Expect(!Exists(program + std::wstring(L".log")), std::wstring(program) + L" was started");
            DeleteFileW(program);
        }
        const std::size_t starts = suite.StartCount();
        tally.Expect(starts >= kStarts, L"only " + std::to_wstring(starts) + L" programs were started");
        tally.Note(std::to_string(std::size(kLibraries)) + " libraries in 2 folders, " +
                   std::to_string(starts) + " programs started");
    }
}

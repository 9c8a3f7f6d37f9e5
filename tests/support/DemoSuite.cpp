#include "tests/support/DemoSuite.h"

#include <tlhelp32.h>

#include <algorithm>

namespace {

constexpr const wchar_t* kCompanions[] = {L"VConfig.exe",  L"VDNAV.EXE",     L"VLinkMgr.exe",
                                          L"VFileMgr.exe", L"VTerminal.exe", L"VRemote.EXE",
                                          L"HH.exe",       L"DocViewer.exe"};

constexpr const wchar_t* kDocuments[] = {L"QuickTour.chm",        L"LinkCheck.chm",
                                         L"CharCodes.chm",        L"TechNotes.chm",
                                         L"Setup Reference.pdf",  L"Varnel DNC Setup Reference.pdf",
                                         L"Quick Tour Guide.pdf", L"Operator Guide.pdf"};

constexpr DWORD kPatience_ms = 90000;

std::wstring Environment(const wchar_t* name) {
    std::wstring value(1024, L'\0');
    value.resize(GetEnvironmentVariableW(name, value.data(), 1024));
    if (value.empty()) Fail(std::wstring(L"the environment variable is missing: ") + name);
    // The script that starts the tests gives paths of the host system.
    if (value.front() == L'/') value.insert(0, L"Z:");
    std::replace(value.begin(), value.end(), L'/', L'\\');
    return value;
}

std::wstring BuildFolder() {
    const std::wstring program = Environment(L"VWIZARD_EXE");
    return program.substr(0, program.rfind(L'\\') + 1);
}

// Of this prefix: no other suite is used in it at the same time.
bool CompanionRuns() {
    const win::UniqueFile processes(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
    PROCESSENTRY32W process{};
    process.dwSize = sizeof process;
    for (BOOL more = Process32FirstW(processes.Get(), &process); more;
         more = Process32NextW(processes.Get(), &process))
        for (const wchar_t* name : kCompanions)
            if (lstrcmpiW(process.szExeFile, name) == 0) return true;
    return false;
}

} // namespace

DemoSuite::DemoSuite() {
    CreateDirectoryW(Settings().c_str(), nullptr);
    Copy(Environment(L"VWIZARD_EXE"), Folder() + L"VWizard.exe");
    for (const wchar_t* name : kCompanions)
        Copy(Environment(L"STANDIN_EXE"), Folder() + name);
    for (const wchar_t* name : kDocuments)
        WriteFileBytes(Folder() + name, "placeholder\r\n");
    WriteFileBytes(Settings() + L"VarnelDnc.ini", "[General]\r\n");
    SetRegText(HKEY_CURRENT_USER, L"SOFTWARE\\Varnel\\Varnel DNC\\Paths", L"SettingsPath", Settings());
    for (const wchar_t* extension : {L".chm", L".pdf"})
        SetRegText(HKEY_CLASSES_ROOT, extension, nullptr, L"VarnelDocument");
    SetRegText(HKEY_CLASSES_ROOT, L"VarnelDocument\\shell\\open\\command", nullptr,
               Quoted(L"DocViewer.exe") + L" \"%1\"");
}

void DemoSuite::Add(const std::wstring& file, const std::wstring& name) const {
    Copy(BuildFolder() + file, Folder() + name);
}

void DemoSuite::CopyAll(const std::wstring& part) const {
    const std::wstring from = BuildFolder() + part;
    CreateDirectoryW((Folder() + part).c_str(), nullptr);
    for (const std::wstring& name : FileNames(from))
        Copy(from + name, Folder() + part + name);
}

std::vector<Start> DemoSuite::WaitForStarts(const std::wstring& program, std::size_t count) const {
    for (const ULONGLONG begin = GetTickCount64();; Sleep(10)) {
        auto starts = StartsOf(Folder() + program);
        if (starts.size() >= count) return starts;
        if (GetTickCount64() - begin > kPatience_ms) Fail(L"was not started: " + program);
    }
}

// A stand-in writes down its start and ends: one that still runs may not have written.
std::size_t DemoSuite::StartCount() const {
    for (const ULONGLONG begin = GetTickCount64(); CompanionRuns(); Sleep(10))
        if (GetTickCount64() - begin > kPatience_ms) Fail(L"a companion program does not end");
    std::size_t count = 0;
    for (const wchar_t* name : kCompanions)
        count += StartsOf(Folder() + name).size();
    return count;
}

std::wstring DemoSuite::Setting(const wchar_t* key) const {
    std::wstring value(1024, L'\0');
    value.resize(GetPrivateProfileStringW(L"General", key, L"", value.data(), 1024,
                                          (Settings() + L"VarnelDnc.ini").c_str()));
    return value;
}

// A user who may not write the settings meets one page, in either wizard, whatever the cause.

#include "tests/support/DemoSuite.h"
#include "tests/support/WizardDriver.h"
#include "win/Handles.h"

#include <gtest/gtest.h>

namespace {

using Lock = win::UniqueKernelHandle;

struct Cause {
    const char* what;
    Lock (*bring)(const DemoSuite&);
    bool keysFail; // told in a box before the page
};

Lock Locked(const std::wstring& path) {
    return Lock(CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
}
std::wstring Ini(const DemoSuite& suite) { return suite.Settings() + L"VarnelDnc.ini"; }

Lock NoFolder(const DemoSuite& suite) {
    DeleteFileW(Ini(suite).c_str());
    RemoveDirectoryW(suite.Settings().c_str());
    return {};
}
Lock FileInItsPlace(const DemoSuite& suite) {
    NoFolder(suite);
    WriteFileBytes(suite.Folder() + L"Settings", "x");
    return {};
}
Lock NoProbe(const DemoSuite& suite) {
    CreateDirectoryW((suite.Settings() + L"VAccessTest.txt").c_str(), nullptr);
    return {};
}
Lock NoIni(const DemoSuite& suite) {
    DeleteFileW(Ini(suite).c_str());
    return {};
}
Lock FolderForIni(const DemoSuite& suite) {
    NoIni(suite);
    CreateDirectoryW(Ini(suite).c_str(), nullptr);
    return {};
}
Lock ReadOnly(const DemoSuite& suite) {
    SetFileAttributesW(Ini(suite).c_str(), FILE_ATTRIBUTE_READONLY);
    return {};
}
Lock LockedIni(const DemoSuite& suite) { return Locked(Ini(suite)); }

// Whether the read-only attribute stops this user's writes.
bool AttributeStops(const DemoSuite& suite) {
    const std::wstring path = suite.Folder() + L"probe";
    WriteFileBytes(path, "x");
    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY);
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file != INVALID_HANDLE_VALUE) CloseHandle(file);
    return file == INVALID_HANDLE_VALUE;
}

constexpr Cause kCauses[] = {
    {"no settings folder", NoFolder, true},
    {"a file in place of the folder", FileInItsPlace, true},
    {"a folder in place of the probe file", NoProbe, false},
    {"no settings file", NoIni, false},
    {"a folder in place of the settings file", FolderForIni, true},
    {"settings file read-only", ReadOnly, false},
    {"settings file locked", LockedIni, true},
};

void ExpectPage(const WizardDriver& wizard) {
    wizard.WaitForPage(L"Permission denied!");
    EXPECT_EQ(
        Utf8(wizard.PageText()),
        "Permission to modify Varnel DNC configuration settings is denied.\r\n\r\n"
        "To use this Wizard, log in to a user account with permission to modify Varnel DNC "
        "configuration files.\r\n\r\nFor more information about permissions, open the \"Security\" tab in "
        "Varnel DNC Configuration (VConfig), and then click Help.");
    for (const wchar_t* gone : {L"&Next >", L"< Back", L"&Skip", L"Cancel"})
        EXPECT_FALSE(wizard.Has(gone)) << Utf8(gone);
    EXPECT_EQ(wizard.Step(), L"");
    const HWND close = GetDlgItem(wizard.Window(), IDCANCEL);
    EXPECT_TRUE(wizard.HasFocus(close));
    EXPECT_EQ(LOWORD(SendMessageW(wizard.Window(), DM_GETDEFID, 0, 0)), IDCANCEL);
}

} // namespace

TEST(Permission, EachCauseShowsThePage) {
    for (const wchar_t* arguments : {L"", L"/NDW"})
        for (const Cause& cause : kCauses) {
            SCOPED_TRACE(std::string(cause.what) + " " + Utf8(arguments));
            const DemoSuite suite;
            const Lock lock = cause.bring(suite);
            const auto before = FileNames(suite.Settings());
            WizardDriver wizard(suite, arguments, WizardDriver::Wait::No);
            if (cause.keysFail || (cause.bring == ReadOnly && AttributeStops(suite))) {
                const auto box = wizard.AnswerBox(IDOK);
                EXPECT_EQ(box.text.find(L"Unable to write data to configuration file: \r\n" + Ini(suite)),
                          0u);
            }
            wizard.WaitForOpening();
            ExpectPage(wizard);
            wizard.Click(L"&Close"); // asks nothing
            EXPECT_EQ(wizard.WaitForExit(), 0);
            EXPECT_EQ(suite.StartCount(), 0u);
            if (cause.bring == NoIni) {
                const WizardDriver second(suite, arguments); // the start-up keys have made the file
                EXPECT_TRUE(second.Has(L"&Next >"));
            } else {
                EXPECT_EQ(FileNames(suite.Settings()), before);
            }
        }
}

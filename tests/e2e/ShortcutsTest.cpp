// What the shortcuts page leaves on the desktop, in the Start menu and on the Quick Launch bar.

#include "tests/support/DemoSuite.h"
#include "tests/support/LinkFile.h"
#include "tests/support/WizardDriver.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <shlobj.h>

#include <array>
#include <iterator>

namespace {

constexpr const wchar_t* kBoxes[] = {L"Desktop", L"Start Menu", L"Quick Launch Bar"};
constexpr const wchar_t* kToThePage[] = {L"Choose setup mode", L"Introduction", L"Getting Started",
                                         L"Specify Application Shortcuts"};
constexpr wchar_t kNextPage[] = L"Specify CNC file location";

std::wstring ShellFolder(int csidl) {
    wchar_t path[MAX_PATH] = L"";
    SHGetFolderPathW(nullptr, csidl, nullptr, SHGFP_TYPE_CURRENT, path);
    return path;
}

// The three places of this prefix, without what an earlier test left there.
class Places {
  public:
    Places()
        : folders_{ShellFolder(CSIDL_DESKTOPDIRECTORY) + L"\\", ShellFolder(CSIDL_STARTMENU) + L"\\",
                   ShellFolder(CSIDL_APPDATA) + L"\\Microsoft\\Internet Explorer\\Quick Launch\\"} {
        Clear();
        const std::wstring quickLaunch = folders_[2].substr(0, folders_[2].size() - 1);
        RemoveDirectoryW(quickLaunch.c_str());
        RemoveDirectoryW(quickLaunch.substr(0, quickLaunch.rfind(L'\\')).c_str());
    }
    Places(const Places&) = delete;
    Places& operator=(const Places&) = delete;
    ~Places() { Clear(); }

    const std::wstring& operator[](std::size_t place) const { return folders_[place]; }

    // For each place: F for the File Manager's shortcut, R for the Remote Server's, "." for none.
    std::string Look() const {
        std::string seen;
        for (const std::wstring& folder : folders_) {
            const auto names = FileNames(folder, L"Varnel*.lnk");
            for (const std::wstring& name : names)
                seen += name == L"Varnel DNC File Manager.lnk"    ? 'F'
                        : name == L"Varnel DNC Remote Server.lnk" ? 'R'
                                                                  : '?';
            seen += names.empty() ? ". " : " ";
        }
        return seen;
    }

  private:
    void Clear() const {
        for (const std::wstring& folder : folders_)
            for (const std::wstring& name : FileNames(folder, L"Varnel*.lnk"))
                DeleteFileW((folder + name).c_str());
    }
    std::array<std::wstring, 3> folders_;
};

struct Row {
    const char* name;
    const wchar_t *section, *key, *value; // the Remote Server's flag
    const char* boxes;                    // of the three, 1 for checked
    const wchar_t* button;                // by which the page is left
    const wchar_t* arrives;
    const char* seen;
};

// One after the other in one run of the wizard.
// clang-format off
const Row kRows[] = {
    {"all",                L"Install", L"Options", L"",  "111", L"&Next >", kNextPage,          "F F F "   },
    {"desktop alone",      L"Install", L"Options", L"2", "100", L"&Next >", kNextPage,          "F . . "   },
    {"remote server",      L"Install", L"Options", L"1", "101", L"&Next >", kNextPage,          "FR . FR " },
    {"no longer",          L"Install", L"Options", L"4", "010", L"&Next >", kNextPage,          "R F R "   },
    {"the other key",      L"Options", L"Install", L"1", "010", L"&Next >", kNextPage,          "R F R "   }, // the first decides
    {"back does nothing",  L"Install", L"Options", L"1", "111", L"< Back",  L"Getting Started", "R F R "   },
    {"remembered",         L"Install", L"Options", L"1", "111", L"&Next >", kNextPage,          "FR FR FR "},
    {"none",               L"Install", L"Options", L"3", "000", L"&Next >", kNextPage,          ". . . "   },
};
// clang-format on

std::string Boxes(const WizardDriver& wizard) {
    std::string boxes;
    for (const wchar_t* box : kBoxes)
        boxes += wizard.IsChecked(box) ? '1' : '0';
    return boxes;
}

TEST(Shortcuts, AreMadeAndDeletedAsChosen) {
    const Places places;
    const DemoSuite suite;
    const WizardDriver wizard(suite);
    for (const wchar_t* heading : kToThePage)
        wizard.Next(heading);
    ASSERT_EQ(GetFileAttributesW(places[2].c_str()), INVALID_FILE_ATTRIBUTES); // to be made, with its parent
    std::string boxes = "111";                                                 // all are chosen at first
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(Boxes(wizard), boxes);
        suite.SetSetting(row.key, row.value, row.section);
        for (std::size_t i = 0; i < std::size(kBoxes); ++i)
            wizard.Check(kBoxes[i], row.boxes[i] == '1');
        wizard.Click(row.button);
        wizard.WaitForPage(row.arrives);
        EXPECT_EQ(places.Look(), row.seen);
        boxes = row.boxes;
        if (row.arrives == kNextPage)
            wizard.Back(L"Specify Application Shortcuts");
        else
            wizard.Next(L"Specify Application Shortcuts");
    }
}

TEST(Shortcuts, StartTheProgramsOfTheSuite) {
    const Places places;
    const DemoSuite suite;
    suite.SetSetting(L"Options", L"1", L"Install");
    const WizardDriver wizard(suite);
    for (const wchar_t* heading : kToThePage)
        wizard.Next(heading);
    wizard.Next(kNextPage);
    for (const auto& [file, program] : {std::pair(L"Varnel DNC File Manager.lnk", L"VFileMgr.EXE"),
                                        {L"Varnel DNC Remote Server.lnk", L"VRemote.EXE"}})
        for (std::size_t place = 0; place < 3; ++place) {
            SCOPED_TRACE(Utf8(places[place] + file));
            const LinkFile link = ParseLinkFile(FileBytes(places[place] + file));
            EXPECT_EQ(link.target, suite.Folder() + program);
            EXPECT_EQ(link.workingFolder, suite.Folder());
            EXPECT_EQ(link.arguments, L"");
            EXPECT_EQ(link.description, L"");
            EXPECT_EQ(link.showCommand, 5u);
        }
}

// The reminder of the first Skip stays on the page; the second goes on. Neither touches a shortcut.
TEST(Shortcuts, AreLeftAloneBySkip) {
    const Places places;
    const DemoSuite suite;
    const WizardDriver wizard(suite);
    for (const wchar_t* heading : kToThePage)
        wizard.Next(heading);
    wizard.Click(L"&Skip");
    wizard.AnswerBox(IDOK);
    wizard.WaitForPage(L"Specify Application Shortcuts");
    wizard.Click(L"&Skip");
    wizard.WaitForPage(kNextPage);
    EXPECT_EQ(places.Look(), ". . . ");
}

} // namespace

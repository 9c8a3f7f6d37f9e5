// The First-Time Setup Wizard as a person uses it: the real program, its windows, what it leaves behind.

#include "tests/support/DemoSuite.h"
#include "tests/support/WizardDriver.h"

#include <gtest/gtest.h>

#include <commctrl.h>
#include <shlobj.h>

namespace {

constexpr const wchar_t* kChoose = L"Choose setup mode";
constexpr const wchar_t* kIntroduction = L"Introduction";
constexpr const wchar_t* kGetStarted = L"Getting Started";
constexpr const wchar_t* kShortcuts = L"Specify Application Shortcuts";
constexpr const wchar_t* kLocation = L"Specify CNC file location";
constexpr const wchar_t* kConfirm = L"Confirm CNC file location";
constexpr const wchar_t* kAbout = L"Configure Communication Options";
constexpr const wchar_t* kImport = L"Import Sample CNC Configuration Files";
constexpr const wchar_t* kEdit = L"Edit Sample CNC Configuration Files";
constexpr const wchar_t* kCreate = L"Create New CNC Configuration Files";
constexpr const wchar_t* kCaution = L"Common Problems";
constexpr const wchar_t* kBackup = L"Data Backup - Protect Your Investment";
constexpr const wchar_t* kFinal = L"Finished";

constexpr const wchar_t* kPrompt = L"Enter CNC file &location";
constexpr const wchar_t* kProgress = L"FTSW_MaxProgress";

void NextPages(const WizardDriver& wizard, std::initializer_list<const wchar_t*> headings) {
    for (const wchar_t* heading : headings)
        wizard.Next(heading);
}

void SkipTo(const WizardDriver& wizard, const wchar_t* heading) {
    wizard.Click(L"&Skip");
    wizard.WaitForPage(heading);
}

// From the start to the import page, by Next alone.
void GoToImport(const WizardDriver& wizard) {
    NextPages(wizard,
              {kChoose, kIntroduction, kGetStarted, kShortcuts, kLocation, kConfirm, kAbout, kImport});
}

std::wstring LastStart(const DemoSuite& suite, const wchar_t* program, std::size_t count) {
    const auto starts = suite.WaitForStarts(program, count);
    EXPECT_EQ(starts.size(), count);
    EXPECT_EQ(starts.back().show, SW_SHOWNORMAL);
    return starts.back().commandLine;
}

std::wstring Viewing(const DemoSuite& suite, const wchar_t* document) {
    return suite.Quoted(L"DocViewer.exe") + L" " + suite.Quoted(document);
}

std::wstring Topic(const DemoSuite& suite, const wchar_t* topic) { return L"HH.exe " + suite.Quoted(topic); }

// The New Device Wizard that the first one has started: at the lower right corner of the screen.
void CloseSecondWizard(const WizardDriver& wizard) {
    HWND second = nullptr;
    wizard.Until(
        [&] {
            second = FindWindowW(nullptr, L"Varnel DNC - New CNC Configuration Setup Wizard");
            return second && IsWindowVisible(second);
        },
        L"the New Device Wizard");
    RECT area{};
    GetWindowRect(second, &area);
    EXPECT_EQ(area.right, GetSystemMetrics(SM_CXSCREEN));
    EXPECT_EQ(area.bottom, GetSystemMetrics(SM_CYSCREEN));
    DWORD id = 0;
    GetWindowThreadProcessId(second, &id);
    const HANDLE process = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, id);
    TerminateProcess(process, 0);
    WaitForSingleObject(process, 10000);
    CloseHandle(process);
}

std::wstring Text(const std::wstring& lines) { // as a rich edit gives it
    std::wstring text;
    for (const wchar_t c : lines)
        text += c == L'\n' ? L"\r\n" : std::wstring(1, c);
    return text;
}

} // namespace

TEST(FtwWalk, NewInstallationFromWelcomeToFinish) {
    const DemoSuite suite;
    suite.AddSamples();
    const std::wstring cnc = suite.Folder() + L"Cnc";
    const WizardDriver wizard(suite);
    wizard.WaitForPage(L"Welcome");
    EXPECT_FALSE(wizard.Has(L"&Skip"));
    EXPECT_FALSE(wizard.Has(L"< Back"));
    wizard.Next(kChoose);
    EXPECT_TRUE(wizard.IsChecked(L"New installation"));
    EXPECT_FALSE(wizard.IsEnabled(L"Keep existing configuration"));
    NextPages(wizard, {kIntroduction, kGetStarted});
    EXPECT_FALSE(wizard.IsChecked(L"Open the tutorial when I leave this page"));
    wizard.Check(L"Open the tutorial when I leave this page", true);
    wizard.Next(kShortcuts);
    EXPECT_EQ(LastStart(suite, L"DocViewer.exe", 1), Viewing(suite, L"QuickTour.chm"));
    wizard.Next(kLocation);
    EXPECT_TRUE(wizard.HasFocus(wizard.Input(L"Edit", kPrompt)));
    wizard.Type(kPrompt, L" " + cnc + L" ");
    wizard.Next(kConfirm);
    EXPECT_TRUE(wizard.PageText().starts_with(
        Text(L"The folder you specified does not exist:\n      " + cnc + L" \n\nClick Next to create")));
    wizard.Next(kAbout);
    EXPECT_EQ(suite.Setting(L"TransmitRoot"), cnc + L";");
    EXPECT_EQ(FileNames(suite.Folder(), L"Cnc").size(), 1U);

    wizard.Next(kImport);
    const auto samples = wizard.ListItems();
    ASSERT_GE(samples.size(), 12U);
    wizard.MarkInList(0, true);
    wizard.MarkInList(3, true);
    wizard.Click(L"&Next >");
    const auto question = wizard.AnswerBox(IDYES);
    EXPECT_EQ(question.title, L"Varnel DNC Setup Wizard");
    EXPECT_EQ(question.text, L"Import 2 sample configuration files?\r\nAre you sure?");
    wizard.WaitForPage(kEdit);
    EXPECT_EQ(FileNames(suite.Settings(), L"*.dcp").size(), 2U);
    for (const std::size_t i : {0U, 3U}) {
        const std::string imported = FileBytes(suite.Settings() + samples[i] + L".dcp");
        EXPECT_EQ(imported.size(), 5449U);
        EXPECT_EQ(imported, FileBytes(suite.Folder() + L"Samples\\" + samples[i] + L".dcp"));
    }
    EXPECT_EQ(LastStart(suite, L"VConfig.exe", 1), suite.Quoted(L"VConfig.exe"));
    wizard.Click(L"Varnel DNC Configuration (VConfig)");
    EXPECT_EQ(LastStart(suite, L"VConfig.exe", 2), suite.Quoted(L"VConfig.exe"));

    wizard.Next(kCreate);
    wizard.Click(L"Start Varnel DNC New Device Wizard");
    CloseSecondWizard(wizard);
    wizard.Click(L"Configuration Guide");
    EXPECT_EQ(LastStart(suite, L"DocViewer.exe", 2), Viewing(suite, L"Setup Reference.pdf"));
    wizard.Next(kCaution);
    wizard.Click(L"More common problems");
    EXPECT_EQ(LastStart(suite, L"HH.exe", 1), Topic(suite, L"LinkCheck.chm::/Problem_Index.htm"));
    NextPages(wizard, {kBackup, kFinal});
    EXPECT_EQ(LastStart(suite, L"HH.exe", 2), Topic(suite, L"QuickTour.chm::/Protect-investment.htm"));
    EXPECT_FALSE(wizard.Has(L"&Skip"));
    wizard.Click(L"&Finish");
    EXPECT_EQ(wizard.WaitForExit(), 0);
    EXPECT_EQ(LastStart(suite, L"VDNAV.EXE", 1), suite.Quoted(L"VDNAV.EXE"));
    EXPECT_EQ(suite.StartCount(), 7U);
    EXPECT_EQ(suite.Setting(kProgress), L"16");
}

// A long list of folders and the floppy drive go through untouched.
TEST(FtwWalk, KeptConfigurationStaysAsItIs) {
    const DemoSuite suite;
    std::string folders;
    for (int i = 0; i < 60; ++i)
        folders += "D:\\Cnc Programs " + std::to_string(i) + ";";
    const std::string line = "TransmitRoot=" + folders + "A:;\r\n";
    const std::wstring ini = suite.Settings() + L"VarnelDnc.ini";
    WriteFileBytes(ini, "[General]\r\nFTSW_MaxProgress=6\r\n" + line + "Other=1\r\n");
    const WizardDriver wizard(suite);
    wizard.Next(kChoose);
    EXPECT_TRUE(wizard.IsChecked(L"New installation"));
    wizard.Choose(L"Keep existing configuration");
    NextPages(wizard, {kIntroduction, kGetStarted, kShortcuts, kLocation});
    const std::wstring shown(folders.begin(), folders.end() - 1);
    EXPECT_EQ(wizard.Typed(kPrompt), shown);
    NextPages(wizard, {kConfirm, kAbout});
    EXPECT_NE(FileBytes(ini).find("\r\n" + line), std::string::npos);
    EXPECT_NE(FileBytes(ini).find("\r\nOther=1\r\n"), std::string::npos);
    // Back on the page it is still all there.
    wizard.Back(kLocation);
    EXPECT_EQ(wizard.Typed(kPrompt), shown);
}

TEST(FtwWalk, LoadHandsOverToTheConfigurationManager) {
    const DemoSuite suite;
    for (const bool isThere : {true, false}) {
        const WizardDriver wizard(suite);
        wizard.Next(kChoose);
        wizard.Choose(L"Load previously-saved configuration");
        wizard.Click(L"&Next >");
        const auto box = wizard.AnswerBox(IDCANCEL);
        EXPECT_EQ(box.title, L"VWizard");
        EXPECT_EQ(box.text,
                  L"You chose to restore a previously-saved set of\r\nVarnel DNC configuration files.\r\n\r\n"
                  L"Click 'OK' to close this wizard and\r\nlaunch the Varnel DNC Configuration Manager "
                  L"wizard,\r\nwhich will guide you through the process of loading\r\nyour previously-saved "
                  L"configuration.");
        wizard.WaitForPage(kChoose);
        EXPECT_TRUE(wizard.IsChecked(L"Load previously-saved configuration"));
        EXPECT_EQ(suite.StartCount(), isThere ? 0U : 1U);
        if (!isThere) DeleteFileW((suite.Folder() + L"VConfig.exe").c_str());
        wizard.Click(L"&Next >");
        wizard.AnswerBox(IDOK);
        EXPECT_EQ(wizard.WaitForExit(), 0); // without the exit question
        EXPECT_EQ(LastStart(suite, L"VConfig.exe", 1), suite.Quoted(L"VConfig.exe") + L" /MANAGER");
    }
}

TEST(FtwWalk, SkipRemindsOnceAndJumps) {
    const DemoSuite suite;
    const WizardDriver wizard(suite);
    NextPages(wizard, {kChoose, kIntroduction, kGetStarted});
    wizard.Check(L"Open the tutorial when I leave this page", true);
    wizard.Click(L"&Skip");
    const auto box = wizard.AnswerBox(IDOK);
    EXPECT_EQ(box.title, L"Warning");
    EXPECT_EQ(box.text,
              L"Complete all steps to ensure that Varnel DNC\r\nis installed correctly. If you still wish "
              L"to skip\r\nthis step, click \"Skip\" once more. This reminder\r\nwill not appear again.");
    wizard.WaitForPage(kGetStarted);
    // The tutorial has been opened once and is not offered to the next click.
    EXPECT_FALSE(wizard.IsChecked(L"Open the tutorial when I leave this page"));
    SkipTo(wizard, kShortcuts);
    SkipTo(wizard, kLocation);
    SkipTo(wizard, kAbout);
    EXPECT_EQ(suite.Setting(L"TransmitRoot"), L"");
    EXPECT_FALSE(wizard.Has(L"&Skip"));
    EXPECT_EQ(suite.Setting(kProgress), L"6");
    wizard.Next(kImport);
    SkipTo(wizard, kCreate);
    EXPECT_EQ(suite.Setting(kProgress), L"11");
    EXPECT_EQ(LastStart(suite, L"DocViewer.exe", 1), Viewing(suite, L"QuickTour.chm"));
    EXPECT_EQ(suite.StartCount(), 1U);
}

TEST(FtwWalk, ProgressOnlyGrowsBackAndForth) {
    struct Step {
        bool forward;
        const wchar_t* heading;
        const wchar_t* progress;
    };
    // clang-format off
    constexpr Step kSteps[] = {
        {true,  kChoose,       L"1"},
        {true,  kIntroduction, L"1"}, // the setup mode moves on by itself
        {true,  kGetStarted,   L"6"},
        {false, kIntroduction, L"6"},
        {false, kChoose,       L"6"},
        {true,  kIntroduction, L"6"},
        {true,  kGetStarted,   L"6"},
        {true,  kShortcuts,    L"7"},
        {true,  kLocation,     L"8"},
        {true,  kConfirm,      L"9"},
        {true,  kAbout,       L"10"},
        {false, kLocation,    L"10"},
        {true,  kConfirm,     L"10"},
        {true,  kAbout,       L"10"},
        {true,  kImport,      L"11"},
        {true,  kCreate,      L"13"}, // no sample selected
        {false, kImport,      L"13"},
        {true,  kCreate,      L"13"},
        {true,  kCaution,     L"14"},
        {true,  kBackup,      L"15"},
        {true,  kFinal,       L"16"},
        {false, kBackup,      L"16"},
    };
    // clang-format on
    const DemoSuite suite;
    const WizardDriver wizard(suite);
    for (const Step& step : kSteps) {
        SCOPED_TRACE(Utf8(step.heading));
        step.forward ? wizard.Next(step.heading) : wizard.Back(step.heading);
        EXPECT_EQ(suite.Setting(kProgress), step.progress);
    }
}

TEST(FtwWalk, ImportOfNoneOneAndOverwriting) {
    const DemoSuite suite;
    const std::wstring samples = suite.Folder() + L"Samples\\";
    CreateDirectoryW(samples.c_str(), nullptr);
    const std::wstring name = L"Dr\u00fcck & Stanz v2.1";
    const std::wstring imported = suite.Settings() + name + L".DCP";
    WriteFileBytes(samples + name + L".dcp", "sample");
    WriteFileBytes(samples + L"Other.dcpx", "no sample");
    const WizardDriver wizard(suite);
    GoToImport(wizard);
    EXPECT_EQ(wizard.ListItems(), std::vector<std::wstring>{name});
    wizard.Next(kCreate); // none: asks nothing, and there is nothing to edit

    const auto import = [&](int answer, int overwrite) {
        wizard.Back(kImport);
        wizard.MarkInList(0, true);
        wizard.Click(L"&Next >");
        EXPECT_EQ(wizard.AnswerBox(answer).text, L"Import 1 sample configuration file?\r\nAre you sure?");
        if (overwrite) wizard.AnswerBox(overwrite);
        wizard.WaitForPage(kEdit);
        wizard.Next(kCreate);
    };
    import(IDNO, 0);
    EXPECT_TRUE(FileNames(suite.Settings(), L"*.dcp").empty());
    EXPECT_EQ(suite.StartCount(), 0U);
    import(IDYES, 0);
    EXPECT_EQ(FileBytes(imported), "sample");
    WriteFileBytes(imported, "edited");
    import(IDYES, IDNO);
    EXPECT_EQ(FileBytes(imported), "edited");
    import(IDYES, IDYES);
    EXPECT_EQ(FileBytes(imported), "sample");
    EXPECT_EQ(suite.WaitForStarts(L"VConfig.exe", 3).size(), 3U);
}

TEST(FtwWalk, WithoutSamplesOneLineSaysSo) {
    const DemoSuite suite;
    for (const bool hasFolder : {false, true}) {
        if (hasFolder) CreateDirectoryW((suite.Folder() + L"Samples").c_str(), nullptr);
        const WizardDriver wizard(suite);
        GoToImport(wizard);
        EXPECT_EQ(wizard.ListItems(), std::vector<std::wstring>{L"(No sample files were found)"});
    }
}

TEST(FtwWalk, LocationFromBrowsingAndDefault) {
    const DemoSuite suite;
    const WizardDriver wizard(suite);
    NextPages(wizard, {kChoose, kIntroduction, kGetStarted, kShortcuts, kLocation});
    wizard.Type(kPrompt, L"D:\\Typed");
    wizard.Click(L"Browse existing folders");
    wizard.AnswerBox(IDCANCEL);
    EXPECT_EQ(wizard.Typed(kPrompt), L"D:\\Typed");

    wizard.Click(L"Browse existing folders");
    LRESULT selected = 0;
    wizard.Until(
        [&] { // the dialog opens on C:\ and unfolds the tree down to it
            const HWND dialog = wizard.WaitForWindow(L"Browse for Folder");
            const HWND tree = FindWindowExW(dialog, nullptr, L"SysTreeView32", nullptr);
            const LRESULT before = selected;
            selected = SendMessageW(tree, TVM_GETNEXTITEM, TVGN_CARET, 0);
            Sleep(200);
            return selected && selected == before;
        },
        L"a folder selected in the tree");
    wizard.AnswerBox(IDOK);
    EXPECT_EQ(wizard.Typed(kPrompt), L"C:\\");

    wchar_t documents[MAX_PATH] = L"";
    SHGetFolderPathW(nullptr, CSIDL_COMMON_DOCUMENTS, nullptr, 0, documents);
    wizard.Click(L"Default folder");
    wizard.Until([&] { return wizard.Typed(kPrompt) == documents + std::wstring(L"\\CNC Programs"); },
                 L"the default folder in the box");
}

// Every link of both wizards, those that no page shows included: what is started, and how.

#include "app/StartUp.h"
#include "app/modLocations.h"
#include "ftw/FtwPages.h"
#include "ndw/NdwPages.h"
#include "tests/support/DemoSuite.h"
#include "wizard/frmWizard.h"

#include <gtest/gtest.h>

#include <span>

namespace {

struct Link {
    std::int16_t page, index;
    const wchar_t* program;     // the stand-in that is started; null: none
    const wchar_t* commandLine; // "?" stands for the suite's folder
};

// clang-format off
constexpr Link kFtwLinks[] = {
    { 7, 0, L"DocViewer.exe", L"\"?DocViewer.exe\" \"?QuickTour.chm\""},
    { 7, 1, L"VConfig.exe",   L"\"?VConfig.exe\" /Manager"},
    { 7, 2, L"VConfig.exe",   L"\"?VConfig.exe\" /Manager"},
    { 8, 0, L"VLinkMgr.exe",  L"\"?VLinkMgr.exe\""},
    { 8, 2, L"VLinkMgr.exe",  L"\"?VLinkMgr.exe\""},
    {11, 0, L"DocViewer.exe", L"\"?DocViewer.exe\" \"?Setup Reference.pdf\""},
    {13, 0, L"VConfig.exe",   L"\"?VConfig.exe\""},
    {13, 1, L"DocViewer.exe", L"\"?DocViewer.exe\" \"?Setup Reference.pdf\""},
    {14, 0, L"VWizard.exe",   L"\"?VWizard.exe\" /NDW /SHIFT"},
    {14, 1, L"VConfig.exe",   L"\"?VConfig.exe\""},
    {14, 2, L"DocViewer.exe", L"\"?DocViewer.exe\" \"?Setup Reference.pdf\""},
    {15, 0, L"HH.exe",        L"HH.exe \"?LinkCheck.chm::/Problem - Hibernation.htm\""},
    {15, 1, L"HH.exe",        L"HH.exe \"?LinkCheck.chm::/Problem - USB-Serial.htm\""},
    {15, 2, L"HH.exe",        L"HH.exe \"?LinkCheck.chm::/Problem_Index.htm\""},
    {16, 0, L"DocViewer.exe", L"\"?DocViewer.exe\" \"?Quick Tour Guide.pdf\""},
    {17, 0, L"DocViewer.exe", L"\"?DocViewer.exe\" \"?Operator Guide.pdf\""},
    {17, 1, L"VFileMgr.exe",  L"\"?VFileMgr.exe\""},
    {17, 2, L"VConfig.exe",   L"\"?VConfig.exe\" /GENERAL"},
    { 1, 0, nullptr,          L""},
    {10, 0, nullptr,          L""},
    {11, 1, nullptr,          L""},
    {13, 2, nullptr,          L""},
    {16, 1, nullptr,          L""},
};

constexpr Link kNdwLinks[] = {
    { 1, 0, L"DocViewer.exe", L"\"?DocViewer.exe\" \"?Varnel DNC Setup Reference.PDF\""},
    { 1, 2, L"DocViewer.exe", L"\"?DocViewer.exe\" \"?Varnel DNC Setup Reference.PDF\""},
    { 2, 0, L"DocViewer.exe", L"\"?DocViewer.exe\" \"?Linkcheck.chm\""},
    { 2, 1, L"DocViewer.exe", L"\"?DocViewer.exe\" \"?Varnel DNC Setup Reference.pdf\""},
    { 2, 2, L"VTerminal.exe", L"\"?VTerminal.exe\""},
    { 9, 0, L"DocViewer.exe", L"\"?DocViewer.exe\" \"?CharCodes.chm\""},
    {10, 1, L"DocViewer.exe", L"\"?DocViewer.exe\" \"?CharCodes.chm\""},
    {17, 0, L"VConfig.exe",   L"\"?VConfig.exe\" Mill 3 \x00E4"},
    {17, 1, L"DocViewer.exe", L"\"?DocViewer.exe\" \"?TechNotes.chm\""},
    { 2, 3, nullptr,          L""},
    { 3, 0, nullptr,          L""},
    {16, 0, nullptr,          L""},
    {17, 2, nullptr,          L""},
};
// clang-format on

std::wstring InSuite(std::wstring text, const DemoSuite& suite) {
    for (auto at = text.find(L'?'); at != std::wstring::npos; at = text.find(L'?'))
        text.replace(at, 1, suite.Folder());
    return text;
}

// With the suite's folder as the program's and the current one, as when the wizard runs.
class Links : public testing::Test {
  protected:
    Links() {
        // The wizard itself is one of the programs: a stand-in for it, too.
        CopyFileW((suite.Folder() + L"VConfig.exe").c_str(), (suite.Folder() + L"VWizard.exe").c_str(),
                  FALSE);
        locations.AppPath = suite.Folder();
        GetCurrentDirectoryW(MAX_PATH, before_);
        SetCurrentDirectoryW(suite.Folder().c_str());
    }
    ~Links() override { SetCurrentDirectoryW(before_); }

    void ExpectStarts(const PageBook& book, std::span<const Link> links) const {
        frmWizard form(book, true);
        form.ConfigName = L"Mill 3 \x00E4";
        std::size_t count = 0;
        for (const Link& link : links) {
            SCOPED_TRACE("page " + std::to_string(link.page) + ", link " + std::to_string(link.index));
            form.PageNo = link.page;
            const std::size_t earlier = link.program ? suite.Starts(link.program).size() : 0;
            form.lblHyperlink_Click(link.index);
            if (link.program) ExpectStart(link.program, earlier + 1, link.commandLine);
            if (link.program) ++count;
            EXPECT_EQ(suite.StartCount() + suite.Starts(L"VWizard.exe").size(), count);
        }
    }
    void ExpectStart(const wchar_t* program, std::size_t count, const wchar_t* commandLine) const {
        const Start start = suite.WaitForStarts(program, count).back();
        EXPECT_EQ(Utf8(start.commandLine), Utf8(InSuite(commandLine, suite)));
        EXPECT_EQ(start.show, SW_SHOWNORMAL);
        EXPECT_EQ(start.folder + L"\\", suite.Folder());
    }

    const ScratchSuite restoresLocations;
    const DemoSuite suite;

  private:
    wchar_t before_[MAX_PATH] = L"";
};

} // namespace

TEST_F(Links, FirstTimeSetupWizard) { ExpectStarts(FtwBook(), kFtwLinks); }

TEST_F(Links, NewDeviceWizard) { ExpectStarts(NdwBook(), kNdwLinks); }

// Closed after a configuration was made for VConfig: it is handed over, with the doubled backslash.
TEST_F(Links, ExitHandsTheConfigurationOver) {
    frmWizard form(NdwBook(), true);
    form.ConfigName = L"Mill 3 \x00E4";
    for (const int flags : {0, 1, 2, 3}) {
        startUp.ConfigLaunch = flags & 1;
        form.ConfigWritten = flags & 2;
        NdwBook().exiting(form);
    }
    startUp.ConfigLaunch = false;
    ExpectStart(L"VConfig.exe", 1, L"\"?\\VConfig.exe\" Mill 3 \x00E4");
    EXPECT_EQ(suite.StartCount(), 1u);
}

#include "app/Launch.h"

#include "tests/support/DemoSuite.h"
#include "tests/support/Scratch.h"

#include <functional>

#include <gtest/gtest.h>

namespace {

// The program's folder is the current one, as in the running wizard.
class Launch : public testing::Test {
  protected:
    Launch() {
        GetCurrentDirectoryW(MAX_PATH, before_);
        SetCurrentDirectoryW(suite.Path().c_str());
    }
    ~Launch() override { SetCurrentDirectoryW(before_); }

    ScratchSuite suite;

  private:
    wchar_t before_[MAX_PATH] = L"";
};

void Associate(const wchar_t* extension, const std::wstring& command) {
    const auto set = [](const std::wstring& key, const std::wstring& text) {
        RegSetKeyValueW(HKEY_CLASSES_ROOT, key.c_str(), nullptr, REG_SZ, text.c_str(),
                        static_cast<DWORD>((text.size() + 1) * sizeof text[0]));
    };
    set(extension, L"VarnelTestDocument");
    set(L"VarnelTestDocument\\shell\\open\\command", command);
}

} // namespace

TEST_F(Launch, ExactCommandLines) {
    const std::wstring folder = suite.Path();
    const struct {
        const wchar_t* program;
        std::function<void()> start;
        std::wstring commandLine;
    } rows[] = {
        {L"VDNAV.EXE", [] { RunProgram(L"VDNAV.EXE"); }, L'"' + folder + L"VDNAV.EXE\""},
        {L"VConfig.exe", [] { RunProgram(L"VConfig.exe", L" Mill 3"); },
         L'"' + folder + L"VConfig.exe\" Mill 3"},
        {L"VTerminal.exe", [&] { RunCommandLine(L'"' + folder + L"\\VTerminal.exe\" D\u00e4n \u65cb"); },
         L'"' + folder + L"\\VTerminal.exe\" D\u00e4n \u65cb"},
        {L"HH.exe", [] { ShowHelpTopic(L"QuickTour.chm", L"Protect-investment.htm"); },
         L"HH.exe \"" + folder + L"QuickTour.chm::/Protect-investment.htm\""},
        {L"DocViewer.exe", [] { OpenDocument(L"A document.vtst"); },
         L'"' + folder + L"DocViewer.exe\" \"" + folder + L"A document.vtst\""},
        {L"VLinkMgr.exe", [] { OpenDocument(L"VLinkMgr.exe"); }, L'"' + folder + L"VLinkMgr.exe\""},
    };
    WriteFileBytes(folder + L"A document.vtst", "x");
    Associate(L".vtst", L'"' + folder + L"DocViewer.exe\" \"%1\"");
    for (const auto& row : rows) {
        suite.AddStandIn(row.program);
        row.start();
        EXPECT_EQ(suite.StartsOf(row.program), "command=" + Utf8(row.commandLine) + "\r\nshow=1\r\nfolder=" +
                                                   Utf8(folder.substr(0, folder.size() - 1)) + "\r\n\r\n");
    }
}

TEST_F(Launch, AFailedStartIsSilent) {
    const auto boxes = Answering({}, [] {
        RunProgram(L"VConfig.exe", L" Mill 3");
        OpenDocument(L"Missing.pdf");
        RunCommandLine(L"");
    });
    EXPECT_TRUE(boxes.empty());
}

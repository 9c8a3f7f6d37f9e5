// What every page of both wizards shows is written down in pages.txt: its heading, its text with the look of
// each character, its inputs. A page that looks otherwise is written to pages.new.txt beside the test
// program: when the change is meant, that file takes the place of the old one.

#include "app/StartUp.h"
#include "app/modLocations.h"
#include "ftw/FtwPages.h"
#include "ndw/NdwPages.h"
#include "tests/support/FormUnderTest.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

std::string LookOf(HWND control) {
    const std::wstring kind = ClassOf(control);
    std::string look = kind == L"Edit" || kind == L"Static" ? Utf8(L'"' + win::WindowText(control) + L'"')
                                                            : Utf8(win::WindowText(control));
    if (kind == L"ComboBox") look = std::to_string(SendMessageW(control, CB_GETCOUNT, 0, 0)) + " items";
    if (kind == L"ListBox") look = std::to_string(SendMessageW(control, LB_GETCOUNT, 0, 0)) + " items";
    if (kind == L"Edit") look += " up to " + std::to_string(SendMessageW(control, EM_GETLIMITTEXT, 0, 0));
    if (kind == L"Button" && SendMessageW(control, BM_GETCHECK, 0, 0)) look += " (on)";
    if (!IsWindowEnabled(control)) look += " (grey)";
    std::erase(look, '\r');
    return "    " + Utf8(kind) + " " + look + "\n";
}

std::string LookOf(FormUnderTest& test, std::int16_t page, const std::string& variant = "") {
    test.Show(page);
    std::string look = "== mode " + std::to_string(startUp.WizardMode) + " page " + std::to_string(page) +
                       variant + "\n" + Utf8(test.form.picHeader.Text()) + "\n\n" +
                       Utf8(Described(test.form.txtInfo, L"\n")) + "\n\n";
    for (const HWND control : test.VisibleControls())
        if (control != test.form.picHeader.Handle() && control != test.form.txtInfo.Handle())
            look += LookOf(control);
    return look + "\n";
}

std::string FirstTimeSetup() {
    FormUnderTest test(kFirstTimeSetup);
    std::string looks;
    for (const Page& page : kFtwPages)
        looks += LookOf(test, page.number);
    for (const wchar_t* folders :
         {L"  ", L"C:\\windows", L"C:\\windows; ", L"C:\\none", L"C:\\none;C:\\", L"<b>D</b><r>"}) {
        ftwSession.location.folders = folders;
        looks += LookOf(test, 10, " with " + Utf8(folders));
    }
    ftwSession.maxProgress = 6;
    return looks + LookOf(test, 2, " the second time");
}

std::string NewDevice() {
    FormUnderTest test(kNewDevice);
    test.form.ConfigName = L"Mill 3";
    std::string looks;
    for (const Page& page : kNdwPages)
        looks += LookOf(test, page.number);
    startUp.ConfigLaunch = true;
    looks += LookOf(test, kNdwFinalPage, " from VConfig");
    startUp.ConfigLaunch = false;
    ndwSession.answers.prefixChoice = 15;
    looks += LookOf(test, 9, " with too many codes");
    ndwSession.answers.dataFormatIndex = kAsciiDataFormat;
    ndwSession.answers.portIndex = 255;
    return looks + LookOf(test, kNdwNamePage, " with other answers");
}

TEST(Pages, LookAsWrittenDown) {
    const ScratchSuite suite; // without samples and settings
    ProgramLocations shown = locations;
    shown.SettingsPath = L"C:\\Dnc\\";
    UseLocations(shown);
    const std::string looks = FirstTimeSetup() + NewDevice();
    const std::string written = FileBytes(TestFolder() + L"..\\..\\tests\\wizard\\pages.txt");
    if (looks == written) return;
    WriteFileBytes(TestFolder() + L"pages.new.txt", looks);
    std::istringstream is(looks), wanted(written);
    std::string line, wantedLine, page;
    while (std::getline(is, line) && std::getline(wanted, wantedLine) && line == wantedLine)
        if (line.starts_with("== ")) page = line;
    FAIL() << page << "\n" << line << "\ninstead of\n" << wantedLine;
}

} // namespace

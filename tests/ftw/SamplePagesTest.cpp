#include "app/Files.h"
#include "app/StartUp.h"
#include "ftw/FtwPages.h"
#include "ftw/SampleImport.h"
#include "tests/support/FormUnderTest.h"
#include "tests/support/Imports.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

namespace {

bool wasThere; // when the configuration program was started

// NOLINTNEXTLINE(readability-function-size): as the system has it
BOOL WINAPI Start(LPCWSTR, LPWSTR, LPSECURITY_ATTRIBUTES, LPSECURITY_ATTRIBUTES, BOOL, DWORD, LPVOID, LPCWSTR,
                  LPSTARTUPINFOW, LPPROCESS_INFORMATION) {
    return wasThere = FileExists(ConfigurationFile(L"Mill")), FALSE;
}

} // namespace

TEST(SamplePages, LeavesOutWhatTheShellCannotTake) {
    const ReplacedImport start("CreateProcessW", reinterpret_cast<void*>(&Start));
    const ScratchSuite suite;
    const ScratchFolder samples;
    WriteFileBytes(samples.Path() + L"Mill.dcp", "sample");
    FormUnderTest test(kFirstTimeSetup);
    auto& list = test.form.pool.lstUserInput[0];
    list.Fill({std::wstring(260, L'x'), L"Mill"});
    list.Send(LB_SETSEL, TRUE, -1);
    for (const std::wstring& settings : {suite.Path(), suite.Path() + std::wstring(260, L's') + L"\\"}) {
        const bool fits = settings == suite.Path();
        ProgramLocations with = locations;
        with.SamplesPath = samples;
        with.SettingsPath = settings;
        UseLocations(with);
        const auto boxes = Answering({IDYES}, [&] { LeaveFtwImportSample(test.form, Move::Next); });
        std::vector<std::wstring> leftOut = {std::wstring(260, L'x')};
        if (!fits) leftOut.push_back(L"Mill");
        EXPECT_EQ(boxes, (std::vector{L"Varnel DNC Setup Wizard\r\n" + ImportQuestion(2),
                                      L"Varnel DNC Setup Wizard\r\n" + LeftOutMessage(leftOut)}));
        EXPECT_EQ(wasThere, fits);
    }
}

// Each call to the system that a whole run of either wizard makes fails, once alone and once with all that
// follow it: the wizard goes on or ends, without a crash, and says only what it has to say.
#include "endurance/Soak.h"

#include <algorithm>
#include <set>
#include <sstream>

namespace {

struct Scene {
    const wchar_t* arguments;
    DemoSuite suite;
    std::vector<std::string> calls;  // of an undisturbed run
    std::set<std::string> functions; // that can fail

    explicit Scene(const wchar_t* mode) : arguments(mode) {
        suite.Add(L"faulty.exe", L"VWizard.exe");
        suite.AddIcons();
        suite.AddSamples();
    }
    std::wstring Log() const { return suite.Folder() + L"calls.txt"; }
};

constexpr wchar_t kRunOnce[] = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\RunOnce";
constexpr wchar_t kCncFolder[] = L"C:\\CNC faults";

// Selects what makes the wizard do more: the first sample, a folder to be made.
void AskForMore(const Walker& walker, const std::wstring& heading) {
    if (heading.starts_with(L"Import Sample"))
        for (HWND list : ControlsOf(walker.Main(), L"ListBox"))
            Ask(list, LB_SETSEL, TRUE, 0);
    if (heading == L"Specify CNC file location")
        for (HWND box : ControlsOf(walker.Main(), L"Edit"))
            TypeOver(box, kCncFolder);
}

Journey Run(Scene& scene, const std::wstring& failing) {
    for (const std::wstring& file : FileNames(scene.suite.Settings()))
        DeleteFileW((scene.suite.Settings() + file).c_str());
    RemoveDirectoryW(kCncFolder);
    WriteFileBytes(scene.suite.Settings() + suite::kIniFile, "[General]\r\nKept=yes\r\n");
    SetRegText(HKEY_LOCAL_MACHINE, kRunOnce, L"Varnel_DNC_FTSW", L"x");
    SetEnvironmentVariableW(L"VWIZARD_FAIL", failing.c_str());
    const WizardDriver wizard(scene.suite.CommandLine(scene.arguments), WizardDriver::Wait::No);
    Walker walker(wizard);
    walker.onPage = [&](const std::wstring& heading) { AskForMore(walker, heading); };
    return walker.Walk();
}

void RunAll(Scene& scene) {
    SetEnvironmentVariableW(L"VWIZARD_FAIL_LOG", scene.Log().c_str());
    const Journey whole = Run(scene, L"0");
    EXPECT_TRUE(whole.trouble.empty() && whole.Passed(L"Finished")) << "undisturbed: " << Utf8(whole.Story());
    std::istringstream log(FileBytes(scene.Log()));
    for (std::string name; std::getline(log, name);)
        if (name.starts_with('?'))
            scene.functions.insert(name.substr(1));
        else
            scene.calls.push_back(name);
    SetEnvironmentVariableW(L"VWIZARD_FAIL_LOG", nullptr);
    const std::size_t step = IsShort() ? std::max<std::size_t>(1, scene.calls.size() / 3) : 1;
    for (std::size_t call = 1 + Seed() % step; call <= scene.calls.size(); call += step)
        for (const wchar_t* after : {L"", L"+"}) {
            const std::wstring which = std::to_wstring(call) + after;
            SCOPED_TRACE(scene.calls[call - 1] + Utf8(L" (" + which + L") " + scene.arguments));
            const Journey journey = Run(scene, which);
            EXPECT_EQ(journey.trouble, L"") << Utf8(journey.Story());
            const std::wstring file = scene.suite.Settings() + L"Walked.DCP";
            EXPECT_TRUE(!*scene.arguments || !journey.Passed(L"Finished") || FileBytes(file).size() == 5449);
            EXPECT_EQ(scene.suite.Setting(L"Kept"), L"yes");
        }
}

TEST(Soak, faults) {
    std::set<std::string> called, never;
    for (const wchar_t* mode : {L"", L"/NDW"}) {
        Scene scene(mode);
        RunAll(scene);
        called.insert(scene.calls.begin(), scene.calls.end());
        never.insert(scene.functions.begin(), scene.functions.end());
    }
    RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, kRunOnce, L"Varnel_DNC_FTSW");
    SetEnvironmentVariableW(L"VWIZARD_FAIL", nullptr);
    std::erase_if(never, [&](const std::string& name) { return called.contains(name); });
    EXPECT_EQ(never, std::set<std::string>{}) << "these can fail and are not called";
}

} // namespace

// Each call to the system that a whole run of either wizard makes fails, once alone and once with all that
// follow it: the wizard goes on or ends, without a crash, and says only what it has to say.
#include "endurance/Scene.h"
#include "endurance/Soak.h"
#include "tools/driver/Walker.h"

#include "tests/support/DemoSuite.h"

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
        Copy(FromEnvironment(L"SOAK_FAULTY"), suite.Folder() + L"VWizard.exe");
        suite.AddIcons();
        AddSamples(suite, {L"Sample"});
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
            Ask(box, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(kCncFolder));
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

void RunAll(Tally& tally, Scene& scene) {
    SetEnvironmentVariableW(L"VWIZARD_FAIL_LOG", scene.Log().c_str());
    const Journey whole = Run(scene, L"0");
    tally.Expect(whole.trouble.empty() && whole.Passed(L"Finished"),
                 L"the undisturbed run: " + whole.Story());
    std::istringstream log(FileBytes(scene.Log()));
    for (std::string name; std::getline(log, name);)
        if (name.starts_with('?'))
            scene.functions.insert(name.substr(1));
        else
            scene.calls.push_back(name);
    SetEnvironmentVariableW(L"VWIZARD_FAIL_LOG", nullptr);
    const std::size_t step = tally.Quick() ? std::max<std::size_t>(1, scene.calls.size() / 3) : 1;
    for (std::size_t call = 1 + tally.Seed() % step; call <= scene.calls.size(); call += step)
        for (const wchar_t* after : {L"", L"+"}) {
            const std::string& name = scene.calls[call - 1];
            const std::wstring which = std::to_wstring(call) + after;
            const std::wstring what = FromUtf8(name) + L" (" + which + L" " + scene.arguments + L"): ";
            const Journey journey = Run(scene, which);
            tally.Expect(journey.trouble.empty(), what + journey.Story());
            const std::wstring file = scene.suite.Settings() + L"Walked.DCP";
            tally.Expect(!*scene.arguments || !journey.Passed(L"Finished") || FileBytes(file).size() == 5449,
                         what + L"the file is not whole");
            tally.Expect(scene.suite.Setting(L"Kept") == L"yes", what + L"a key was lost");
        }
}

} // namespace

void CheckFaults(Tally& tally) {
    std::set<std::string> kinds, missed;
    std::size_t points = 0;
    for (const wchar_t* mode : {L"", L"/NDW"}) {
        Scene scene(mode);
        RunAll(tally, scene);
        points += scene.calls.size();
        kinds.insert(scene.calls.begin(), scene.calls.end());
        missed.insert(scene.functions.begin(), scene.functions.end());
    }
    RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, kRunOnce, L"Varnel_DNC_FTSW");
    std::erase_if(missed, [&](const std::string& name) { return kinds.contains(name); });
    for (const std::string& name : missed)
        tally.Expect(false, FromUtf8(name) + L" was never called");
    SetEnvironmentVariableW(L"VWIZARD_FAIL", nullptr);
    tally.Note(std::to_string(points) + " points of " + std::to_string(kinds.size()) + " functions");
}

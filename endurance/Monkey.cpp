// Random events on each wizard, from within it (MonkeyInside.cpp). From outside it is watched: it has to
// answer within a second, to end properly, and to make no file but where it should.
// A seed gives the same events again: ./soak --seed N monkey
#include "endurance/Monkey.h"

#include "benchmark/Clock.h"
#include "endurance/Scene.h"
#include "endurance/Soak.h"
#include "tests/support/DemoSuite.h"
#include "tests/support/WizardDriver.h"

#include <algorithm>
#include <stdexcept>

namespace {

constexpr DWORD kHang_ms = 1000, kOpening_ms = 20000, kWait_ms = 20;

class Zoo {
  public:
    Zoo(std::uint32_t seed, const wchar_t* arguments, MonkeyNotes& notes)
        : arguments_(arguments), notes_(notes) {
        notes_ = {};
        notes_.seed = seed * 100000;
        ReplaceProgram(suite_, L"SOAK_MONKEY");
        suite_.AddIcons();
        AddSamples(suite_, {L"One", L"Two", L"Three"});
        tree_ = Tree(suite_.Folder());
    }
    ~Zoo() { CloseHandle(turnEnds_); }
    Zoo(const Zoo&) = delete;
    Zoo& operator=(const Zoo&) = delete;

    double Slowest() const { return slowest_; } // answer, in milliseconds

    // What was wrong, "" when nothing was.
    std::wstring Run(int events) {
        try {
            while (notes_.events < events && *notes_.trouble == L'\0') {
                RunOnce(events);
                ++notes_.seed;
            }
        } catch (const std::exception& error) {
            return FromUtf8(error.what());
        }
        return notes_.trouble;
    }

  private:
    void RunOnce(int events) {
        notes_.window = notes_.main = nullptr;
        const WizardDriver wizard(suite_, arguments_, WizardDriver::Wait::No);
        double last = Now();
        for (int done = notes_.events; wizard.IsRunning() && notes_.events < events;) {
            const bool opens = !notes_.window || Turn(wizard) == done;
            if (!opens) last = Now();
            if (Now() - last > kOpening_ms) Fail(std::wstring(L"nothing to do, waiting ") + notes_.waiting);
            if (opens) Sleep(1);
            done = notes_.events;
        }
        if (!wizard.IsRunning() && wizard.WaitForExit() != 0 && *notes_.trouble == L'\0')
            Fail(L"the exit code " + std::to_wstring(wizard.WaitForExit()));
        CheckFiles();
    }

    // The number of events afterwards.
    int Turn(const WizardDriver& wizard) {
        const double begin = Now();
        ResetEvent(turnEnds_); // by a wizard that has ended meanwhile
        PostMessageW(notes_.window, kMonkeyTurn, 0, 0);
        // Counted in waits, so that a machine that is busy elsewhere is not taken for a hang.
        DWORD waited_ms = 0;
        while (WaitForSingleObject(turnEnds_, kWait_ms) == WAIT_TIMEOUT && wizard.IsRunning())
            if ((waited_ms += kWait_ms) >= LongestWait_ms()) Fail(L"no answer within a second");
        slowest_ = std::max(slowest_, Now() - begin);
        return notes_.events;
    }

    // Before it opens and when it is about to end, it has nobody to answer; and the shell takes 0.3 s for its
    // folder dialog, or more on a busy machine.
    DWORD LongestWait_ms() const {
        const bool shellOpens = notes_.browses && !IsWindowEnabled(notes_.main);
        return IsWindow(notes_.main) && !shellOpens ? kHang_ms : kOpening_ms;
    }

    // Settings and configurations may change, and folders typed for CNC programs appear.
    void CheckFiles() const {
        for (std::wstring change : Changes(tree_, Tree(suite_.Folder()))) {
            if (change.starts_with(L"-")) change.erase(0, 1);
            if (change.starts_with(suite_.Settings()) || change.find(L".log|") != std::wstring::npos)
                continue;
            // Of the folder's own name at least this much was typed.
            change.erase(std::min(change.find_last_not_of(L'\\') + 1, change.size()));
            const std::wstring name = change.substr(change.rfind(L'\\') + 1);
            const bool isFile = name.find(L'|') != std::wstring::npos;
            if (isFile || std::wstring_view(notes_.locations).find(name) == std::wstring_view::npos)
                Fail(L"changed elsewhere: " + change);
        }
    }

    const wchar_t* const arguments_;
    MonkeyNotes& notes_;
    const HANDLE turnEnds_ = CreateEventW(nullptr, FALSE, FALSE, kMonkeyTurnEnds);
    DemoSuite suite_;
    std::set<std::wstring> tree_;
    double slowest_ = 0;
};

} // namespace

void CheckMonkey(Tally& tally) {
    const int seeds = tally.Of(10, 1);
    const int events = tally.Of(20000, 500);
    MonkeyNotes& notes = *OpenMonkeyNotes();
    int created = 0;
    double slowest = 0;
    for (int i = 0; i < seeds; ++i)
        for (const wchar_t* arguments : {L"", L"/NDW"}) {
            const std::uint32_t seed = tally.Seed() + static_cast<std::uint32_t>(i);
            Zoo zoo(seed, arguments, notes);
            std::wstring story = zoo.Run(events);
            slowest = std::max(slowest, zoo.Slowest());
            created += notes.created;
            const bool well = story.empty();
            std::wstring place = L"seed " + std::to_wstring(seed);
            place.append(L" ").append(arguments).append(L" event ").append(std::to_wstring(notes.events));
            story.insert(0, place.append(L" "));
            for (int act = std::max(notes.events - 8, 0); act < notes.events; ++act)
                story.append(L"\n        ").append(notes.acts[act % 8]);
            tally.Expect(well, story);
        }
    tally.Note(std::to_string(seeds) + " seeds x " + std::to_string(events) + " events on each wizard, " +
               std::to_string(created) + " configurations made, slowest answer " +
               std::to_string(static_cast<int>(slowest)) + " ms");
}

// Random clicks on each wizard. A page that comes back shows what it showed when it was left; every page has
// a focus and one default button; no click ends the program other than properly.
// A seed gives the same clicks again: ./soak --seed N monkey
#include "endurance/Soak.h"
#include "tools/driver/KnownMessages.h"

#include <algorithm>
#include <deque>
#include <map>
#include <optional>
#include <random>

namespace {

// Pages that begin anew each time, or after a Skip or a configuration that was made.
constexpr std::wstring_view kForget[] = {L"Choose setup mode", L"Getting Started",
                                         L"Import Sample CNC Configuration Files"};
constexpr std::wstring_view kStoredByNext[] = {L"Specify CNC file location", L"Configuration Name"};

constexpr UINT kSystemMessages[] = {WM_SETTINGCHANGE, WM_SYSCOLORCHANGE, WM_THEMECHANGED, WM_FONTCHANGE,
                                    WM_DISPLAYCHANGE, WM_TIMECHANGE,     WM_CANCELMODE,   WM_DEVICECHANGE};
constexpr const wchar_t* kTexts[] = {L"", L"a", L"M1", L"x7", L"Tap", L"(N"};
constexpr const wchar_t* kBadTexts[] = {L"CON",  L"..\\x",        L"a*b",      L"abc.",
                                        L"a\tz", L"\xD83D\xDE00", L"a\x2215z", L"<b>x</b>"};

bool IsLink(HWND button) { return (GetWindowLongW(button, GWL_STYLE) & BS_TYPEMASK) == BS_OWNERDRAW; }

bool IsPush(HWND button) {
    const LONG type = GetWindowLongW(button, GWL_STYLE) & BS_TYPEMASK;
    return type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON;
}

class Monkey {
  public:
    Monkey(std::uint32_t seed, const wchar_t* arguments) : arguments_(arguments), random_(seed) {
        suite_.AddIcons();
        suite_.AddSamples();
    }

    // What was wrong, with the last clicks; "" when nothing was.
    std::wstring Run(int clicks) {
        try {
            while (clicks_ < clicks)
                RunOnce(clicks);
            return {};
        } catch (const std::exception& error) {
            std::wstring story = FromUtf8(error.what()) + L"\n        on " + page_;
            for (const std::wstring& act : acts_)
                story += L"\n        " + act;
            return story;
        }
    }

  private:
    std::uint32_t Below(std::uint32_t count) { return static_cast<std::uint32_t>(random_()) % count; }
    template <class Table> const auto& OneOf(const Table& table) {
        return table[Below(static_cast<std::uint32_t>(std::size(table)))];
    }

    void Did(const std::wstring& what) {
        ++clicks_;
        acts_.push_back(what);
        if (acts_.size() > 8) acts_.pop_front();
    }

    void RunOnce(int clicks) {
        const WizardDriver wizard(suite_.CommandLine(arguments_), WizardDriver::Wait::No);
        Walker walker(wizard);
        remembered_.clear();
        page_.clear();
        while (clicks_ < clicks && walker.WaitUntilReady()) {
            if (const HWND modal = walker.Modal()) {
                AnswerAnyhow(walker, modal);
                continue;
            }
            Look(walker, wizard);
            Act(walker);
        }
        if (!wizard.IsRunning() && wizard.WaitForExit() != 0)
            Fail(L"the exit code " + std::to_wstring(wizard.WaitForExit()));
    }

    // Mostly not the end of the program.
    void AnswerAnyhow(const Walker& walker, HWND modal) {
        const HWND label = GetDlgItem(modal, 65535);
        const std::wstring text = label ? TextOf(label) : L"";
        const int answers[] = {IDOK, IDYES, IDNO, IDCANCEL};
        const int wanted = text.starts_with(L"W A R N I N G") && Below(16) ? IDNO : OneOf(answers);
        Did(L"answer " + std::to_wstring(wanted) + L" to " + text.substr(0, 30));
        if (label && !IsKnownMessage(text)) Fail(L"an unexpected message: " + text);
        walker.AnswerModal(modal, wanted);
    }

    // The inputs of a page as one text.
    std::wstring Inputs(HWND main) const {
        std::wstring inputs;
        for (HWND control : ControlsOf(main)) {
            const std::wstring kind = ClassOf(control);
            if (kind == L"Edit") inputs += L" \"" + TextOf(control) + L"\"";
            if (kind == L"ListBox" || kind == L"ComboBox")
                inputs += L" " + std::to_wstring(static_cast<int>(
                                     Ask(control, kind == L"ListBox" ? LB_GETCURSEL : CB_GETCURSEL)));
            if (kind == L"Button" && !IsLink(control) && !IsPush(control))
                inputs += Ask(control, BM_GETCHECK) ? L" x" : L" -";
        }
        return inputs;
    }

    void Look(const Walker& walker, const WizardDriver& wizard) {
        const std::wstring heading = walker.Heading(), inputs = Inputs(walker.Main());
        if (heading != page_) {
            if (!isTyped_ && !page_.empty()) remembered_[page_] = shown_;
            if (heading == L"Finished") remembered_.erase(L"Configuration Name");
            const auto before = remembered_.find(heading);
            const bool forgets = std::ranges::find(kForget, heading) != std::end(kForget);
            if (before != remembered_.end() && !forgets)
                Expect(
                    wizard, [&] { return Inputs(walker.Main()) == before->second; },
                    heading + L" as it was left, with" + before->second + L", not" + inputs);
            isTyped_ = false;
        }
        page_ = heading;
        shown_ = inputs;
        Expect(
            wizard, // of a window that is not in front the system tells no focus
            [&] { return GetForegroundWindow() != walker.Main() || IsChild(walker.Main(), wizard.Focus()); },
            L"something that has the focus");
        const auto isDefault = [](HWND button) {
            return (GetWindowLongW(button, GWL_STYLE) & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
        };
        Expect(
            wizard,
            [&] { return std::ranges::count_if(ControlsOf(walker.Main(), L"Button"), isDefault) == 1; },
            L"one default button");
    }

    // A wizard that is about to end shows all that no more: what does not hold at once may still come to.
    static void Expect(const WizardDriver& wizard, const std::function<bool()>& holds,
                       const std::wstring& what) {
        wizard.Until([&] { return !wizard.IsRunning() || holds(); }, what);
    }

    void Act(const Walker& walker) {
        std::vector<HWND> inputs, buttons;
        for (HWND control : ControlsOf(walker.Main())) {
            const std::wstring kind = ClassOf(control);
            const bool isButton = kind == L"Button" && IsWindowEnabled(control);
            if (isButton && (IsPush(control) || IsLink(control))) {
                // A link starts a program and Cancel asks a question: seldom, and never the other wizard.
                const bool isDue =
                    IsPush(control) ? TextOf(control) != L"Cancel" || Below(8) == 0
                                    : Below(200) == 0 && TextOf(control).find(L"izard") == std::wstring::npos;
                if (isDue) buttons.push_back(control);
            } else if (isButton || kind == L"Edit" || kind == L"ListBox" || kind == L"ComboBox") {
                inputs.push_back(control);
            }
        }
        if (buttons.empty()) return; // it is about to end
        const std::uint32_t choice = Below(16);
        if (choice == 0) return System(walker.Main());
        if (choice < 7 && !inputs.empty()) return Use(walker, OneOf(inputs));
        const HWND button = choice < 12 && walker.Next() ? walker.Next() : OneOf(buttons);
        Did(L"click " + TextOf(button));
        // What these pages show is stored only by Next, and only when it is taken.
        if (button != walker.Next() && std::ranges::find(kStoredByNext, page_) != std::end(kStoredByNext))
            isTyped_ = true, remembered_.erase(page_);
        walker.Press(button);
    }

    void System(HWND main) {
        const UINT message = OneOf(kSystemMessages);
        Did(L"message " + std::to_wstring(message));
        Ask(main, message);
    }

    void Use(const Walker& walker, HWND input) {
        const std::wstring kind = ClassOf(input);
        if (kind == L"Button") {
            Did(L"click " + TextOf(input));
            return walker.Press(input);
        }
        if (kind == L"Edit") return Type(input);
        const bool combo = kind == L"ComboBox";
        const auto count = static_cast<std::uint32_t>(Ask(input, combo ? CB_GETCOUNT : LB_GETCOUNT));
        const std::uint32_t item = Below(std::max(count, 1U));
        Did(L"choose " + std::to_wstring(item));
        if (!combo) Ask(input, LB_SETSEL, Below(2), static_cast<LPARAM>(item));
        Choose(input, static_cast<int>(item));
    }

    // One text in four may be one that is refused: what the page shows then is not what it stores.
    void Type(HWND box) {
        const bool bad = Below(4) == 0;
        const std::wstring text = bad ? OneOf(kBadTexts) : OneOf(kTexts);
        isTyped_ = isTyped_ || bad;
        if (bad) remembered_.erase(page_);
        Did((bad ? L"paste " : L"type ") + text);
        Ask(box, EM_SETSEL, 0, -1);
        Ask(box, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
    }

    const wchar_t* const arguments_;
    DemoSuite suite_;
    std::mt19937 random_;
    int clicks_ = 0;
    std::deque<std::wstring> acts_;                   // the last ones
    std::map<std::wstring, std::wstring> remembered_; // what each page showed when it was left
    std::wstring page_, shown_;                       // at the last look
    bool isTyped_ = false;                            // what the page shows need not be what it stores
};

TEST(Soak, monkey) {
    for (std::uint32_t seed = Seed(); seed < Seed() + static_cast<std::uint32_t>(Of(10, 1)); ++seed)
        for (const wchar_t* arguments : {L"", L"/NDW"})
            EXPECT_EQ(Utf8(Monkey(seed, arguments).Run(Of(5000, 400))), "") << "seed " << seed;
}

} // namespace

// Random events on a running wizard: keys, clicks, texts, moves, messages of the system. After each one it
// answers, has a focus and one default button, and shows what was answered before; what it creates holds
// the answers that its pages showed. A seed gives the same events again: ./soak --seed N monkey
#include "app/Text.h"
#include "endurance/BadText.h"
#include "endurance/Soak.h"
#include "endurance/Tree.h"
#include "endurance/Walker.h"
#include "ndw/NdwAnswers.h"
#include "ndw/modDcp.h"
#include "tests/support/DemoSuite.h"

#include <algorithm>
#include <deque>
#include <map>
#include <memory>
#include <stdexcept>

namespace {

constexpr UINT kHang_ms = 1000;
constexpr std::size_t kIconOffset = 114, kIconEnd = 178;

using Index = std::int16_t NdwAnswers::*;
using Text = std::wstring NdwAnswers::*;

// How a page's inputs, in their order, become answers.
struct Row {
    const wchar_t* heading;
    Index index; // the selected item or option, or the bits of the boxes; null: none
    Text text[2];
};

// clang-format off
const Row kRows[] = {
    {L"COM Port",               &NdwAnswers::portIndex,               {}},
    {L"Baud Rate",              &NdwAnswers::baudIndex,               {}},
    {L"Data Format",            &NdwAnswers::dataFormatIndex,         {}},
    {L"ASCII Character Format", &NdwAnswers::characterFormatIndex,    {}},
    {L"Flow Control",           &NdwAnswers::flowControlIndex,        {}},
    {L"End of Block",           &NdwAnswers::endOfBlockIndex,         {}},
    {L"Transmit Prefix",        &NdwAnswers::prefixChoice,            {}},
    {L"Transmit Suffix",        &NdwAnswers::suffixChoice,            {}},
    {L"Line Removal",           nullptr,                              {&NdwAnswers::removedLines, nullptr}},
    {L"Filter Options",         &NdwAnswers::filterOptions,           {}},
    {L"Transmit Trigger",       &NdwAnswers::transmitTriggerIndex,    {}},
    {L"Receive File Name",      &NdwAnswers::receiveNamingIndex,      {&NdwAnswers::receivePrefix, &NdwAnswers::receiveExtension}},
    {L"End of Reception",       &NdwAnswers::receiveTerminationIndex, {}},
    {L"Configuration Name",     nullptr,                              {&NdwAnswers::name, nullptr}},
};

constexpr UINT kSystemMessages[] = {
    WM_SETTINGCHANGE, WM_SYSCOLORCHANGE, WM_THEMECHANGED, WM_FONTCHANGE, WM_DISPLAYCHANGE, WM_TIMECHANGE,
    WM_QUERYENDSESSION, WM_ENDSESSION, WM_CLOSE, WM_CANCELMODE, WM_DEVICECHANGE,
};

constexpr WORD kKeys[] = {
    VK_TAB, VK_TAB, VK_TAB, VK_SPACE, VK_RETURN, VK_ESCAPE, VK_UP, VK_DOWN, VK_LEFT, VK_RIGHT, VK_HOME,
    VK_END, VK_PRIOR, VK_NEXT, VK_DELETE, VK_BACK, VK_F1, VK_F4, VK_F10, 'A', 'N', 'O', '1',
};
// clang-format on

// A visible control of the wizard's window.
struct Control {
    HWND window;
    std::wstring kind; // its class
    DWORD type;        // of a button
    bool IsInput() const {
        if (kind == L"Edit" || kind == L"ListBox" || kind == L"ComboBox") return true;
        return kind == L"Button" && type != BS_OWNERDRAW && type != BS_PUSHBUTTON && type != BS_DEFPUSHBUTTON;
    }
};

BOOL CALLBACK CollectAny(HWND window, LPARAM data) {
    reinterpret_cast<std::vector<HWND>*>(data)->push_back(window);
    return TRUE;
}

// What a page shows: for each input its state, selection or text.
using Shown = std::vector<std::pair<HWND, std::wstring>>;

class Monkey {
  public:
    Monkey(Tally& tally, std::uint32_t seed, const wchar_t* arguments)
        : tally_(tally), seed_(seed), arguments_(arguments), random_(seed) {
        suite_.AddIcons();
        CreateDirectoryW((suite_.Folder() + L"Samples").c_str(), nullptr);
        for (const wchar_t* name : {L"One", L"Two", L"Three"})
            WriteFileBytes(suite_.Folder() + L"Samples\\" + name + L".dcp", "sample");
        tree_ = Tree(suite_.Folder());
    }

    // True when all went well.
    bool Run(int events) {
        for (event_ = 1; event_ <= events; ++event_) {
            std::wstring trouble;
            try {
                trouble = Step();
                if (trouble.empty() && event_ % 500 == 0) trouble = FilesElsewhere();
            } catch (const std::exception& error) {
                trouble = FromUtf8(error.what());
            }
            if (trouble.empty()) continue;
            std::wstring story = L"seed " + std::to_wstring(seed_) + L" " + arguments_ + L" event " +
                                 std::to_wstring(event_) + L" on \"" + heading_ + L"\": " + trouble;
            for (const std::wstring& act : acts_)
                story.append(L"\n        ").append(act);
            return tally_.Expect(false, story);
        }
        return tally_.Expect(true, L"");
    }

    int Created() const { return created_; }

  private:
    static std::wstring FromUtf8(const std::string& text) { return {text.begin(), text.end()}; }

    std::uint32_t Below(std::uint32_t count) { return static_cast<std::uint32_t>(random_()) % count; }
    template <class Table> const auto& OneOf(const Table& table) {
        return table[Below(static_cast<std::uint32_t>(std::size(table)))];
    }
    void Did(const std::wstring& what) {
        acts_.push_back(what);
        if (acts_.size() > 8) acts_.pop_front();
    }

    void Start() {
        if (wizard_ && wizard_->WaitForExit() != 0) throw std::runtime_error("a bad exit code");
        wizard_ = std::make_unique<WizardDriver>(suite_, arguments_, WizardDriver::Wait::No);
        walker_ = std::make_unique<Walker>(*wizard_);
        kept_.clear();
        kinds_.clear();
        unknown_ = false;
        heading_.clear();
        Did(L"start");
    }

    std::wstring Step() {
        if (!wizard_ || !wizard_->IsRunning()) Start();
        if (!walker_->WaitUntilReady()) return {};
        if (HWND modal = walker_->Modal()) return AnswerAnyhow(modal);
        const std::wstring before = walker_->Heading();
        if (heading_.empty()) Look(); // a fresh start
        const Shown shown = WhatIsShown();
        DoSomething();
        DWORD_PTR result = 0;
        if (!SendMessageTimeoutW(walker_->Main(), WM_NULL, 0, 0, SMTO_NORMAL, kHang_ms, &result) &&
            IsWindow(walker_->Main()))
            return L"no answer within a second";
        if (!walker_->WaitUntilReady() || walker_->Modal()) {
            pending_ = {before, shown};
            return {};
        }
        return Arrived(before, shown);
    }

    // A box or another window: any of its buttons, now and then a key first.
    std::wstring AnswerAnyhow(HWND modal) {
        HWND label = GetDlgItem(modal, 65535);
        std::wstring text = label ? TextOf(label) : L"";
        for (int i = 0; label && text.empty() && i < 100; ++i, text = TextOf(label))
            Sleep(10); // it is just being made
        if (label && !IsKnownMessage(text)) return L"an unexpected message: " + text;
        std::vector<HWND> buttons;
        for (HWND child : ChildrenOf(modal))
            if (ClassOf(child) == L"Button" && IsWindowEnabled(child)) buttons.push_back(child);
        if (buttons.empty()) return L"a window without buttons: " + ClassOf(modal);
        // Mostly not the end of the program.
        HWND button =
            text.starts_with(L"W A R N I N G") && Below(8) ? GetDlgItem(modal, IDNO) : OneOf(buttons);
        Did(L"answer " + TextOf(button) + L" to " + text.substr(0, 30));
        if (!label) PostMessageW(modal, WM_KEYDOWN, OneOf(kKeys), 1);
        SendNotifyMessageW(button, BM_CLICK, 0, 0);
        if (label) wizard_->Until([modal] { return !IsWindow(modal) || !IsWindowVisible(modal); }, text);
        if (!walker_->WaitUntilReady() || walker_->Modal()) return {};
        return Arrived(pending_.first, pending_.second);
    }

    // Looks at the whole window once; asking for each control again and again would take most of the time.
    void Look() {
        std::vector<HWND> children;
        EnumChildWindows(walker_->Main(), CollectAny, reinterpret_cast<LPARAM>(&children));
        controls_.clear();
        for (HWND child : children) {
            const auto style = static_cast<DWORD>(GetWindowLongW(child, GWL_STYLE));
            if (!(style & WS_VISIBLE)) continue;
            std::wstring& kind = kinds_[child];
            if (kind.empty()) kind = ClassOf(child);
            controls_.push_back({child, kind, style & BS_TYPEMASK});
        }
    }

    Shown WhatIsShown() const {
        Shown shown;
        for (const Control& control : controls_) {
            if (!control.IsInput()) continue;
            const UINT question = control.kind == L"Button"    ? BM_GETCHECK
                                  : control.kind == L"ListBox" ? LB_GETCURSEL
                                                               : CB_GETCURSEL;
            shown.emplace_back(control.window,
                               control.kind == L"Edit"
                                   ? TextOf(control.window)
                                   : std::to_wstring(static_cast<int>(Ask(control.window, question))));
        }
        return shown;
    }

    void DoSomething() {
        HWND main = walker_->Main();
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        GetGUIThreadInfo(GetWindowThreadProcessId(main, nullptr), &info);
        HWND focus = info.hwndFocus ? info.hwndFocus : main;
        std::vector<HWND> inputs, buttons;
        for (const Control& control : controls_) {
            if (control.IsInput()) inputs.push_back(control.window);
            // A link starts a program: seldom, and never the other wizard.
            if (control.kind == L"Button" && (control.type != BS_OWNERDRAW || LinkIsDue(control.window)))
                buttons.push_back(control.window);
        }
        switch (const std::uint32_t choice = Below(20)) {
        case 0:
        case 1:
        case 2:
        case 3:
            return Key(focus);
        case 4: {
            const auto letter = static_cast<wchar_t>(L'a' + Below(26));
            Did(std::wstring(L"Alt+") + letter);
            PostMessageW(focus, WM_SYSCHAR, letter, 1 << 29);
            return;
        }
        case 5:
        case 6:
            return System(main);
        case 7:
        case 8:
        case 9:
        case 10:
        case 11:
            if (!inputs.empty()) return Use(OneOf(inputs));
            [[fallthrough]];
        case 12:
        case 13:
            if (!buttons.empty()) return Click(OneOf(buttons));
            [[fallthrough]];
        default:
            if (HWND button = choice < 18 ? walker_->Next() : walker_->Back()) Click(button);
        }
    }

    bool LinkIsDue(HWND link) { return Below(200) == 0 && TextOf(link).find(L"izard") == std::wstring::npos; }

    void Click(HWND button) {
        if (!IsWindowEnabled(button)) return;
        Did(L"click " + TextOf(button));
        SendNotifyMessageW(button, BM_CLICK, 0, 0);
    }

    void Key(HWND focus) {
        const WORD key = OneOf(kKeys);
        Did(L"key " + std::to_wstring(key));
        PostMessageW(focus, WM_KEYDOWN, key, 1);
        PostMessageW(focus, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    }

    void System(HWND main) {
        if (Below(8) == 0) return Dpi(main);
        const UINT message = OneOf(kSystemMessages);
        Did(L"message " + std::to_wstring(message));
        SendNotifyMessageW(main, message, 0, 0);
    }

    // The suggested rectangle lies in the wizard's own memory.
    void Dpi(HWND main) {
        constexpr UINT kDpiChanged = 0x2E0;
        const HANDLE process =
            OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_WRITE, FALSE, wizard_->ProcessId());
        if (!rectangle_ || rectangleOf_ != wizard_->ProcessId())
            rectangle_ = VirtualAllocEx(process, nullptr, sizeof(RECT), MEM_COMMIT, PAGE_READWRITE);
        rectangleOf_ = wizard_->ProcessId();
        RECT window{};
        GetWindowRect(main, &window);
        WriteProcessMemory(process, rectangle_, &window, sizeof window, nullptr);
        CloseHandle(process);
        const WORD dpi = static_cast<WORD>(96 + 24 * Below(4));
        Did(L"resolution " + std::to_wstring(dpi));
        SendNotifyMessageW(main, kDpiChanged, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(rectangle_));
    }

    void Use(HWND input) {
        const std::wstring kind = ClassOf(input);
        const auto notify = [&](WORD code) {
            Ask(walker_->Main(), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(input), code),
                reinterpret_cast<LPARAM>(input));
        };
        if (kind == L"Button") return Click(input);
        Did(L"use " + kind);
        if (kind == L"ComboBox") {
            Ask(input, CB_SETCURSEL, Below(static_cast<std::uint32_t>(Ask(input, CB_GETCOUNT))));
            notify(CBN_SELCHANGE);
        } else if (kind == L"ListBox") {
            const auto item = Below(static_cast<std::uint32_t>(Ask(input, LB_GETCOUNT)));
            Ask(input, LB_SETCURSEL, item);
            Ask(input, LB_SETSEL, Below(2), static_cast<LPARAM>(item));
            notify(LBN_SELCHANGE);
        } else if (Below(3) == 0) {
            Ask(input, WM_CHAR, OneOf(OneOf(BadTexts()).text + L"x"));
        } else if (Below(2) == 0) {
            const std::wstring text = L"M" + std::to_wstring(Below(1000000));
            Ask(input, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
        } else { // as pasted: up to the limit and beyond
            Ask(input, EM_SETSEL, Below(3), static_cast<LPARAM>(Below(20)));
            Ask(input, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(OneOf(BadTexts()).text.c_str()));
        }
    }

    // The page after an event that began on `before`, which showed `shown` then.
    std::wstring Arrived(const std::wstring& before, const Shown& shown) {
        // A box that goes and a program that ends need a moment.
        std::wstring problem;
        for (int i = 0; i < 100; ++i, Sleep(10)) {
            if (!wizard_->IsRunning() || !IsWindow(walker_->Main())) return {};
            heading_ = walker_->Heading();
            Look();
            problem = FormProblem();
            if (problem.empty()) break;
        }
        if (!problem.empty()) return problem;
        if (heading_ == before || before.empty()) return {};
        if (before == L"Configuration Name" && heading_ == L"Finished") return Created(shown);
        Keep(before, shown);
        const auto kept = kept_.find(heading_);
        if (kept == kept_.end()) return {};
        const Shown now = WhatIsShown();
        if (now.size() != kept->second.size()) return L"another number of inputs than before";
        for (std::size_t i = 0; i < now.size(); ++i)
            if (now[i].second != kept->second[i].second)
                return L"shows \"" + now[i].second + L"\" where \"" + kept->second[i].second +
                       L"\" was answered";
        return {};
    }

    std::wstring FormProblem() const {
        HWND main = walker_->Main();
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        GetGUIThreadInfo(GetWindowThreadProcessId(main, nullptr), &info);
        if (!info.hwndFocus || !IsChild(main, info.hwndFocus)) return L"nothing has the focus";
        int defaults = 0;
        for (const Control& control : controls_)
            defaults += control.kind == L"Button" && control.type == BS_DEFPUSHBUTTON;
        return defaults == 1 ? L"" : std::to_wstring(defaults) + L" default buttons";
    }

    // What the pages of the New Device Wizard stored when they were left; texts that cannot be stored leave
    // the answer as it was, which is not followed here.
    void Keep(const std::wstring& heading, Shown shown) {
        const Row* row = RowOf(heading);
        if (!row) return;
        for (auto& [control, value] : shown) {
            if (ClassOf(control) != L"Edit") continue;
            const bool plain = std::all_of(value.begin(), value.end(),
                                           [](wchar_t c) { return std::iswalnum(c) && c < 128; });
            if (plain && (row->text[1] == nullptr || value.size() <= 10)) continue;
            kept_.erase(heading);
            unknown_ = true;
            return;
        }
        if (heading == L"Receive File Name" && shown.size() > 2 && shown[2].second.size() > 3) {
            kept_.erase(heading);
            unknown_ = true;
            return;
        }
        kept_[heading] = shown;
    }

    static const Row* RowOf(const std::wstring& heading) {
        for (const Row& row : kRows)
            if (heading == row.heading) return &row;
        return nullptr;
    }

    NdwAnswers Answers() const {
        NdwAnswers answers;
        for (const auto& [heading, shown] : kept_) {
            const Row& row = *RowOf(heading);
            std::size_t text = 0;
            int position = 0;
            bool first = true;
            const bool bits = row.index == &NdwAnswers::prefixChoice ||
                              row.index == &NdwAnswers::suffixChoice ||
                              row.index == &NdwAnswers::filterOptions;
            int value = 0;
            for (const auto& [control, state] : shown) {
                const std::wstring kind = ClassOf(control);
                if (kind == L"Edit")
                    answers.*row.text[text++] = state;
                else if (kind != L"Button")
                    value = std::max(0, std::stoi(state));
                else if (state == L"1" && (bits || first)) {
                    value = bits ? value | 1 << position : position;
                    first = false;
                }
                position += kind == L"Button";
            }
            if (row.index) answers.*row.index = static_cast<std::int16_t>(value);
        }
        return answers;
    }

    // The file that has just been made, byte for byte but for the icon.
    std::wstring Created(const Shown& shown) {
        ++created_;
        kept_.erase(L"Configuration Name");
        const std::wstring& typed = shown.at(0).second;
        const std::size_t from = typed.find_first_not_of(L' ');
        const std::wstring name = typed.substr(from, typed.find_last_not_of(L' ') - from + 1);
        std::string bytes = FileBytes(suite_.Settings() + name + L".DCP");
        DcpRecords records;
        SetDcpHeaderDefaults(records.header);
        SetDcpRecord4Defaults(records.record4);
        FillDcpRecords(records, Answers(), L"");
        PrepareForWriting(records);
        const auto expected = DcpBytes(records, ToAnsiByte);
        if (bytes.size() != expected.size())
            return L"the file has " + std::to_wstring(bytes.size()) + L" bytes";
        for (std::size_t i = 0; i < bytes.size() && !unknown_; ++i)
            if ((i < kIconOffset || i >= kIconEnd) && static_cast<unsigned char>(bytes[i]) != expected[i])
                return L"the file differs from the answers at " + std::to_wstring(i);
        return {};
    }

    std::wstring FilesElsewhere() const {
        for (const std::wstring& change : Changes(tree_, Tree(suite_.Folder())))
            if (!change.starts_with(suite_.Settings()) && change.find(L".log|") == std::wstring::npos)
                return L"changed elsewhere: " + change;
        return {};
    }

    Tally& tally_;
    const std::uint32_t seed_;
    const wchar_t* const arguments_;
    std::mt19937 random_;
    DemoSuite suite_;
    std::set<std::wstring> tree_;
    std::unique_ptr<WizardDriver> wizard_;
    std::unique_ptr<Walker> walker_;
    std::map<std::wstring, Shown> kept_;
    std::pair<std::wstring, Shown> pending_; // where an event began that opened a window
    bool unknown_ = false;                   // an answer is not followed any more
    std::wstring heading_;
    std::deque<std::wstring> acts_;
    std::vector<Control> controls_;
    std::map<HWND, std::wstring> kinds_;
    void* rectangle_ = nullptr;
    DWORD rectangleOf_ = 0;
    int event_ = 0;
    int created_ = 0;
};

} // namespace

void CheckMonkey(Tally& tally) {
    const int seeds = tally.Of(10, 1);
    const int events = tally.Of(20000, 250);
    int created = 0;
    for (int i = 0; i < seeds; ++i)
        for (const wchar_t* arguments : {L"", L"/NDW"}) {
            Monkey monkey(tally, tally.Seed() + static_cast<std::uint32_t>(i), arguments);
            monkey.Run(events);
            created += monkey.Created();
        }
    tally.Note(std::to_string(seeds) + " seeds x " + std::to_string(events) + " events on each wizard, " +
               std::to_string(created) + " configurations made");
}

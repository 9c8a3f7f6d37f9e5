// Linked in front of the wizard's own objects: a random user in the window thread. At each turn it looks at
// what the last event has led to, and posts another one. Being inside, it reads every control for next to
// nothing, and knows the answers that the pages have stored.
#include "endurance/BadText.h"
#include "endurance/KnownMessages.h"
#include "endurance/Monkey.h"
#include "endurance/MonkeyAnswers.h"
#include "ftw/FtwPages.h"
#include "tests/support/Windows.h"

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace {

// clang-format off
constexpr UINT kCaretTimer = 0x118, kDpiChanged = 0x2E0;
constexpr UINT kSystemMessages[] = {
    WM_SETTINGCHANGE, WM_SYSCOLORCHANGE, WM_THEMECHANGED, WM_FONTCHANGE, WM_DISPLAYCHANGE, WM_TIMECHANGE,
    WM_QUERYENDSESSION, WM_ENDSESSION, WM_CLOSE, WM_CANCELMODE, WM_DEVICECHANGE, kDpiChanged,
};
constexpr WORD kKeys[] = {
    VK_TAB, VK_TAB, VK_TAB, VK_SPACE, VK_RETURN, VK_ESCAPE, VK_UP, VK_DOWN, VK_LEFT, VK_RIGHT, VK_HOME,
    VK_END, VK_PRIOR, VK_NEXT, VK_DELETE, VK_BACK, VK_F1, VK_F4, VK_F10, 'A', 'N', 'O', '1',
};
// clang-format on

constexpr int kNextId = 100, kBackId = 101, kHeadingId = 120, kBoxTextId = 65535;

struct Control {
    HWND window;
    int id;
    std::wstring kind; // its class
    DWORD type;        // of a button

    bool IsButton() const { return kind == L"Button"; }
    bool IsInput() const {
        return IsButton() ? type != BS_OWNERDRAW && type != BS_PUSHBUTTON && type != BS_DEFPUSHBUTTON
                          : kind == L"Edit" || kind == L"ListBox" || kind == L"ComboBox";
    }
};

BOOL CALLBACK Collect(HWND window, LPARAM windows) {
    reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
    return TRUE;
}

std::vector<HWND> WindowsOfThread() {
    std::vector<HWND> windows;
    EnumThreadWindows(GetCurrentThreadId(), Collect, reinterpret_cast<LPARAM>(&windows));
    std::erase_if(windows, [](HWND window) { return !IsWindowVisible(window); });
    return windows;
}

// Shown or not; the buttons' types are still to be read.
std::vector<Control> AllControlsOf(HWND window) {
    std::vector<HWND> children;
    EnumChildWindows(window, Collect, reinterpret_cast<LPARAM>(&children));
    std::vector<Control> controls;
    for (HWND child : children)
        controls.push_back({child, GetDlgCtrlID(child), ClassOf(child), 0});
    return controls;
}

class Monkey {
  public:
    Monkey() : notes_(*OpenMonkeyNotes()), turnEnds_(CreateEventW(nullptr, FALSE, FALSE, kMonkeyTurnEnds)) {
        random_.seed(notes_.seed);
        HWND window =
            CreateWindowExW(0, L"Static", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure));
        notes_.window = window;
    }

    // The turn comes when all that the last one posted is through, what came of that included.
    void Turn() {
        MSG next{};
        const bool waits = PeekMessageW(&next, nullptr, 0, 0, PM_NOREMOVE | PM_QS_POSTMESSAGE) &&
                           next.message != WM_TIMER && next.message != kCaretTimer;
        if (waits && next.message == kMonkeyTurn) return; // one is enough
        if (waits && next.message != WM_QUIT)
            return static_cast<void>(PostMessageW(notes_.window, kMonkeyTurn, 0, 0));
        if (!waits) LookAndAct();
        SetEvent(turnEnds_);
    }

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    std::uint32_t Below(std::uint32_t count) { return static_cast<std::uint32_t>(random_()) % count; }
    template <class Table> const auto& OneOf(const Table& table) {
        return table[Below(static_cast<std::uint32_t>(std::size(table)))];
    }

    void Did(const std::wstring& what) {
        wchar_t(&row)[64] = notes_.acts[notes_.events++ % 8];
        row[what.copy(row, 63)] = L'\0';
    }
    [[noreturn]] void Fail(const std::wstring& what) {
        const std::wstring where = L"on \"" + page_.heading + L"\": " + what;
        notes_.trouble[where.copy(notes_.trouble, 511)] = L'\0';
        TerminateProcess(GetCurrentProcess(), 98);
        std::abort();
    }

    void LookAndAct() {
        if (!main_) {
            for (HWND window : WindowsOfThread())
                if (ClassOf(window) == L"VWizardForm") notes_.main = main_ = window;
            return;
        }
        if (IsInMenu()) {
            Did(L"leave the menu"); // as a click elsewhere would first of all
            PostMessageW(main_, WM_KEYDOWN, VK_ESCAPE, 1);
            return;
        }
        if (IsWindowEnabled(main_)) {
            Look();
            if (!Of(IDCANCEL)) return all_.clear(); // still being opened
            CheckForm();
            CheckAnswers();
            return Act();
        }
        std::wstring waiting = L"for a window in front";
        for (HWND window : WindowsOfThread()) {
            waiting.append(L", ").append(ClassOf(window)).append(L" ").append(TextOf(window));
            if (window != main_ && IsWindowEnabled(window)) return AnswerAnyhow(window);
        }
        notes_.waiting[waiting.copy(notes_.waiting, 511)] = L'\0';
    }

    static bool IsInMenu() {
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        return GetGUIThreadInfo(GetCurrentThreadId(), &info) && (info.flags & GUI_INMENUMODE);
    }

    // Listing the windows costs as much as all the rest; new ones come with a page.
    void Look() {
        if (all_.empty() || TextOf(Of(kHeadingId)) != page_.heading) all_ = AllControlsOf(main_);
        controls_.clear();
        for (Control control : all_) {
            const auto style = static_cast<DWORD>(GetWindowLongW(control.window, GWL_STYLE));
            control.type = style & BS_TYPEMASK;
            if (style & WS_VISIBLE) controls_.push_back(control);
        }
    }

    // The visible control of that number, or null.
    HWND Of(int id) const {
        for (const Control& control : controls_)
            if (control.id == id) return control.window;
        return nullptr;
    }

    // A box or another window in front: any of its buttons, in a window a key before it.
    void AnswerAnyhow(HWND modal) {
        HWND label = GetDlgItem(modal, kBoxTextId);
        const std::wstring text = label ? TextOf(label) : L"";
        const bool ofSystem = TextOf(modal).find(L"Wine") != std::wstring::npos; // from the window's menu
        if (label && !ofSystem && !IsKnownMessage(text)) Fail(L"an unexpected message: " + text);
        std::vector<HWND> buttons;
        for (const Control& control : AllControlsOf(modal))
            if (control.IsButton() && IsWindowVisible(control.window) && IsWindowEnabled(control.window))
                buttons.push_back(control.window);
        notes_.waiting[TextOf(modal).copy(notes_.waiting, 511)] = L'\0';
        if (buttons.empty()) return; // still being opened
        // Mostly not the end of the program.
        const bool stays = text.starts_with(L"W A R N I N G") && Below(16) != 0;
        HWND button = stays ? GetDlgItem(modal, IDNO) : OneOf(buttons);
        Did(L"answer " + TextOf(button) + L" to " + text.substr(0, 30));
        if (!label) PostMessageW(GetFocus(), WM_KEYDOWN, OneOf(kKeys), 1);
        PostMessageW(button, BM_CLICK, 0, 0);
    }

    void CheckForm() {
        if (HWND focus = GetFocus(); !focus || !IsChild(main_, focus)) Fail(L"nothing has the focus");
        const auto defaults = std::count_if(controls_.begin(), controls_.end(), [](const Control& control) {
            return control.IsButton() && control.type == BS_DEFPUSHBUTTON;
        });
        if (defaults != 1) Fail(std::to_wstring(defaults) + L" default buttons");
    }

    Shown WhatIsShown() const {
        Shown shown{TextOf(Of(kHeadingId)), {}};
        for (const Control& control : controls_) {
            if (!control.IsInput()) continue;
            if (control.kind == L"Edit") {
                shown.texts.push_back(TextOf(control.window));
            } else if (!control.IsButton()) {
                const UINT question = control.kind == L"ListBox" ? LB_GETCURSEL : CB_GETCURSEL;
                shown.index = static_cast<int>(SendMessageW(control.window, question, 0, 0));
            } else {
                const int place = shown.places++;
                if (SendMessageW(control.window, BM_GETCHECK, 0, 0) != BST_CHECKED) continue;
                shown.set |= 1 << place;
                if (shown.option < 0) shown.option = place;
            }
        }
        return shown;
    }

    // A page that was left has stored what it showed, a page that opens shows what is stored.
    void CheckAnswers() {
        Shown now = WhatIsShown();
        if (now.heading != page_.heading) {
            std::wstring wrong = WrongAnswer(page_, now);
            if (MadeConfiguration(page_, now)) {
                ++notes_.created;
                if (wrong.empty()) wrong = WrongFile(page_.texts.at(0));
            }
            if (!wrong.empty()) Fail(wrong);
            if (now.heading == L"Confirm CNC file location") NoteLocation();
        }
        page_ = std::move(now);
        notes_.browses = page_.heading == kLocationPage;
    }

    void NoteLocation() {
        const std::wstring& folders = ftwSession.location.folders;
        const std::size_t end = wcslen(notes_.locations);
        if (end + folders.size() + 2 > std::size(notes_.locations)) return;
        notes_.locations[end + (folders + L";").copy(notes_.locations + end, folders.size() + 1)] = L'\0';
    }

    void Act() {
        std::vector<Control> inputs, buttons;
        for (const Control& control : controls_) {
            if (control.IsInput()) inputs.push_back(control);
            if (control.IsButton() && IsDue(control)) buttons.push_back(control);
        }
        const std::uint32_t choice = Below(32);
        if (choice < 8) return Key(GetFocus());
        if (choice < 11) return AccessKey(GetFocus());
        if (choice < 14) return System();
        if (choice < 21 && !inputs.empty()) return Use(OneOf(inputs));
        if (choice < 24) return Click(OneOf(buttons).window);
        HWND back = Of(kBackId);
        HWND next = Of(kNextId);
        const bool stays = choice > 29 || (page_.heading == kLastPage && Below(4) != 0);
        Click(back && stays ? back : next ? next : Of(IDCANCEL));
    }

    // A link starts a program and Cancel asks a question: seldom, and never the other wizard.
    bool IsDue(const Control& button) {
        if (button.id == IDCANCEL) return Below(8) == 0;
        const bool link = button.type == BS_OWNERDRAW;
        return !link || (Below(200) == 0 && TextOf(button.window).find(L"izard") == std::wstring::npos);
    }

    void Click(HWND button) {
        Did(L"click " + TextOf(button));
        if (IsWindowEnabled(button)) PostMessageW(button, BM_CLICK, 0, 0);
    }

    void Key(HWND window) {
        const WORD key = OneOf(kKeys);
        Did(L"key " + std::to_wstring(key));
        PostMessageW(window, WM_KEYDOWN, key, 1);
        PostMessageW(window, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    }

    void AccessKey(HWND window) {
        const auto letter = static_cast<wchar_t>(L'a' + Below(26));
        Did(std::wstring(L"Alt+") + letter);
        PostMessageW(window, WM_SYSCHAR, letter, 1 << 29);
    }

    void System() {
        static RECT suggested;
        GetWindowRect(main_, &suggested);
        const UINT message = OneOf(kSystemMessages);
        const WORD dpi = static_cast<WORD>(96 + 24 * Below(4));
        const bool dpiChanges = message == kDpiChanged;
        Did(L"message " + std::to_wstring(message) + L" " + std::to_wstring(dpi));
        PostMessageW(main_, message, dpiChanges ? MAKEWPARAM(dpi, dpi) : dpi == 96,
                     dpiChanges ? reinterpret_cast<LPARAM>(&suggested) : 0);
    }

    void Use(const Control& input) {
        const bool combo = input.kind == L"ComboBox";
        if (input.IsButton()) return Click(input.window);
        if (input.kind == L"Edit") return Type(input.window);
        const auto count =
            static_cast<std::uint32_t>(SendMessageW(input.window, combo ? CB_GETCOUNT : LB_GETCOUNT, 0, 0));
        const std::uint32_t item = Below(std::max(count, 1U));
        Did(L"choose " + std::to_wstring(item));
        SendMessageW(input.window, combo ? CB_SETCURSEL : LB_SETCURSEL, item, 0);
        if (!combo) SendMessageW(input.window, LB_SETSEL, Below(2), static_cast<LPARAM>(item));
        static_assert(CBN_SELCHANGE == LBN_SELCHANGE);
        SendMessageW(main_, WM_COMMAND, MAKEWPARAM(input.id, CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(input.window));
    }

    void Type(HWND box) {
        const std::wstring& bad = OneOf(BadTexts()).text;
        const std::uint32_t choice = Below(3);
        const std::wstring text = choice == 0   ? std::wstring(1, OneOf(bad + L"x"))
                                  : choice == 1 ? L"M" + std::to_wstring(Below(1000000))
                                                : bad;
        Did((choice == 2 ? L"paste " : L"type ") + text);
        if (choice == 0) PostMessageW(box, WM_CHAR, text[0], 1);
        if (choice == 1) SetWindowTextW(box, text.c_str());
        if (choice < 2) return;
        SendMessageW(box, EM_SETSEL, Below(3), static_cast<LPARAM>(Below(20)));
        SendMessageW(box, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
    }

    MonkeyNotes& notes_;
    const HANDLE turnEnds_;
    std::mt19937 random_;
    HWND main_ = nullptr;
    std::vector<Control> all_, controls_; // of these the visible ones
    Shown page_;                          // as it was at the last turn
};

Monkey monkey;

LRESULT CALLBACK Monkey::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != kMonkeyTurn) return DefWindowProcW(window, message, wParam, lParam);
    monkey.Turn();
    return 0;
}

} // namespace

#include "tools/driver/WizardDriver.h"

#include "tools/driver/Windows.h"
#include "tools/driver/Words.h"

namespace {

// Ids that the program gives its controls: nothing else tells the heading from the other labels.
constexpr int kHeadingId = 120;
constexpr int kBoxText = 65535; // the id of a message box's text

void Notify(HWND control, WORD code) {
    const auto id = static_cast<WORD>(GetDlgCtrlID(control));
    Ask(GetParent(control), WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(control));
}

} // namespace

// Character by character: the box takes what a person could type and no more.
void TypeOver(HWND box, const std::wstring& text) {
    Ask(box, EM_SETSEL, 0, -1);
    Ask(box, WM_CLEAR);
    for (const wchar_t c : text)
        Ask(box, WM_CHAR, c);
}

void Choose(HWND list, int item) {
    const bool isCombo = ClassOf(list) == L"ComboBox";
    Ask(list, isCombo ? CB_SETCURSEL : LB_SETCURSEL, static_cast<WPARAM>(item));
    Notify(list, LBN_SELCHANGE); // the same number for both
}

WizardDriver::WizardDriver(const std::wstring& commandLine, Wait wait) : RunningProgram(commandLine) {
    if (wait == Wait::Yes) WaitForOpening();
}

// The frame is there before its first page, with a text of its own; Cancel or Close comes with that page.
void WizardDriver::WaitForOpening() {
    Until([this] { return (window_ = FindWindowOf(L"VWizardForm", L"")) != nullptr; },
          L"the wizard's window");
    Until([this] { return PageText() != L"Initializing..." && (Button(L"Cancel") || Button(L"&Close")); },
          L"the first page");
}

std::wstring WizardDriver::Heading() const { return TextOf(GetDlgItem(window_, kHeadingId)); }

void WizardDriver::WaitForPage(const std::wstring& heading) const {
    Until([&] { return IsWindowEnabled(window_) && Heading() == heading; }, L"the page " + heading);
    Ask(window_, WM_NULL); // answered when the page is complete
}

std::wstring WizardDriver::PageText() const {
    for (HWND control : ControlsOf(window_))
        if (ClassOf(control).starts_with(L"RichEdit")) return TextOf(control);
    return {};
}

void WizardDriver::Next(const std::wstring& heading) const {
    Move(Button(L"&Create") ? L"&Create" : L"&Next >", heading);
}

void WizardDriver::Move(const std::wstring& button, const std::wstring& heading) const {
    Press(button);
    WaitForPage(heading);
}

void WizardDriver::MoveTo(const std::wstring& button, const std::wstring& heading) const {
    for (std::wstring before = Heading(); before != heading; before = Heading()) {
        Press(button);
        Until([&] { return Heading() != before; }, L"a page after " + before);
        WaitForPage(Heading());
    }
}

bool WizardDriver::IsChecked(const std::wstring& caption) const {
    const HWND button = Button(caption);
    if (!button) Fail(L"not on the page: " + caption);
    return Ask(button, BM_GETCHECK) == BST_CHECKED;
}

void WizardDriver::Check(const std::wstring& caption, bool on) const {
    if (IsChecked(caption) != on) Press(caption);
    Until([&] { return IsChecked(caption) == on; }, L"a change of " + caption);
}

// A click goes through the message queue, so that a modal window that it opens does not hold up the test.
void WizardDriver::Press(const std::wstring& caption) const {
    Until([&] { return IsWindowEnabled(window_) && IsWindowEnabled(Button(caption)); },
          L"a button " + caption);
    PostMessageW(Button(caption), BM_CLICK, 0, 0);
}

HWND WizardDriver::Find(const std::wstring& className, const std::wstring& text) const {
    return FindControl(window_, className.c_str(), text);
}

HWND WizardDriver::Input(const std::wstring& className, const std::wstring& prompt) const {
    HWND found = nullptr;
    const auto look = [&] {
        bool behind = prompt.empty();
        for (HWND control : ControlsOf(window_)) {
            if (behind && ClassOf(control) == className) return (found = control) != nullptr;
            behind = behind || TextOf(control) == prompt;
        }
        return false;
    };
    Until(look, className + L" behind " + prompt);
    return found;
}

// Another process's focus belongs to its thread; GetFocus knows only the caller's.
HWND WizardDriver::Focus() const {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(window_, nullptr), &info);
    return info.hwndFocus;
}

std::wstring WizardDriver::AnswerBox(int button) const {
    HWND box = nullptr;
    Until([&] { return (box = FindWindowOf(L"#32770", L"", button)) != nullptr; },
          L"a message box with button " + std::to_wstring(button));
    const HWND label = GetDlgItem(box, kBoxText);
    std::wstring text = TextOf(box) + L"\r\n" + (label ? TextOf(label) : L"");
    PostMessageW(GetDlgItem(box, button), BM_CLICK, 0, 0);
    // The next step must not find this box again.
    Until([box] { return !IsWindow(box) || !IsWindowVisible(box); }, L"the message box to go: " + text);
    return text;
}

void WizardDriver::GoTo(const std::wstring& title) {
    HWND found = nullptr;
    Until([&] { return (found = FindWindowOf(L"", title)) != nullptr; }, L"a window " + title);
    window_ = found;
}

void WizardDriver::Close() const {
    PostMessageW(window_, WM_CLOSE, 0, 0);
    const auto isOver = [this] {
        if (const HWND box = FindWindowOf(L"#32770", L"", IDYES))
            PostMessageW(GetDlgItem(box, IDYES), BM_CLICK, 0, 0);
        return !IsRunning();
    };
    Until(isOver, L"the end of the wizard");
}

#include "tests/support/WizardDriver.h"

#include "tests/support/DemoSuite.h"

#include <stdexcept>

namespace {

constexpr DWORD kPatience = 20000; // milliseconds for one step
constexpr UINT kAnswerTime = 10000;
constexpr int kBoxText = 65535; // the id of a message box's text

// false when the window has gone; a window that hangs is a failure.
bool TryToAsk(HWND window, UINT message, WPARAM wParam, LPARAM lParam, DWORD_PTR& result) {
    if (SendMessageTimeoutW(window, message, wParam, lParam, SMTO_ABORTIFHUNG, kAnswerTime, &result))
        return true;
    if (!IsWindow(window)) return false;
    throw std::runtime_error("a control did not answer message " + std::to_string(message));
}

DWORD_PTR Ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    DWORD_PTR result = 0;
    if (!TryToAsk(window, message, wParam, lParam, result))
        throw std::runtime_error("a control has gone before message " + std::to_string(message));
    return result;
}

std::wstring ClassOf(HWND window) {
    std::wstring name(256, L'\0');
    name.resize(static_cast<std::size_t>(GetClassNameW(window, name.data(), 256)));
    return name;
}

// "" for a window that has gone meanwhile.
std::wstring TextOf(HWND window) {
    DWORD_PTR length = 0, copied = 0;
    if (!TryToAsk(window, WM_GETTEXTLENGTH, 0, 0, length)) return {};
    std::wstring text(length + 1, L'\0');
    if (!TryToAsk(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()), copied)) return {};
    text.resize(copied);
    return text;
}

BOOL CALLBACK Collect(HWND window, LPARAM data) {
    if (IsWindowVisible(window)) reinterpret_cast<std::vector<HWND>*>(data)->push_back(window);
    return TRUE;
}

// Visible controls in tab order.
std::vector<HWND> ControlsOf(HWND window) {
    std::vector<HWND> controls;
    EnumChildWindows(window, Collect, reinterpret_cast<LPARAM>(&controls));
    return controls;
}

// Visible top-level windows of one process: other tests may run in the same prefix.
std::vector<HWND> WindowsOf(DWORD processId) {
    std::vector<HWND> windows;
    EnumWindows(Collect, reinterpret_cast<LPARAM>(&windows));
    std::erase_if(windows, [processId](HWND window) {
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        return owner != processId;
    });
    return windows;
}

HWND FindButton(HWND window, const wchar_t* caption) {
    for (HWND control : ControlsOf(window))
        if (ClassOf(control) == L"Button" && TextOf(control) == caption) return control;
    return nullptr;
}

bool IsChecked(HWND button) { return Ask(button, BM_GETCHECK) == BST_CHECKED; }

// A click goes through the message queue, so that a modal window that it opens does not hold up the test.
void Press(HWND button) { PostMessageW(button, BM_CLICK, 0, 0); }

void Notify(HWND control, WORD code) {
    const auto id = static_cast<WORD>(GetDlgCtrlID(control));
    Ask(GetParent(control), WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(control));
}

} // namespace

WizardDriver::WizardDriver(const DemoSuite& suite, const wchar_t* arguments, Wait wait) {
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    std::wstring line = suite.Quoted(L"VWizard.exe") + L" " + arguments;
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &process_))
        throw std::runtime_error("cannot start " + Utf8(line));
    if (wait == Wait::Yes) WaitForOpening();
}

void WizardDriver::WaitForOpening() {
    Until(
        [this] {
            for (HWND window : WindowsOf(ProcessId()))
                if (ClassOf(window).starts_with(L"VWizard")) window_ = window;
            return window_ != nullptr && PageText() != L"Initializing..." &&
                   (Has(L"Cancel") || Has(L"&Close"));
        },
        L"the wizard's window");
}

WizardDriver::~WizardDriver() {
    if (IsRunning()) {
        TerminateProcess(process_.hProcess, 99);
        WaitForSingleObject(process_.hProcess, kPatience);
    }
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
}

void WizardDriver::Until(const std::function<bool()>& condition, const std::wstring& wanted) const {
    const DWORD start = GetTickCount();
    while (!condition()) {
        if (GetTickCount() - start > kPatience)
            throw std::runtime_error(Utf8(L"waited in vain for: " + wanted + L"\n" + Describe()));
        Sleep(2);
    }
}

std::wstring WizardDriver::Describe() const {
    if (!IsRunning()) return L"the wizard has ended\n";
    std::wstring text;
    for (HWND window : WindowsOf(ProcessId())) {
        text += ClassOf(window) + L" \"" + TextOf(window) + L"\"\n";
        for (HWND control : ControlsOf(window))
            text += L"    " + ClassOf(control) + L" \"" + TextOf(control) + L"\"\n";
    }
    return text;
}

void WizardDriver::WaitForPage(const wchar_t* heading) const {
    Until([&] { return IsWindowEnabled(window_) && ShowsText(heading); },
          std::wstring(L"the page ") + heading);
    Ask(window_, WM_NULL); // answered when the page is complete
}

bool WizardDriver::ShowsText(const wchar_t* text) const {
    for (HWND control : ControlsOf(window_))
        if (ClassOf(control) == L"Static" && TextOf(control) == text) return true;
    return false;
}

std::wstring WizardDriver::Step() const {
    for (HWND control : ControlsOf(window_))
        if (std::wstring text = TextOf(control); ClassOf(control) == L"Static" && text.starts_with(L"Step "))
            return text;
    return {};
}

std::wstring WizardDriver::PageText() const {
    for (HWND control : ControlsOf(window_))
        if (ClassOf(control).starts_with(L"RichEdit") || ClassOf(control).starts_with(L"RICHEDIT"))
            return TextOf(control);
    return {};
}

bool WizardDriver::Has(const wchar_t* caption) const { return FindButton(window_, caption) != nullptr; }

bool WizardDriver::IsEnabled(const wchar_t* caption) const {
    return IsWindowEnabled(FindButton(window_, caption)) != FALSE;
}

bool WizardDriver::IsChecked(const wchar_t* caption) const {
    HWND button = FindButton(window_, caption);
    if (button == nullptr) throw std::runtime_error(Utf8(std::wstring(L"not on the page: ") + caption));
    return ::IsChecked(button);
}

void WizardDriver::Click(const wchar_t* caption) const {
    Until([&] { return IsWindowEnabled(window_) && IsEnabled(caption); },
          std::wstring(L"a button ") + caption);
    Press(FindButton(window_, caption));
}

void WizardDriver::Choose(const wchar_t* caption) const {
    Click(caption);
    Until([&] { return IsChecked(caption); }, std::wstring(L"the choice of ") + caption);
}

void WizardDriver::Check(const wchar_t* caption, bool on) const {
    if (IsChecked(caption) != on) Click(caption);
    Until([&] { return IsChecked(caption) == on; }, std::wstring(L"a change of ") + caption);
}

void WizardDriver::Next(const wchar_t* heading) const {
    Click(Has(L"&Create") ? L"&Create" : L"&Next >");
    WaitForPage(heading);
}

void WizardDriver::Back(const wchar_t* heading) const {
    Click(L"< Back");
    WaitForPage(heading);
}

HWND WizardDriver::Input(const wchar_t* className, const wchar_t* prompt) const {
    HWND found = nullptr;
    Until(
        [&] {
            bool behind = *prompt == L'\0';
            for (HWND control : ControlsOf(window_)) {
                if (!behind)
                    behind = TextOf(control) == prompt;
                else if (ClassOf(control) == className) {
                    found = control;
                    return true;
                }
            }
            return false;
        },
        std::wstring(className) + L" behind " + prompt);
    return found;
}

void WizardDriver::Type(const wchar_t* prompt, const std::wstring& text) const {
    HWND box = Input(L"Edit", prompt);
    Ask(box, EM_SETSEL, 0, -1);
    Ask(box, WM_CLEAR);
    for (const wchar_t c : text)
        Ask(box, WM_CHAR, c);
}

std::wstring WizardDriver::Typed(const wchar_t* prompt) const { return TextOf(Input(L"Edit", prompt)); }

void WizardDriver::Select(const wchar_t* prompt, int index) const {
    HWND input = Input(L"ComboBox", prompt);
    Ask(input, CB_SETCURSEL, static_cast<WPARAM>(index));
    Notify(input, CBN_SELCHANGE);
}

int WizardDriver::Selected(const wchar_t* prompt) const {
    return static_cast<int>(Ask(Input(L"ComboBox", prompt), CB_GETCURSEL));
}

std::wstring WizardDriver::SelectedText(const wchar_t* prompt) const {
    return TextOf(Input(L"ComboBox", prompt));
}

void WizardDriver::SelectInList(const wchar_t* prompt, int index) const {
    HWND list = Input(L"ListBox", prompt);
    Ask(list, LB_SETCURSEL, static_cast<WPARAM>(index));
    Notify(list, LBN_SELCHANGE);
}

void WizardDriver::MarkInList(int index, bool on) const {
    HWND list = Input(L"ListBox", L"");
    Ask(list, LB_SETSEL, on ? TRUE : FALSE, index);
    Notify(list, LBN_SELCHANGE);
}

std::vector<std::wstring> WizardDriver::ListItems() const {
    HWND list = Input(L"ListBox", L"");
    std::vector<std::wstring> items(Ask(list, LB_GETCOUNT));
    for (std::size_t i = 0; i < items.size(); ++i) {
        items[i].resize(Ask(list, LB_GETTEXTLEN, i) + 1);
        items[i].resize(Ask(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(items[i].data())));
    }
    return items;
}

bool WizardDriver::HasFocus(HWND control) const {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    return GetGUIThreadInfo(GetWindowThreadProcessId(window_, nullptr), &info) && info.hwndFocus == control;
}

WizardDriver::Box WizardDriver::AnswerBox(int button) const {
    HWND box = nullptr;
    Until(
        [&] {
            for (HWND window : WindowsOf(ProcessId()))
                if (ClassOf(window) == L"#32770" && GetDlgItem(window, button) != nullptr) box = window;
            return box != nullptr;
        },
        L"a message box with button " + std::to_wstring(button));
    HWND text = GetDlgItem(box, kBoxText);
    Box answer{TextOf(box), text != nullptr ? TextOf(text) : L""};
    Press(GetDlgItem(box, button));
    Until([box] { return !IsWindow(box) || !IsWindowVisible(box); },
          L"the message box to go: " + answer.text);
    return answer;
}

HWND WizardDriver::WaitForWindow(const wchar_t* title) const {
    HWND found = nullptr;
    Until(
        [&] {
            for (HWND window : WindowsOf(ProcessId()))
                if (TextOf(window) == title) found = window;
            return found != nullptr;
        },
        std::wstring(L"a window ") + title);
    return found;
}

void WizardDriver::ClickIn(HWND window, const wchar_t* caption) {
    HWND button = FindButton(window, caption);
    if (button == nullptr) throw std::runtime_error(Utf8(std::wstring(L"no button ") + caption));
    Press(button);
}

void WizardDriver::AskToClose() const { PostMessageW(window_, WM_CLOSE, 0, 0); }

int WizardDriver::WaitForExit() const {
    Until([this] { return !IsRunning(); }, L"the end of the wizard");
    DWORD code = 0;
    GetExitCodeProcess(process_.hProcess, &code);
    return static_cast<int>(code);
}

#include "tests/support/WizardDriver.h"

#include "tests/support/DemoSuite.h"
#include "tests/support/Windows.h"

namespace {

constexpr DWORD kPatience = 20000; // milliseconds for one step
constexpr int kHeadingId = 120;
constexpr int kBoxText = 65535; // the id of a message box's text

} // namespace

void Notify(HWND control, WORD code) {
    const auto id = static_cast<WORD>(GetDlgCtrlID(control));
    Ask(GetParent(control), WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(control));
}

WizardDriver::WizardDriver(const DemoSuite& suite, const std::wstring& arguments, Wait wait,
                           const std::wstring& program) {
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    std::wstring line = suite.Quoted(program) + L" " + arguments;
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &process_))
        Fail(L"cannot start " + line);
    if (wait == Wait::Yes) WaitForOpening();
}

void WizardDriver::WaitForOpening() {
    Until([this] { return (window_ = FindWindowOf(L"VWizardForm", L"", 0)) != nullptr; },
          L"the wizard's window");
    Until([this] { return PageText() != L"Initializing..." && (Button(L"Cancel") || Button(L"&Close")); },
          L"the first page");
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
    for (const DWORD start = GetTickCount(); !condition(); Sleep(2))
        if (GetTickCount() - start > kPatience) Fail(L"waited in vain for: " + wanted + L"\n" + Describe());
}

std::wstring WizardDriver::Describe() const {
    std::wstring text = IsRunning() ? L"" : L"the wizard has ended\n";
    for (HWND window : WindowsOf(ProcessId())) {
        text += ClassOf(window) + L" \"" + TextOf(window) + L"\"\n";
        for (HWND control : ControlsOf(window))
            text += L"    " + ClassOf(control) + L" \"" + TextOf(control) + L"\"\n";
    }
    return text;
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
    Press(Button(L"&Create") ? L"&Create" : L"&Next >");
    WaitForPage(heading);
}

// A click goes through the message queue, so that a modal window that it opens does not hold up the test.
void WizardDriver::Press(const std::wstring& caption) const {
    Until([&] { return IsWindowEnabled(window_) && IsWindowEnabled(Button(caption)); },
          L"a button " + caption);
    PostMessageW(Button(caption), BM_CLICK, 0, 0);
}

HWND WizardDriver::Find(const std::wstring& className, const std::wstring& text) const {
    for (HWND control : ControlsOf(window_))
        if (ClassOf(control) == className && TextOf(control) == text) return control;
    return nullptr;
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

HWND WizardDriver::Focus() const {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(window_, nullptr), &info);
    return info.hwndFocus;
}

// With a child of that id, unless it is 0; "" fits every class and every title.
HWND WizardDriver::FindWindowOf(const std::wstring& className, const std::wstring& title, int child) const {
    for (HWND window : WindowsOf(ProcessId()))
        if ((className.empty() || ClassOf(window) == className) &&
            (title.empty() || TextOf(window) == title) && (child == 0 || GetDlgItem(window, child)))
            return window;
    return nullptr;
}

std::wstring WizardDriver::AnswerBox(int button) const {
    HWND box = nullptr;
    Until([&] { return (box = FindWindowOf(L"#32770", L"", button)) != nullptr; },
          L"a message box with button " + std::to_wstring(button));
    const HWND label = GetDlgItem(box, kBoxText);
    const std::wstring text = TextOf(box) + L"\r\n" + (label ? TextOf(label) : L"");
    PostMessageW(GetDlgItem(box, button), BM_CLICK, 0, 0);
    Until([box] { return !IsWindow(box) || !IsWindowVisible(box); }, L"the message box to go: " + text);
    return text;
}

void WizardDriver::GoTo(const std::wstring& title) {
    HWND found = nullptr;
    Until([&] { return (found = FindWindowOf(L"", title, 0)) != nullptr; }, L"a window " + title);
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

int WizardDriver::WaitForExit() const {
    Until([this] { return !IsRunning(); }, L"the end of the wizard");
    DWORD code = 0;
    GetExitCodeProcess(process_.hProcess, &code);
    return static_cast<int>(code);
}

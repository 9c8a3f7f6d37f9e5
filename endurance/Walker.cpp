#include "endurance/Walker.h"

#include "endurance/KnownMessages.h"
#include "tests/support/DemoSuite.h"

#include <algorithm>
#include <stdexcept>

namespace {

constexpr UINT kAnswerTime_ms = 30000;
constexpr DWORD kPatience_ms = 60000;
constexpr wchar_t kFormClass[] = L"VWizardForm";
constexpr int kNextId = 100;
constexpr int kBackId = 101;
constexpr int kHeadingId = 120;
constexpr int kBoxTextId = 65535;
constexpr int kMostVisits = 4; // of one page without getting on

BOOL CALLBACK Collect(HWND window, LPARAM data) {
    if (IsWindowVisible(window)) reinterpret_cast<std::vector<HWND>*>(data)->push_back(window);
    return TRUE;
}

} // namespace

bool Journey::Passed(std::wstring_view heading) const {
    return std::find(pages.begin(), pages.end(), heading) != pages.end();
}

bool Journey::Told(std::wstring_view beginning) const {
    return std::any_of(messages.begin(), messages.end(),
                       [&](const std::wstring& text) { return text.starts_with(beginning); });
}

DWORD_PTR Ask(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    DWORD_PTR result = 0;
    if (!SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, kAnswerTime_ms, &result) &&
        IsWindow(window))
        throw std::runtime_error("no answer to message " + std::to_string(message) + " of " +
                                 Utf8(ClassOf(window)));
    return result;
}

std::wstring ClassOf(HWND window) {
    wchar_t name[256] = L"";
    GetClassNameW(window, name, 256);
    return name;
}

std::wstring TextOf(HWND window) {
    std::wstring text(Ask(window, WM_GETTEXTLENGTH) + 1, L'\0');
    text.resize(Ask(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data())));
    return text;
}

std::vector<HWND> ChildrenOf(HWND window) {
    std::vector<HWND> children;
    EnumChildWindows(window, Collect, reinterpret_cast<LPARAM>(&children));
    return children;
}

void Walker::Press(HWND button) const {
    SendNotifyMessageW(button, BM_CLICK, 0, 0);
    Ask(main_, WM_NULL);
}

std::wstring Walker::Heading() const { return TextOf(GetDlgItem(main_, kHeadingId)); }

HWND Walker::Button(const wchar_t* caption) const {
    for (HWND child : ChildrenOf(main_))
        if (ClassOf(child) == L"Button" && TextOf(child) == caption) return child;
    return nullptr;
}

HWND Walker::Next() const {
    for (const int id : {kNextId, static_cast<int>(IDCANCEL)}) // the permission page has no Next
        if (HWND button = GetDlgItem(main_, id); IsWindowVisible(button)) return button;
    return nullptr;
}

HWND Walker::Back() const {
    HWND button = GetDlgItem(main_, kBackId);
    return IsWindowVisible(button) ? button : nullptr;
}

HWND Walker::Modal() const {
    std::vector<HWND> windows;
    if (thread_)
        EnumThreadWindows(thread_, Collect, reinterpret_cast<LPARAM>(&windows));
    else
        EnumWindows(Collect, reinterpret_cast<LPARAM>(&windows));
    for (HWND window : windows) {
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        if (owner != wizard_.ProcessId() || window == main_ || !IsWindowEnabled(window)) continue;
        const std::wstring kind = ClassOf(window);
        if (kind != kFormClass && kind != L"tooltips_class32") return window;
    }
    return nullptr;
}

void Walker::FindMain() {
    if (main_ && IsWindow(main_)) return;
    std::vector<HWND> windows;
    EnumWindows(Collect, reinterpret_cast<LPARAM>(&windows));
    for (HWND window : windows) {
        DWORD owner = 0;
        const DWORD thread = GetWindowThreadProcessId(window, &owner);
        if (owner != wizard_.ProcessId() || ClassOf(window) != kFormClass) continue;
        main_ = window;
        thread_ = thread;
    }
}

std::wstring Walker::AnswerModal(HWND modal) const {
    HWND label = GetDlgItem(modal, kBoxTextId);
    std::wstring text = label ? TextOf(label) : L"";
    HWND button = nullptr;
    for (const int id : {IDYES, IDOK})
        if (HWND found = GetDlgItem(modal, id); found && IsWindowVisible(found) && !button) button = found;
    for (HWND child : ChildrenOf(modal))
        if (!button && ClassOf(child) == L"Button") button = child;
    SendNotifyMessageW(button ? button : modal, button ? BM_CLICK : WM_CLOSE, 0, 0);
    wizard_.Until([modal] { return !IsWindow(modal) || !IsWindowVisible(modal); }, L"an end of: " + text);
    return text;
}

bool Walker::WaitUntilReady() {
    const DWORD begin = GetTickCount();
    while (wizard_.IsRunning()) {
        FindMain();
        if (Modal()) return true;
        // Cancel is shown when the first page is about to be; a page change is over when it answers.
        HWND cancel = main_ ? GetDlgItem(main_, IDCANCEL) : nullptr;
        if (cancel && IsWindowVisible(cancel) && IsWindowEnabled(main_)) {
            Ask(main_, WM_NULL);
            if (IsWindowEnabled(main_) && !Heading().empty()) return true;
        }
        if (GetTickCount() - begin > kPatience_ms) throw std::runtime_error("the wizard shows nothing");
        Sleep(1);
    }
    return false;
}

void Walker::TypeName() const {
    for (HWND child : ChildrenOf(main_))
        if (ClassOf(child) == L"Edit") Ask(child, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(name.c_str()));
}

std::wstring Walker::CreateConfiguration() {
    TypeName();
    Press(Next());
    std::wstring told;
    while (WaitUntilReady()) {
        HWND modal = Modal();
        if (!modal) break;
        told += AnswerModal(modal);
    }
    return told;
}

void Walker::Close() {
    SendNotifyMessageW(main_, WM_CLOSE, 0, 0);
    while (WaitUntilReady())
        if (HWND modal = Modal()) AnswerModal(modal);
    wizard_.WaitForExit();
}

void Walker::LeavePage(Journey& journey) {
    const std::wstring heading = Heading();
    visits_ = heading == lastPage_ ? visits_ + 1 : 1;
    lastPage_ = heading;
    if (visits_ == 1) journey.pages.push_back(heading);
    if (heading == L"Configuration Name") {
        // A second refusal will not be the last one: this page may be closed without a question.
        if (visits_ > 2) return static_cast<void>(SendNotifyMessageW(main_, WM_CLOSE, 0, 0));
        TypeName();
    }
    if (onPage) onPage(heading);
    if (visits_ > kMostVisits) throw std::runtime_error("cannot leave the page " + Utf8(heading));
    HWND next = Next();
    if (!next) throw std::runtime_error("no way on from the page " + Utf8(heading));
    Press(next);
}

Journey Walker::Walk() {
    Journey journey;
    try {
        while (WaitUntilReady()) {
            if (HWND modal = Modal()) {
                const bool box = ClassOf(modal) == L"#32770" && GetDlgItem(modal, kBoxTextId);
                const std::wstring text = AnswerModal(modal);
                if (box) journey.messages.push_back(text);
                if (box && !IsKnownMessage(text)) journey.trouble = L"an unexpected message: " + text;
                if (!journey.trouble.empty()) return journey;
                continue;
            }
            if (!stopAt.empty() && Heading() == stopAt) return journey;
            LeavePage(journey);
        }
        const int code = wizard_.WaitForExit();
        if (code != 0 && !(code == 1 && !journey.messages.empty()))
            journey.trouble = L"the exit code " + std::to_wstring(code);
    } catch (const std::exception& error) {
        const std::string what = error.what();
        journey.trouble = std::wstring(what.begin(), what.end());
    }
    return journey;
}

Journey WalkWhole(const DemoSuite& suite, const wchar_t* arguments) {
    const WizardDriver wizard(suite, arguments, WizardDriver::Wait::No);
    return Walker(wizard).Walk();
}

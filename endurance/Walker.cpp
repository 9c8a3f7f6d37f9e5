#include "endurance/Walker.h"

#include "endurance/KnownMessages.h"
#include "tests/support/DemoSuite.h"

#include <algorithm>
#include <stdexcept>

namespace {

constexpr DWORD kPatience_ms = 60000, kSettle_ms = 300;
constexpr wchar_t kFormClass[] = L"VWizardForm";
constexpr int kNextId = 100, kBackId = 101, kHeadingId = 120, kBoxTextId = 65535;
constexpr int kMostVisits = 4; // of one page without getting on

bool IsGone(HWND window) { return !IsWindow(window) || !IsWindowVisible(window); }

} // namespace

bool Journey::Passed(std::wstring_view heading) const {
    return std::find(pages.begin(), pages.end(), heading) != pages.end();
}

bool Journey::Told(std::wstring_view beginning) const {
    return std::any_of(messages.begin(), messages.end(),
                       [&](const std::wstring& text) { return text.starts_with(beginning); });
}

void Walker::Press(HWND button) const {
    SendNotifyMessageW(button, BM_CLICK, 0, 0);
    Ask(main_, WM_NULL);
}

std::wstring Walker::Heading() const { return TextOf(GetDlgItem(main_, kHeadingId)); }

HWND Walker::Button(const wchar_t* caption) const {
    for (HWND button : ControlsOf(main_, L"Button"))
        if (TextOf(button) == caption) return button;
    return nullptr;
}

HWND Walker::Visible(int id) const {
    HWND control = GetDlgItem(main_, id);
    return control && IsWindowVisible(control) ? control : nullptr;
}

// The permission page has no Next.
HWND Walker::Next() const { return Visible(kNextId) ? Visible(kNextId) : Visible(IDCANCEL); }
HWND Walker::Back() const { return Visible(kBackId); }

HWND Walker::Modal() const {
    if (main_ && IsWindowEnabled(main_)) return nullptr;
    for (HWND window : WindowsOf(wizard_.ProcessId()))
        if (window != main_ && IsWindowEnabled(window) && ClassOf(window) != kFormClass) return window;
    return nullptr;
}

std::wstring Walker::AnswerModal(HWND modal, int wanted) const {
    HWND label = GetDlgItem(modal, kBoxTextId);
    std::wstring text = label ? TextOf(label) : L"";
    HWND button = nullptr;
    for (const int id : {wanted, IDYES, IDOK})
        if (HWND found = GetDlgItem(modal, id); found && IsWindowVisible(found) && !button) button = found;
    for (HWND child : ControlsOf(modal, L"Button"))
        if (!button) button = child;
    SendNotifyMessageW(button ? button : modal, button ? BM_CLICK : WM_CLOSE, 0, 0);
    wizard_.Until([modal] { return IsGone(modal); }, L"an end of: " + text);
    return text;
}

bool Walker::WaitUntilReady() {
    for (const DWORD begin = GetTickCount(); wizard_.IsRunning(); Sleep(1)) {
        if (!main_ || !IsWindow(main_)) {
            main_ = nullptr;
            for (HWND window : WindowsOf(wizard_.ProcessId()))
                if (ClassOf(window) == kFormClass) main_ = window;
        }
        if (Modal()) return true;
        // Cancel is shown when the first page is about to be; a page change is over when it answers.
        if (main_ && Visible(IDCANCEL) && IsWindowEnabled(main_)) {
            Ask(main_, WM_NULL);
            if (IsWindowEnabled(main_) && !Heading().empty()) return true;
        }
        if (GetTickCount() - begin > kPatience_ms) Fail(L"the wizard shows nothing");
    }
    return false;
}

void Walker::TypeName() const {
    for (HWND box : ControlsOf(main_, L"Edit"))
        Ask(box, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(name.c_str()));
}

std::wstring Walker::Answer(int wanted) {
    std::wstring told;
    while (WaitUntilReady())
        if (HWND modal = Modal())
            told += AnswerModal(modal, wanted);
        else
            break;
    return told;
}

std::wstring Walker::CreateConfiguration() {
    TypeName();
    Press(Next());
    std::wstring told;
    // Between one window and the next the wizard looks as if it were ready.
    const auto isOver = [&] { return !(told += Answer()).empty() || Heading() == L"Finished"; };
    wizard_.Until(isOver, L"a file or a message");
    return told;
}

void Walker::Close() {
    SendNotifyMessageW(main_, WM_CLOSE, 0, 0);
    while (WaitUntilReady())
        Answer();
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
    HWND next = Next();
    if (visits_ > kMostVisits || !next) Fail(L"no way on from the page " + heading);
    Press(next);
    // A click that comes while the wizard still waits for the desktop, in the middle of the last page change,
    // is dropped as any second one.
    const auto stays = [&] { return wizard_.IsRunning() && !Modal() && Heading() == heading; };
    for (const DWORD begin = GetTickCount(); stays() && GetTickCount() - begin < kSettle_ms;)
        Sleep(1);
    if (heading == L"Finished")
        wizard_.Until([this] { return !wizard_.IsRunning() || Modal(); }, L"the end behind the last page");
}

Journey Walker::Walk() {
    Journey journey;
    try {
        while (WaitUntilReady()) {
            if (HWND modal = Modal()) {
                const bool box = ClassOf(modal) == L"#32770" && GetDlgItem(modal, kBoxTextId);
                const std::wstring text = AnswerModal(modal);
                if (box) journey.messages.push_back(text);
                if (box && !IsKnownMessage(text)) Fail(L"an unexpected message: " + text);
                continue;
            }
            if (!stopAt.empty() && Heading() == stopAt) return journey;
            LeavePage(journey);
        }
        const int code = wizard_.WaitForExit();
        if (code != 0 && !(code == 1 && !journey.messages.empty()))
            Fail(L"the exit code " + std::to_wstring(code));
    } catch (const std::exception& error) {
        journey.trouble = FromUtf8(error.what());
    }
    return journey;
}

Journey WalkWhole(const DemoSuite& suite, const wchar_t* arguments) {
    const WizardDriver wizard(suite, arguments, WizardDriver::Wait::No);
    return Walker(wizard).Walk();
}

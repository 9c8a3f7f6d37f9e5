#include "tools/driver/Walker.h"

#include "tools/driver/KnownMessages.h"
#include "tools/driver/Words.h"

#include <algorithm>
#include <stdexcept>

namespace {

// So long a click may seem to do nothing before it is made again.
constexpr DWORD kClick_ms = 5000;
constexpr wchar_t kFormClass[] = L"VWizardForm";
constexpr int kNextId = 100, kHeadingId = 120, kBoxTextId = 65535;
constexpr int kMostRefusals = 6; // of one page

bool IsGone(HWND window) { return !IsWindow(window) || !IsWindowVisible(window); }

} // namespace

bool Journey::Passed(std::wstring_view heading) const {
    return std::find(pages.begin(), pages.end(), heading) != pages.end();
}

bool Journey::Told(std::wstring_view beginning) const {
    return std::any_of(messages.begin(), messages.end(),
                       [&](const std::wstring& text) { return text.starts_with(beginning); });
}

std::wstring Journey::Story() const {
    std::wstring story = trouble + L" pages:";
    for (const std::wstring& page : pages)
        story += L" | " + page;
    for (const std::wstring& message : messages)
        story += L" | told: " + message;
    return story;
}

// Sent so that it need not be answered: a click that opens a box returns only when the box has gone.
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

// What stands in front disables the form: while that is enabled, there is nothing to look for.
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

// Cancel is shown when the first page is about to be; a page change is over when it answers.
bool Walker::IsReady() {
    if (!main_ || !IsWindow(main_)) main_ = wizard_.FindWindowOf(kFormClass, L"");
    if (Modal()) return true;
    if (!main_ || !Visible(IDCANCEL) || !IsWindowEnabled(main_)) return false;
    Ask(main_, WM_NULL);
    return IsWindowEnabled(main_) && !Heading().empty();
}

bool Walker::WaitUntilReady() {
    wizard_.Until([this] { return !wizard_.IsRunning() || IsReady(); }, L"a page or a question");
    return wizard_.IsRunning();
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
    if (heading != lastPage_) {
        journey.pages.push_back(heading);
        refusals_ = 0;
    }
    lastPage_ = heading;
    if (heading == L"Configuration Name") {
        // A second refusal will not be the last one: this page may be closed without a question.
        if (refusals_ > 1) return static_cast<void>(SendNotifyMessageW(main_, WM_CLOSE, 0, 0));
        TypeName();
    }
    if (onPage) onPage(heading);
    if (refusals_ > kMostRefusals || !Next()) Fail(L"no way on from the page\n" + wizard_.Describe());
    const bool last = heading == L"Finished";
    const auto isLeft = [&] { return !wizard_.IsRunning() || Modal() || (!last && Heading() != heading); };
    // A click that comes while the wizard still waits for the desktop, in the middle of the last page change,
    // is dropped as any second one.
    ULONGLONG clicked = 0;
    wizard_.Until(
        [&] {
            if (isLeft()) return true;
            if (GetTickCount64() - clicked < kClick_ms) return false;
            clicked = GetTickCount64();
            if (const HWND next = Next()) Press(next);
            return isLeft();
        },
        L"a page behind " + heading);
}

Journey Walker::Walk() {
    Journey journey;
    try {
        while (WaitUntilReady()) {
            if (HWND modal = Modal()) {
                const bool box = ClassOf(modal) == L"#32770" && GetDlgItem(modal, kBoxTextId);
                const std::wstring text = AnswerModal(modal);
                if (box) journey.messages.push_back(text);
                if (box) ++refusals_;
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

#include "benchmark/Programs.h"

#include "tools/driver/Clock.h"
#include "tools/driver/Windows.h"

namespace {

// Asks nobody: the text that the system keeps is there before the program answers messages.
std::wstring CaptionOf(HWND window) {
    wchar_t text[256] = L"";
    GetWindowTextW(window, text, 256);
    return text;
}

bool HasReadyControl(HWND window, const Program& program) {
    if (!program.readyClass) return true;
    HWND control = nullptr;
    while ((control = FindWindowExW(window, control, program.readyClass, nullptr)) != nullptr) {
        if (program.readyText && CaptionOf(control) != program.readyText) continue;
        if (IsWindowVisible(control) && IsWindowEnabled(control)) return true;
    }
    return false;
}

BOOL CALLBACK NoteUnpainted(HWND window, LPARAM unpainted) {
    if (IsWindowVisible(window) && GetUpdateRect(window, nullptr, FALSE))
        *reinterpret_cast<bool*>(unpainted) = true;
    return TRUE;
}

// A window is ready for a person when neither it nor a control of it has anything left to be painted.
bool IsPainted(HWND window) {
    bool unpainted = false;
    NoteUnpainted(window, reinterpret_cast<LPARAM>(&unpainted));
    if (!unpainted) EnumChildWindows(window, NoteUnpainted, reinterpret_cast<LPARAM>(&unpainted));
    return !unpainted;
}

} // namespace

Running::Running(const Program& program) : startTime_(Now()), process_(program.commandLine) {
    process_.Until(
        [&] {
            window_ = process_.FindWindowOf(program.windowClass, L"");
            if (!window_ || !HasReadyControl(window_, program)) return false;
            Ask(window_, WM_NULL);
            return IsPainted(window_);
        },
        L"a window that can be used");
    startTime_ = Now() - startTime_;
}

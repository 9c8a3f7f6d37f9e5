#include "app/StartUp.h"
#include "app/modLocations.h"
#include "benchmark/BareWindow.h"
#include "benchmark/Figures.h"
#include "benchmark/SheetWizard.h"
#include "benchmark/Table.h"
#include "ndw/NdwPages.h"
#include "tools/driver/Clock.h"
#include "wizard/frmWizard.h"

#include <commctrl.h>
#include <prsht.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace {

// Milliseconds, one entry a page change.
struct Changes {
    std::vector<double> press;  // of the button, until its handler is through
    std::vector<double> shown;  // the same until all that it left to be painted is painted
    std::vector<double> redraw; // the whole window once more, frame and buttons too
    std::vector<double> full;   // press and redraw together
    std::vector<double> first;  // the same, the page was not shown before in this window
};

void Redraw(HWND window, UINT flags) {
    RedrawWindow(window, nullptr, nullptr, flags | RDW_ALLCHILDREN | RDW_UPDATENOW);
    GdiFlush();
}

// Forwards, backwards, forwards and backwards again.
template <class Press> void Tour(HWND window, int pages, Changes& changes, Press press) {
    for (int leg = 0; leg < 4; ++leg)
        for (int step = 1; step < pages; ++step) {
            const double pressed = TimeOf([&] { press(leg % 2 == 0); });
            const double painted = TimeOf([&] { Redraw(window, 0); });
            const double redrawn = TimeOf([&] { Redraw(window, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME); });
            if (leg == 0) {
                changes.first.push_back(pressed + redrawn);
                continue;
            }
            changes.press.push_back(pressed);
            changes.shown.push_back(pressed + painted);
            changes.redraw.push_back(redrawn);
            changes.full.push_back(pressed + redrawn);
        }
}

void TourOfWizard(Changes& changes) {
    frmWizard form(NdwBook(), {.configAllowed = true});
    form.Form_Load();
    // Up to the page of the name: the next one would create a file. One page is left out by the answers.
    constexpr int kPages = kNdwNamePage - 1;
    Tour(form.Hwnd(), kPages, changes, [&](bool forward) {
        const std::int16_t before = form.PageNo;
        (forward ? form.cmdNext : form.cmdBack).Send(BM_CLICK);
        if (form.PageNo == before) throw std::runtime_error("the wizard stays");
    });
}

void TourOfSheet(Changes& changes) {
    RunSheetWizard([&](HWND sheet) {
        Tour(sheet, kSheetPages, changes, [&](bool forward) {
            const HWND before = PropSheet_GetCurrentPageHwnd(sheet);
            SendMessageW(sheet, PSM_PRESSBUTTON, forward ? PSBTN_NEXT : PSBTN_BACK,
                         0); // the macro only posts it
            if (PropSheet_GetCurrentPageHwnd(sheet) == before) throw std::runtime_error("the sheet stays");
        });
    });
}

// The least that a page change of the wizard may be: the controls of its first page and, as on most pages,
// the step and three options, which get other texts and stand below a text of another height.
class BarePages {
  public:
    BarePages() {
        WNDCLASSW windowClass{};
        windowClass.lpfnWndProc = DefWindowProcW;
        windowClass.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
        windowClass.lpszClassName = L"BarePages";
        RegisterClassW(&windowClass);
        window_ = CreateWindowExW(0, windowClass.lpszClassName, L"Pages", WS_CAPTION | WS_CLIPCHILDREN, 100,
                                  100, 500, 350, nullptr, nullptr, nullptr, nullptr);
        AddControls(window_);
        heading_ = GetWindow(window_, GW_CHILD);
        text_ = GetWindow(heading_, GW_HWNDNEXT);
        step_ = Add(L"Static", 0, 8);
        for (HWND& option : options_)
            option = Add(L"Button", BS_AUTORADIOBUTTON, 200);
        ShowWindow(window_, SW_SHOWNORMAL);
    }
    BarePages(const BarePages&) = delete;
    BarePages& operator=(const BarePages&) = delete;
    ~BarePages() { DestroyWindow(window_); }

    HWND Window() const { return window_; }

    void Change() {
        const wchar_t* text = (++page_ & 1) ? L"Another text" : L"A text";
        int top = 48, height = (page_ & 1) ? 60 : 80;
        for (const HWND window : {step_, heading_, text_})
            SetWindowTextW(window, text);
        constexpr UINT kQuiet = SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW;
        SetWindowPos(text_, nullptr, 100, top, 380, height, kQuiet);
        top += height;
        for (const HWND option : options_) {
            SetWindowTextW(option, text);
            SetWindowPos(option, nullptr, 100, top += 19, 380, 16, kQuiet);
        }
    }

  private:
    HWND Add(const wchar_t* className, DWORD style, int top) const {
        return CreateWindowExW(0, className, L"", WS_CHILD | WS_VISIBLE | style, 400, top, 72, 14, window_,
                               nullptr, nullptr, nullptr);
    }

    HWND window_ = nullptr, heading_ = nullptr, text_ = nullptr, step_ = nullptr, options_[3] = {};
    int page_ = 0;
};

void TourOfControls(Changes& changes) {
    BarePages pages;
    Tour(pages.Window(), kSheetPages, changes, [&](bool) { pages.Change(); });
}

struct Row {
    const char* figure;
    const Changes& ours;
    const char* peer;
    const Changes& theirs;
    std::vector<double> Changes::*times;
    double wanted = 0; // of the medians; the slowest changes tell more of the machine
};

void Print(const Row& row) {
    const std::string figure = row.figure;
    const std::vector<double>&ours = row.ours.*row.times, &theirs = row.theirs.*row.times;
    PrintRatio(figure + ", 95th percentile", row.peer, Percentile95(ours), Percentile95(theirs), "ms", 0);
    PrintRatio(figure + ", median", row.peer, Median(ours), Median(theirs), "ms", row.wanted);
}

} // namespace

void MeasurePageChange(const Bench& bench) {
    startUp.WizardMode = kNewDevice;
    startUp.WizardTitle = L"Pages";
    Changes ours, theirs, least;
    // A tour is many changes: a few of them are as many measurements as the other figures have.
    for (int run = 0; run < (bench.runs + 4) / 5; ++run) {
        TourOfWizard(ours);
        TourOfSheet(theirs);
        TourOfControls(least);
    }
    const char* sheet = "comctl32 wizard, 20 pages";
    // clang-format off
    const Row rows[] = {
        {"page change, full redraw",      ours,  sheet,           theirs, &Changes::full, 2.0},
        {"  the same, bare controls",     least, sheet,           theirs, &Changes::full},
        {"  the same",                    ours,  "bare controls", least,  &Changes::full},
        {"page change, until painted",    ours,  sheet,           theirs, &Changes::shown},
        {"  of it the button's handler",  ours,  sheet,           theirs, &Changes::press},
        {"  redraw of the whole window",  ours,  sheet,           theirs, &Changes::redraw},
        {"first visit of a page",         ours,  sheet,           theirs, &Changes::first},
    };
    // clang-format on
    for (const Row& row : rows)
        Print(row);
}

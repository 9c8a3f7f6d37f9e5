#include "app/StartUp.h"
#include "app/modLocations.h"
#include "benchmark/Clock.h"
#include "benchmark/Figures.h"
#include "benchmark/SheetWizard.h"
#include "benchmark/Table.h"
#include "ndw/NdwPages.h"
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
    frmWizard form(NdwBook(), true);
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

} // namespace

void MeasurePageChange(const Bench& bench) {
    startUp.WizardMode = kNewDevice;
    startUp.WizardTitle = L"Pages";
    Changes ours, theirs;
    // A tour is many changes: a few of them are as many measurements as the other figures have.
    for (int run = 0; run < (bench.runs + 4) / 5; ++run) {
        TourOfWizard(ours);
        TourOfSheet(theirs);
    }
    const char* peer = "comctl32 wizard, 20 pages";
    struct Row {
        const char* figure;
        std::vector<double> Changes::*times;
    };
    // clang-format off
    constexpr Row kRows[] = {
        {"page change, full redraw",     &Changes::full},
        {"page change, until painted",   &Changes::shown},
        {"  of it the button's handler", &Changes::press},
        {"  redraw of the whole window", &Changes::redraw},
        {"first visit of a page",        &Changes::first},
    };
    // clang-format on
    for (const Row& row : kRows) {
        const std::string figure = row.figure;
        const double wanted = row.times == &Changes::full ? 0.5 : 0;
        PrintRatio(figure + ", 95th percentile", peer, Percentile95(ours.*row.times),
                   Percentile95(theirs.*row.times), "ms", wanted);
        PrintRatio(figure + ", median", peer, Median(ours.*row.times), Median(theirs.*row.times), "ms", 0);
    }
}

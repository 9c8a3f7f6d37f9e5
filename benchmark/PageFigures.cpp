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
#include <vector>

namespace {

struct Changes {
    std::vector<double> first; // the page was not shown before in this window
    std::vector<double> later;
};

void RedrawAll(HWND window) {
    RedrawWindow(window, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    GdiFlush();
}

// Forwards, backwards, forwards and backwards again.
template <class Press> void Tour(HWND window, int pages, Changes& changes, Press press) {
    for (int leg = 0; leg < 4; ++leg)
        for (int step = 1; step < pages; ++step) {
            const double time = TimeOf([&] {
                press(leg % 2 == 0);
                RedrawAll(window);
            });
            (leg == 0 ? changes.first : changes.later).push_back(time);
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
    PrintRatio("page change, full redraw, 95th percentile", peer, Percentile95(ours.later),
               Percentile95(theirs.later), "ms", 0.5);
    PrintRatio("page change, full redraw, median", peer, Median(ours.later), Median(theirs.later), "ms", 0);
    PrintRatio("first visit of a page, 95th percentile", peer, Percentile95(ours.first),
               Percentile95(theirs.first), "ms", 0.5);
    PrintRatio("first visit of a page, median", peer, Median(ours.first), Median(theirs.first), "ms", 0);
}

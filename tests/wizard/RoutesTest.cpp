// Where Next, Back and Skip lead from every page of both wizards, with the captions and buttons that belong
// to it. The form is the real one and moves by its own buttons; only what leaving a page does is left out.

#include "app/StartUp.h"
#include "ftw/FtwPages.h"
#include "ndw/NdwPages.h"
#include "tests/support/Scratch.h"
#include "wizard/frmWizard.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

constexpr std::int16_t kNone = 0; // no such button, or the wizard ends

enum class Answer : bool {
    Usual, // no sample is selected, the data format is ISO
    Other, // one is, the data format is ASCII
};
using enum Answer;

struct Route {
    std::int16_t page;
    Answer answer;
    std::int16_t next, back, skip; // where they lead, whether the button is shown or not
    const wchar_t* shown;          // the visible ones among Skip, Back (in brackets: grey), Next
    const wchar_t* step;           // "": hidden
};

// clang-format off
constexpr Route kFtwRoutes[] = {
    { 1, Usual,  2, kNone,  2, L"&Next >", L""},
    { 2, Usual,  3,     1,  3, L"< Back &Next >", L""},
    { 3, Usual,  7,     2,  7, L"< Back &Next >", L""},
    { 7, Usual,  8,     3,  8, L"&Skip < Back &Next >", L""},
    { 8, Usual,  9,     7,  9, L"&Skip < Back &Next >", L""},
    { 9, Usual, 10,     8, 11, L"&Skip < Back &Next >", L""},
    {10, Usual, 11,     9, 11, L"&Skip < Back &Next >", L""},
    {11, Usual, 12,     9, 12, L"< Back &Next >", L""},
    {12, Usual, 14,    11, 14, L"&Skip < Back &Next >", L""},
    {12, Other, 13,    11, 14, L"&Skip < Back &Next >", L""},
    {13, Usual, 14,    12, 14, L"&Skip < Back &Next >", L""},
    {14, Other, 15,    12, 15, L"< Back &Next >", L""},
    {15, Usual, 16,    14, 16, L"< Back &Next >", L""},
    {16, Usual, 17,    15, 17, L"< Back &Next >", L""},
    {17, Usual, kNone, 16, kNone, L"< Back &Finish", L""},
};

constexpr Route kNdwRoutes[] = {
    { 1, Usual,  2, kNone, kNone, L"(< Back) &Next >", L""},
    { 2, Usual,  3,  1, kNone, L"< Back &Next >", L""},
    { 3, Usual,  4,  2, kNone, L"< Back &Next >", L"Step 1/14"},
    { 4, Usual,  5,  3, kNone, L"< Back &Next >", L"Step 2/14"},
    { 5, Usual,  7,  4, kNone, L"< Back &Next >", L"Step 3/14"},
    { 5, Other,  6,  4, kNone, L"< Back &Next >", L"Step 3/14"},
    { 6, Usual,  7,  5, kNone, L"< Back &Next >", L"Step 4/14"},
    { 7, Usual,  8,  5, kNone, L"< Back &Next >", L"Step 5/14"},
    { 7, Other,  8,  6, kNone, L"< Back &Next >", L"Step 5/14"},
    { 8, Usual,  9,  7, kNone, L"< Back &Next >", L"Step 6/14"},
    { 9, Usual, 10,  8, kNone, L"< Back &Next >", L"Step 7/14"},
    {10, Usual, 11,  9, kNone, L"< Back &Next >", L"Step 8/14"},
    {11, Usual, 12, 10, kNone, L"< Back &Next >", L"Step 9/14"},
    {12, Usual, 13, 11, kNone, L"< Back &Next >", L"Step 10/14"},
    {13, Usual, 14, 12, kNone, L"< Back &Next >", L"Step 11/14"},
    {14, Usual, 15, 13, kNone, L"< Back &Next >", L"Step 12/14"},
    {15, Usual, 16, 14, kNone, L"< Back &Next >", L"Step 13/14"},
    {16, Usual, 17, 15, kNone, L"< Back &Create", L"Step 14/14"},
    {17, Usual, kNone, 3, kNone, L"&New &Finish", L""},
};
// clang-format on

struct Way {
    const char* wizard;
    std::int16_t mode;
    const PageBook& (*book)();
    std::span<const Route> routes;
};
const Way kWays[] = {{"FirstTimeSetup", kFirstTimeSetup, FtwBook, kFtwRoutes},
                     {"NewDevice", kNewDevice, NdwBook, kNdwRoutes}};

class Routes : public testing::TestWithParam<Way> {
  protected:
    Routes() {
        for (Page& page : pages)
            page.leave = nullptr;
        book.pages = pages;
        startUp.ConfigLaunch = false;
        form.SkipReminderShown = true;
        book.load(form);
    }

    void Show(std::int16_t page, Answer answer) {
        ftwSession.selectedSamples = answer == Other ? 1 : 0;
        ndwSession.answers.dataFormatIndex = static_cast<std::int16_t>(answer == Other ? 2 : 0);
        form.PageNo = page;
        form.ConfigWritten = true; // until the port page
        form.ShowPage();
        EXPECT_EQ(form.ConfigWritten, mode == kFirstTimeSetup || page != kNdwPortPage);
    }

    void ExpectMove(const Route& route, const char* button, std::int16_t arrival,
                    void (frmWizard::*click)()) {
        if (arrival == kNone) return;
        SCOPED_TRACE(button);
        Show(route.page, route.answer);
        (form.*click)();
        EXPECT_EQ(form.PageNo, arrival);
        EXPECT_FALSE(form.MovingNext || form.MovingBack || form.Skipping || form.StayOnPage);
    }

    std::wstring Buttons() {
        std::wstring shown;
        for (win::Button* button : {&form.cmdSkip, &form.cmdBack, &form.cmdNext}) {
            const bool isHidden = button != &form.cmdNext && !button->Visible();
            if (isHidden) continue;
            shown += (shown.empty() ? L"" : L" ") +
                     (button->Enabled() ? button->Text() : L"(" + button->Text() + L")");
        }
        return shown;
    }

    const ScratchSuite suite;
    const std::int16_t mode = startUp.WizardMode = GetParam().mode;
    PageBook book = GetParam().book();
    std::vector<Page> pages{book.pages.begin(), book.pages.end()};
    frmWizard form{book, {.configAllowed = true}};
};

INSTANTIATE_TEST_SUITE_P(Wizards, Routes, testing::ValuesIn(kWays),
                         [](const auto& way) { return std::string(way.param.wizard); });

TEST_P(Routes, EveryButtonOfEveryPage) {
    for (const Route& route : GetParam().routes) {
        SCOPED_TRACE(route.page);
        Show(route.page, route.answer);
        EXPECT_EQ(Buttons(), route.shown);
        EXPECT_EQ(form.lblStep.Visible() ? form.lblStep.Text() : L"", route.step);
        ExpectMove(route, "Next", route.next, &frmWizard::cmdNext_Click);
        ExpectMove(route, "Back", route.back, &frmWizard::cmdBack_Click);
        ExpectMove(route, "Skip", route.skip, &frmWizard::cmdSkip_Click);
    }
    for (const Page& page : pages)
        EXPECT_TRUE(std::ranges::any_of(GetParam().routes,
                                        [&](const Route& route) { return route.page == page.number; }))
            << "no route is written down for page " << page.number;
}

} // namespace

#pragma once

// What a page is to the engine, and the book of pages that a wizard hands to the form. The engine knows no
// page and no wizard: a wizard is one table of these rows, a few properties and a few hooks.

#include <cstddef>
#include <cstdint>
#include <span>

class frmWizard;

namespace win {
class PictureArea;
}

enum class Move : std::int8_t { Next, Back, Skip };

// What leaving a page adds to PageNo besides the plain step, so that pages can be jumped over. With a
// condition it is added only when that holds at the moment of leaving.
struct Detour {
    std::int16_t pages = 0;
    bool (*condition)() = nullptr;
};

enum class Show : bool { No, Yes };

struct Page {
    std::int16_t number;
    void (*build)(frmWizard&);
    void (*leave)(frmWizard&, Move); // null: nothing to do
    Detour onNext;                   // plain step +1
    Detour onBack;                   // plain step -1
    Detour onSkip;                   // plain step +1
    const wchar_t* nextCaption;
    Show skip;
    Show back;
    // Looks up what `build` shows and what may take its time (files, folders, ports); null: nothing to do.
    // The page before is still to be seen, under an hourglass.
    void (*prepare)(frmWizard&) = nullptr;
};

struct PageBook {
    std::span<const Page> pages;
    std::size_t icon;                                  // of the window: element of frmWizard::imgIconDevice
    win::PictureArea frmWizard::*picture;              // beside the pages
    bool hasSteps;                                     // a step counter beside the heading
    bool hasSkip;                                      // a Skip button
    bool keepsProgress;                                // FTSW_MaxProgress and the tip on the header
    std::int16_t anotherPage;                          // where Back leads while its caption is kNewCaption
    void (*load)(frmWizard&);                          // the form is being loaded
    void (*beforeShow)(frmWizard&);                    // captions are set, the builder comes next
    bool (*takesOverNext)(frmWizard&);                 // true: the page has acted, nothing else is to run
    void (*hyperlink)(frmWizard&, std::int16_t index); // a link of the present page was clicked
    void (*exiting)(frmWizard&);                       // the user has confirmed the exit
};

// The captions that Next goes through. The exit question is asked only while it reads kNextCaption.
inline constexpr const wchar_t* kNextCaption = L"&Next >";
inline constexpr const wchar_t* kFinishCaption = L"&Finish";
inline constexpr const wchar_t* kCreateCaption = L"&Create";
inline constexpr const wchar_t* kBackCaption = L"< Back";
inline constexpr const wchar_t* kNewCaption = L"&New";

// The row of a page; null for a number that no page has.
constexpr const Page* FindPage(std::span<const Page> pages, std::int16_t number) {
    for (const Page& page : pages)
        if (page.number == number) return &page;
    return nullptr;
}

constexpr std::int16_t PlainStep(Move move) { return move == Move::Back ? -1 : 1; }

// Where a move from `page` leads now. Its leave action has run: it may decide whether a detour is taken.
constexpr std::int16_t Arrival(const Page& page, Move move) {
    const Detour& detour = move == Move::Next ? page.onNext : move == Move::Back ? page.onBack : page.onSkip;
    const bool isTaken = !detour.condition || detour.condition();
    return static_cast<std::int16_t>(page.number + (isTaken ? detour.pages : 0) + PlainStep(move));
}

#pragma once

// What a page is to the engine, and the book of pages that a mode hands to the form. The engine knows no
// page: a wizard is one table of these rows and a few hooks.

#include <cstdint>
#include <span>

class frmWizard;

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
};

struct PageBook {
    std::span<const Page> pages;
    bool keepsProgress;                                // FTSW_MaxProgress and the tip on the header
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

constexpr const Detour& DetourOf(const Page& page, Move move) {
    return move == Move::Next ? page.onNext : move == Move::Back ? page.onBack : page.onSkip;
}

// Where a move from `page` arrives when its detour, if it has one, is taken or not.
constexpr std::int16_t Arrival(const Page& page, Move move, bool detour) {
    const int step = move == Move::Back ? -1 : 1;
    return static_cast<std::int16_t>(page.number + (detour ? DetourOf(page, move).pages : 0) + step);
}

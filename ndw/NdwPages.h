#pragma once

// The New Device Wizard: its table of pages, what it keeps while it runs, and its page builders.

#include "ndw/NdwAnswers.h"
#include "wizard/Page.h"

#include <cstdint>
#include <string>

class frmWizard;

struct NdwSession {
    NdwAnswers answers;
    std::wstring failedFile; // path of this run's last write that failed; the same name may be tried again
};

extern NdwSession ndwSession;

const PageBook& NdwBook();

// The answers that have a default get it, all others are 0 or empty.
void NdwSetDefaults();

// What a link of the present page starts; a page or index without an entry does nothing.
void NdwHyperlink(frmWizard& form, std::int16_t index);

// Builders, and the actions that run when their page is left (on any move).
void PageNdwIntroduction(frmWizard& form);
void PageNdwIntro2(frmWizard& form);
void PageNdwPort(frmWizard& form);
void PageNdwBaud(frmWizard& form);
void PageNdwDataFmt(frmWizard& form);
void PageNdwComFmt(frmWizard& form);
void PageNdwFlow(frmWizard& form);
void PageNdwEOB(frmWizard& form);
void PageNdwPrefix(frmWizard& form);
void PageNdwSuffix(frmWizard& form);
void PageNdwFiltLines(frmWizard& form);
void PageNdwFiltOpts(frmWizard& form);
void PageNdwTxTrigger(frmWizard& form);
void PageNdwRxName(frmWizard& form);
void PageNdwRxTerm(frmWizard& form);
void PageNdwName(frmWizard& form);
void PageNdwFinal(frmWizard& form);

void LeaveNdwPort(frmWizard& form, Move move);
void LeaveNdwBaud(frmWizard& form, Move move);
void LeaveNdwDataFmt(frmWizard& form, Move move);
void LeaveNdwComFmt(frmWizard& form, Move move);
void LeaveNdwFlow(frmWizard& form, Move move);
void LeaveNdwEOB(frmWizard& form, Move move);
void LeaveNdwPrefix(frmWizard& form, Move move);
void LeaveNdwSuffix(frmWizard& form, Move move);
void LeaveNdwFiltLines(frmWizard& form, Move move);
void LeaveNdwFiltOpts(frmWizard& form, Move move);
void LeaveNdwTxTrigger(frmWizard& form, Move move);
void LeaveNdwRxName(frmWizard& form, Move move);
void LeaveNdwRxTerm(frmWizard& form, Move move);
void LeaveNdwName(frmWizard& form, Move move);
void LeaveNdwFinal(frmWizard& form, Move move);

inline constexpr std::int16_t kNdwPortPage = 3;
inline constexpr std::int16_t kNdwNamePage = 16;
inline constexpr std::int16_t kNdwFinalPage = 17;

// The page of the ASCII character format is for the ASCII data format only.
bool LeavesOutCharacterFormat();

inline constexpr Detour kNoDetour{};
inline constexpr Detour kPastComFmt{1, LeavesOutCharacterFormat};
inline constexpr Detour kBackPastComFmt{-1, LeavesOutCharacterFormat};

// clang-format off
inline constexpr Page kNdwPages[] = {
    // no  builder              leave action       on Next      on Back          on Skip    Next's caption  Skip      Back
    { 1, PageNdwIntroduction, nullptr,           kNoDetour,   kNoDetour,       kNoDetour, kNextCaption,   Show::No, Show::Yes},
    { 2, PageNdwIntro2,       nullptr,           kNoDetour,   kNoDetour,       kNoDetour, kNextCaption,   Show::No, Show::Yes},
    { 3, PageNdwPort,         LeaveNdwPort,      kNoDetour,   kNoDetour,       kNoDetour, kNextCaption,   Show::No, Show::Yes},
    { 4, PageNdwBaud,         LeaveNdwBaud,      kNoDetour,   kNoDetour,       kNoDetour, kNextCaption,   Show::No, Show::Yes},
    { 5, PageNdwDataFmt,      LeaveNdwDataFmt,   kPastComFmt, kNoDetour,       kNoDetour, kNextCaption,   Show::No, Show::Yes},
    { 6, PageNdwComFmt,       LeaveNdwComFmt,    kNoDetour,   kNoDetour,       kNoDetour, kNextCaption,   Show::No, Show::Yes},
    { 7, PageNdwFlow,         LeaveNdwFlow,      kNoDetour,   kBackPastComFmt, kNoDetour, kNextCaption,   Show::No, Show::Yes},
    { 8, PageNdwEOB,          LeaveNdwEOB,       kNoDetour,   kNoDetour,       kNoDetour, kNextCaption,   Show::No, Show::Yes},
    { 9, PageNdwPrefix,       LeaveNdwPrefix,    kNoDetour,   kNoDetour,       kNoDetour, kNextCaption,   Show::No, Show::Yes},
    {10, PageNdwSuffix,       LeaveNdwSuffix,    kNoDetour,   kNoDetour,       kNoDetour, kNextCaption,   Show::No, Show::Yes},
    {11, PageNdwFiltLines,    LeaveNdwFiltLines, kNoDetour,   kNoDetour,       kNoDetour, kNextCaption,   Show::No, Show::Yes},
    {12, PageNdwFiltOpts,     LeaveNdwFiltOpts,  kNoDetour,   kNoDetour,       kNoDetour, kNextCaption,   Show::No, Show::Yes},
    {13, PageNdwTxTrigger,    LeaveNdwTxTrigger, kNoDetour,   kNoDetour,       kNoDetour, kNextCaption,   Show::No, Show::Yes},
    {14, PageNdwRxName,       LeaveNdwRxName,    kNoDetour,   kNoDetour,       kNoDetour, kNextCaption,   Show::No, Show::Yes},
    {15, PageNdwRxTerm,       LeaveNdwRxTerm,    kNoDetour,   kNoDetour,       kNoDetour, kNextCaption,   Show::No, Show::Yes},
    {16, PageNdwName,         LeaveNdwName,      kNoDetour,   kNoDetour,       kNoDetour, kCreateCaption, Show::No, Show::Yes},
    {17, PageNdwFinal,        LeaveNdwFinal,     kNoDetour,   kNoDetour,       kNoDetour, kFinishCaption, Show::No, Show::Yes},
};
// clang-format on

#pragma once

// The New Device Wizard: its pages and links, one table each, and what it keeps while it runs.

#include "app/Suite.h"
#include "ndw/NdwAnswers.h"
#include "ndw/PortNotes.h"
#include "wizard/Links.h"
#include "wizard/Page.h"

#include <cstdint>
#include <string>
#include <vector>

class frmWizard;

struct NdwSession {
    NdwAnswers answers;
    std::vector<PortNote> ports;           // as the port page shows them; COM1 first
    std::vector<std::wstring> failedFiles; // this run's writes that failed: their names may be tried again
};

extern NdwSession ndwSession;

const PageBook& NdwBook();

// A new session. The answers that have a default get it, all others are 0 or empty.
void NdwSetDefaults();

// What a link of the present page starts.
void NdwHyperlink(frmWizard& form, std::int16_t index);

// In the order of the wizard. The numbers count the steps, too: the first step is the port.
enum NdwPageNo : std::int16_t {
    kNdwIntroductionPage = 1,
    kNdwIntro2Page,
    kNdwPortPage,
    kNdwBaudPage,
    kNdwDataFmtPage,
    kNdwComFmtPage,
    kNdwFlowPage,
    kNdwEOBPage,
    kNdwPrefixPage,
    kNdwSuffixPage,
    kNdwFiltLinesPage,
    kNdwFiltOptsPage,
    kNdwTxTriggerPage,
    kNdwRxNamePage,
    kNdwRxTermPage,
    kNdwNamePage,
    kNdwFinalPage
};

// Builders, the actions that run when their page is left (on any move), and what is looked up before.
void PageNdwIntroduction(frmWizard& form);
void PageNdwIntro2(frmWizard& form);
void PrepareNdwPort(frmWizard& form);
void PageNdwPort(frmWizard& form);
void LeaveNdwPort(frmWizard& form, Move move);
void PageNdwBaud(frmWizard& form);
void LeaveNdwBaud(frmWizard& form, Move move);
void PageNdwDataFmt(frmWizard& form);
void LeaveNdwDataFmt(frmWizard& form, Move move);
void PageNdwComFmt(frmWizard& form);
void LeaveNdwComFmt(frmWizard& form, Move move);
void PageNdwFlow(frmWizard& form);
void LeaveNdwFlow(frmWizard& form, Move move);
void PageNdwEOB(frmWizard& form);
void LeaveNdwEOB(frmWizard& form, Move move);
void PageNdwPrefix(frmWizard& form);
void LeaveNdwPrefix(frmWizard& form, Move move);
void PageNdwSuffix(frmWizard& form);
void LeaveNdwSuffix(frmWizard& form, Move move);
void PageNdwFiltLines(frmWizard& form);
void LeaveNdwFiltLines(frmWizard& form, Move move);
void PageNdwFiltOpts(frmWizard& form);
void LeaveNdwFiltOpts(frmWizard& form, Move move);
void PageNdwTxTrigger(frmWizard& form);
void LeaveNdwTxTrigger(frmWizard& form, Move move);
void PageNdwRxName(frmWizard& form);
void LeaveNdwRxName(frmWizard& form, Move move);
void PageNdwRxTerm(frmWizard& form);
void LeaveNdwRxTerm(frmWizard& form, Move move);
void PageNdwName(frmWizard& form);
void LeaveNdwName(frmWizard& form, Move move);
void PageNdwFinal(frmWizard& form);
void LeaveNdwFinal(frmWizard& form, Move move);

// The page of the ASCII character format is for the ASCII data format only.
bool LeavesOutCharacterFormat();

inline constexpr Detour kNoDetour{};
inline constexpr Detour kPastComFmt{1, LeavesOutCharacterFormat};
inline constexpr Detour kBackPastComFmt{-1, LeavesOutCharacterFormat};

// clang-format off
inline constexpr Page kNdwPages[] = {
    // no                  builder              leave action       on Next      on Back          on Skip    Next's caption  Skip      Back       looks up before
    {kNdwIntroductionPage, PageNdwIntroduction, nullptr,           kNoDetour,   kNoDetour,       kNoDetour, kNextCaption,   Show::No, Show::Yes},
    {kNdwIntro2Page,       PageNdwIntro2,       nullptr,           kNoDetour,   kNoDetour,       kNoDetour, kNextCaption,   Show::No, Show::Yes},
    {kNdwPortPage,         PageNdwPort,         LeaveNdwPort,      kNoDetour,   kNoDetour,       kNoDetour, kNextCaption,   Show::No, Show::Yes, PrepareNdwPort},
    {kNdwBaudPage,         PageNdwBaud,         LeaveNdwBaud,      kNoDetour,   kNoDetour,       kNoDetour, kNextCaption,   Show::No, Show::Yes},
    {kNdwDataFmtPage,      PageNdwDataFmt,      LeaveNdwDataFmt,   kPastComFmt, kNoDetour,       kNoDetour, kNextCaption,   Show::No, Show::Yes},
    {kNdwComFmtPage,       PageNdwComFmt,       LeaveNdwComFmt,    kNoDetour,   kNoDetour,       kNoDetour, kNextCaption,   Show::No, Show::Yes},
    {kNdwFlowPage,         PageNdwFlow,         LeaveNdwFlow,      kNoDetour,   kBackPastComFmt, kNoDetour, kNextCaption,   Show::No, Show::Yes},
    {kNdwEOBPage,          PageNdwEOB,          LeaveNdwEOB,       kNoDetour,   kNoDetour,       kNoDetour, kNextCaption,   Show::No, Show::Yes},
    {kNdwPrefixPage,       PageNdwPrefix,       LeaveNdwPrefix,    kNoDetour,   kNoDetour,       kNoDetour, kNextCaption,   Show::No, Show::Yes},
    {kNdwSuffixPage,       PageNdwSuffix,       LeaveNdwSuffix,    kNoDetour,   kNoDetour,       kNoDetour, kNextCaption,   Show::No, Show::Yes},
    {kNdwFiltLinesPage,    PageNdwFiltLines,    LeaveNdwFiltLines, kNoDetour,   kNoDetour,       kNoDetour, kNextCaption,   Show::No, Show::Yes},
    {kNdwFiltOptsPage,     PageNdwFiltOpts,     LeaveNdwFiltOpts,  kNoDetour,   kNoDetour,       kNoDetour, kNextCaption,   Show::No, Show::Yes},
    {kNdwTxTriggerPage,    PageNdwTxTrigger,    LeaveNdwTxTrigger, kNoDetour,   kNoDetour,       kNoDetour, kNextCaption,   Show::No, Show::Yes},
    {kNdwRxNamePage,       PageNdwRxName,       LeaveNdwRxName,    kNoDetour,   kNoDetour,       kNoDetour, kNextCaption,   Show::No, Show::Yes},
    {kNdwRxTermPage,       PageNdwRxTerm,       LeaveNdwRxTerm,    kNoDetour,   kNoDetour,       kNoDetour, kNextCaption,   Show::No, Show::Yes},
    {kNdwNamePage,         PageNdwName,         LeaveNdwName,      kNoDetour,   kNoDetour,       kNoDetour, kCreateCaption, Show::No, Show::Yes},
    {kNdwFinalPage,        PageNdwFinal,        LeaveNdwFinal,     kNoDetour,   kNoDetour,       kNoDetour, kFinishCaption, Show::No, Show::Yes},
};

inline constexpr LinkRow kNdwLinks[] = {
    // page                index      caption                                        action                     file                     detail
    {kNdwIntroductionPage, kAnyIndex, L"Setup Reference manual",                     LinkAction::Open,          suite::kDeviceReference, nullptr},
    {kNdwIntro2Page,       0,         L"Help: testing communication",                LinkAction::Open,          suite::kCommunication,   nullptr},
    {kNdwIntro2Page,       1,         L"Setup Reference manual",                     LinkAction::Open,          suite::kDeviceManual,    nullptr},
    {kNdwIntro2Page,       2,         L"Varnel DNC Terminal (VTerminal)",            LinkAction::Run,           suite::kTerminal,        nullptr},
    {kNdwPrefixPage,       kAnyIndex, L"Help: character codes",                      LinkAction::Open,          suite::kCharacterCodes,  nullptr},
    {kNdwSuffixPage,       kAnyIndex, L"Help: character codes",                      LinkAction::Open,          suite::kCharacterCodes,  nullptr},
    {kNdwFinalPage,        0,         L"Open in Varnel DNC Configuration (VConfig)", LinkAction::RunWithConfig, suite::kConfigProgram,   nullptr},
    {kNdwFinalPage,        1,         L"Technical notes",                            LinkAction::Open,          suite::kTechNotes,       nullptr},
};
// clang-format on

#pragma once

// The First-Time Setup Wizard: its table of pages, what it keeps while it runs, and its page builders.

#include "ftw/TransmitRoot.h"
#include "wizard/Page.h"

#include <cstdint>
#include <string>
#include <vector>

class frmWizard;

struct FtwSession {
    std::int32_t maxProgress = 0;       // FTSW_MaxProgress as it was at load
    bool keepConfiguration = false;     // the user keeps what is configured
    CncLocation location;               // as typed, without quotation marks
    bool folderExists = false;          // what the confirmation page has found of it
    std::int16_t shortcutChoice = 0xFF; // bit 0 desktop, 1 Start menu, 2 Quick Launch bar
    std::vector<std::wstring> samples;  // entries of the import page's list
    int selectedSamples = 0;            // on the import page, when it was left
};

extern FtwSession ftwSession;

const PageBook& FtwBook();

// A link of the present page was clicked (kFtwLinks).
void FtwHyperlink(frmWizard& form, std::int16_t index);

void PageFtwWelcome(frmWizard& form);
void PageFtwChoose(frmWizard& form);
void PageFtwIntroduction(frmWizard& form);
void PageFtwGetStarted(frmWizard& form);
void PageFtwShortcuts(frmWizard& form);
void PageFtwLocation(frmWizard& form);
void PageFtwConfirmLocation(frmWizard& form);
void PageFtwAboutConfig(frmWizard& form);
void PageFtwImportSample(frmWizard& form);
void PageFtwEditSample(frmWizard& form);
void PageFtwCreateConfig(frmWizard& form);
void PageFtwCaution(frmWizard& form);
void PageFtwBackup(frmWizard& form);
void PageFtwFinal(frmWizard& form);

void PrepareFtwConfirmLocation(frmWizard& form);
void PrepareFtwImportSample(frmWizard& form);

void LeaveFtwGetStarted(frmWizard& form, Move move);
void LeaveFtwShortcuts(frmWizard& form, Move move);
void LeaveFtwLocation(frmWizard& form, Move move);
void LeaveFtwConfirmLocation(frmWizard& form, Move move);
void LeaveFtwImportSample(frmWizard& form, Move move);
void LeaveFtwBackup(frmWizard& form, Move move);
void LeaveFtwFinal(frmWizard& form, Move move);

// Next on the setup-mode page: acts on the chosen mode and moves on by itself.
void ChooseInstallType(frmWizard& form);

// Stores the location and creates its folder. A failed write is told, a failed creation is not.
void SaveTransmitRoot(frmWizard& form);

// Copies the samples that are selected on the import page into the settings folder. Those whose path is too
// long for the shell are left out, and one box names them.
void ImportSelectedSamples(frmWizard& form);

// Without a selected sample there is nothing to edit.
bool NoSampleSelected();

inline constexpr std::int16_t kFtwChoosePage = 2;

// The numbers 4 to 6 belong to no page, so that the stored progress keeps its meaning.
inline constexpr Detour kStraight{};
inline constexpr Detour kPastNumbers{3};
inline constexpr Detour kBackPastNumbers{-3};
inline constexpr Detour kPastOne{1};
inline constexpr Detour kBackPastOne{-1};
inline constexpr Detour kPastEditing{1, NoSampleSelected};

// clang-format off
inline constexpr Page kFtwPages[] = {
    // no  builder                 leave action             on Next       on Back           on Skip       Next's caption  Skip       Back       looks up before
    { 1, PageFtwWelcome,         nullptr,                 kStraight,    kStraight,        kStraight,    kNextCaption,   Show::No,  Show::No },
    { 2, PageFtwChoose,          nullptr,                 kStraight,    kStraight,        kStraight,    kNextCaption,   Show::No,  Show::Yes},
    { 3, PageFtwIntroduction,    nullptr,                 kPastNumbers, kStraight,        kPastNumbers, kNextCaption,   Show::No,  Show::Yes},
    { 7, PageFtwGetStarted,      LeaveFtwGetStarted,      kStraight,    kBackPastNumbers, kStraight,    kNextCaption,   Show::Yes, Show::Yes},
    { 8, PageFtwShortcuts,       LeaveFtwShortcuts,       kStraight,    kStraight,        kStraight,    kNextCaption,   Show::Yes, Show::Yes},
    { 9, PageFtwLocation,        LeaveFtwLocation,        kStraight,    kStraight,        kPastOne,     kNextCaption,   Show::Yes, Show::Yes},
    {10, PageFtwConfirmLocation, LeaveFtwConfirmLocation, kStraight,    kStraight,        kStraight,    kNextCaption,   Show::Yes, Show::Yes, PrepareFtwConfirmLocation},
    {11, PageFtwAboutConfig,     nullptr,                 kStraight,    kBackPastOne,     kStraight,    kNextCaption,   Show::No,  Show::Yes},
    {12, PageFtwImportSample,    LeaveFtwImportSample,    kPastEditing, kStraight,        kPastOne,     kNextCaption,   Show::Yes, Show::Yes, PrepareFtwImportSample},
    {13, PageFtwEditSample,      nullptr,                 kStraight,    kStraight,        kStraight,    kNextCaption,   Show::Yes, Show::Yes},
    {14, PageFtwCreateConfig,    nullptr,                 kStraight,    kBackPastOne,     kStraight,    kNextCaption,   Show::No,  Show::Yes},
    {15, PageFtwCaution,         nullptr,                 kStraight,    kStraight,        kStraight,    kNextCaption,   Show::No,  Show::Yes},
    {16, PageFtwBackup,          LeaveFtwBackup,          kStraight,    kStraight,        kStraight,    kNextCaption,   Show::No,  Show::Yes},
    {17, PageFtwFinal,           LeaveFtwFinal,           kStraight,    kStraight,        kStraight,    kFinishCaption, Show::No,  Show::Yes},
};
// clang-format on

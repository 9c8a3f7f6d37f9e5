#pragma once

// The suite's programs and documents that more than one place of the First-Time Setup Wizard starts. All
// of them lie in the wizard's own folder.

inline constexpr wchar_t kConfigProgram[] = L"VConfig.exe";
inline constexpr wchar_t kTutorial[] = L"QuickTour.chm"; // "Getting Started"

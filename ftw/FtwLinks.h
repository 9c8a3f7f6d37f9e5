#pragma once

// The links of the First-Time Setup Wizard's pages.

#include "app/Suite.h"
#include "wizard/Links.h"

// clang-format off
inline constexpr LinkRow kFtwLinks[] = {
    // page, index, caption                                 action                  file                     detail
    { 7, 0,         L"View help file: \"Getting Started\"", LinkAction::Open,       suite::kTutorial,        nullptr},
    { 8, kAnyIndex, L"Varnel DNC Shortcut Manager",         LinkAction::Run,        suite::kLinkManager,     nullptr},
    { 9, 0,         L"Browse existing folders",             LinkAction::Browse,     nullptr,                 nullptr},
    { 9, 1,         L"Default folder",                      LinkAction::UseDefault, nullptr,                 nullptr},
    {13, 0,         L"Varnel DNC Configuration (VConfig)",  LinkAction::Run,        suite::kConfigProgram,   nullptr},
    {14, 0,         L"Start Varnel DNC New Device Wizard",  LinkAction::Run,        suite::kWizard,          L" /NDW /SHIFT"},
    {14, 2,         L"Configuration Guide",                 LinkAction::Open,       suite::kSetupReference,  nullptr},
    {15, 0,         L"Hibernation and power problems",      LinkAction::Topic,      suite::kLinkCheck,       L"Problem - Hibernation.htm"},
    {15, 1,         L"USB/serial adapter problems",         LinkAction::Topic,      suite::kLinkCheck,       L"Problem - USB-Serial.htm"},
    {15, 2,         L"More common problems",                LinkAction::Topic,      suite::kLinkCheck,       L"Problem_Index.htm"},

    // No page shows these.
    { 7, kAnyIndex, nullptr,                                LinkAction::Run,        suite::kConfigProgram,   L" /Manager"},
    {11, 0,         nullptr,                                LinkAction::Open,       suite::kSetupReference,  nullptr},
    {13, 1,         nullptr,                                LinkAction::Open,       suite::kSetupReference,  nullptr},
    {14, 1,         nullptr,                                LinkAction::Run,        suite::kConfigProgram,   nullptr},
    {16, 0,         nullptr,                                LinkAction::Open,       suite::kTourGuide,       nullptr},
    {17, 0,         nullptr,                                LinkAction::Open,       suite::kOperatorGuide,   nullptr},
    {17, 1,         nullptr,                                LinkAction::Run,        suite::kFileManager,     nullptr},
    {17, 2,         nullptr,                                LinkAction::Run,        suite::kConfigProgram,   L" /GENERAL"},
};
// clang-format on

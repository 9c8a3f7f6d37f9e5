#include "app/CommandLine.h"

#include "app/AsciiCase.h"

#include <algorithm>

namespace {

// `word` is in capitals.
bool Occurs(std::wstring_view text, std::wstring_view word) {
    return std::search(text.begin(), text.end(), word.begin(), word.end(),
                       [](wchar_t a, wchar_t b) { return AsciiUpper(a) == b; }) != text.end();
}

} // namespace

// The text is not taken apart into words: quotation marks and whatever stands around a switch cannot hide it.
StartUpState ParseCommandLine(std::wstring_view text) {
    StartUpState state;
    const bool isNewDevice = Occurs(text, L"/NDW");
    state.WizardMode = isNewDevice ? kNewDevice : kFirstTimeSetup;
    state.ConfigLaunch = Occurs(text, L"/VCONFIG");
    state.WizardTitle = isNewDevice ? kNdwTitle : kFtwTitle;
    // The First-Time Setup Wizard keeps the middle of the screen: the other one opens beside it.
    state.ShiftWindow = isNewDevice && Occurs(text, L"/SHIFT");
    return state;
}

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

CommandLine ParseCommandLine(std::wstring_view text) {
    CommandLine line;
    line.configLaunch = Occurs(text, L"/VCONFIG");
    if (Occurs(text, L"/NDW")) {
        line.wizardMode = 1;
        line.wizardTitle = kNdwTitle;
        line.shiftWindow = Occurs(text, L"/SHIFT");
    }
    return line;
}

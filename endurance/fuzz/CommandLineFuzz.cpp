#include "app/CommandLine.h"
#include "endurance/fuzz/Fuzz.h"

namespace {

// The rule once more, the slow way: every place, every letter.
bool Holds(const std::wstring& text, std::wstring_view capitals) {
    for (std::size_t at = 0; at + capitals.size() <= text.size(); ++at) {
        std::size_t same = 0;
        while (same < capitals.size() &&
               (text[at + same] == capitals[same] ||
                (capitals[same] != L'/' && text[at + same] == (capitals[same] | 32)))) {
            ++same;
        }
        if (same == capitals.size()) return true;
    }
    return false;
}

} // namespace

void Examine(Generator& from) {
    constexpr std::wstring_view kWords[] = {L"/NDW", L"/shift", L"/VConfig", L"/nd", L" ", L"w", L"/V"};
    std::wstring text;
    while (!from.Done()) {
        text += from.Below(4) == 0 ? from.Text(5, L"/nNdDwW\0\u0130") : std::wstring(from.OneOf(kWords));
    }
    const StartUpState state = ParseCommandLine(text);
    const bool ndw = Holds(text, L"/NDW");
    REQUIRE(state.WizardMode == (ndw ? 1 : 0));
    REQUIRE(state.WizardTitle == (ndw ? kNdwTitle : kFtwTitle));
    REQUIRE(state.ConfigLaunch == Holds(text, L"/VCONFIG"));
    REQUIRE(state.ShiftWindow == (ndw && Holds(text, L"/SHIFT")));
}

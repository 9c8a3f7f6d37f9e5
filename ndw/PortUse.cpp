#include "ndw/PortUse.h"

std::wstring PortCaption(int number, bool onComputer, std::wstring_view usedBy) {
    std::wstring caption = L"COM" + std::to_wstring(number);
    if (onComputer) caption += L" - on this computer";
    if (!usedBy.empty()) {
        caption += onComputer ? L", used by " : L" - used by ";
        caption += usedBy;
    }
    return caption;
}

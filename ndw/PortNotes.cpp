#include "ndw/PortNotes.h"

#include "ndw/NdwAnswers.h"
#include "ndw/PortUse.h"

std::vector<std::wstring> PortCaptions() {
    std::vector<std::wstring> captions;
    for (int number = 1; number <= kPortCount; ++number)
        captions.push_back(PortCaption(number, false, L""));
    return captions;
}

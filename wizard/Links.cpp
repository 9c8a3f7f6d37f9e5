#include "wizard/Links.h"

#include "app/Launch.h"

#include <string>

bool StartLink(const LinkRow& link) {
    const std::wstring detail = link.detail ? link.detail : L"";
    switch (link.action) {
    case LinkAction::Run:
        RunProgram(link.file, detail);
        return true;
    case LinkAction::Open:
        OpenDocument(link.file);
        return true;
    case LinkAction::Topic:
        ShowHelpTopic(link.file, detail);
        return true;
    default: // these need the form
        return false;
    }
}

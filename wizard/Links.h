#pragma once

// The links of a wizard's pages: one table a wizard, from which a page takes the captions that it shows and
// a click what it starts, so that the two cannot part.

#include <cstdint>
#include <span>

enum class LinkAction : std::int8_t {
    Run,           // `file` is a program beside the wizard, `detail` its arguments with the blank in front
    Open,          // `file` is a document beside the wizard
    Topic,         // `file` is a help file beside the wizard, `detail` the topic
    RunWithConfig, // as Run, with a blank and the name of the new configuration
    Browse,        // the folder dialog, for the text box of the page
    UseDefault     // the folder that is offered, into the text box of the page
};

inline constexpr std::int16_t kAnyIndex = -1;

// A page shows each of its rows that has a caption as the link of that index, kAnyIndex as link 0. A row
// without one answers clicks only.
struct LinkRow {
    std::int16_t page;
    std::int16_t index;
    const wchar_t* caption; // null: no page shows it
    LinkAction action;
    const wchar_t* file;   // null for Browse and UseDefault
    const wchar_t* detail; // null for none
};

// The first row that fits decides; null when none does.
constexpr const LinkRow* FindLink(std::span<const LinkRow> links, std::int16_t page, std::int16_t index) {
    for (const LinkRow& link : links)
        if (link.page == page && (link.index == index || link.index == kAnyIndex)) return &link;
    return nullptr;
}

// Does what Run, Open and Topic say. False, with nothing done, for the actions that need the form.
bool StartLink(const LinkRow& link);

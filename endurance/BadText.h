#pragma once

// Texts that break programs, tried wherever the wizards take one: as the name of a configuration, as a
// folder, in the inputs of a page, in the registry.

#include <string>
#include <vector>

enum class As { File, Refused }; // what a name of that text has to become

struct BadText {
    std::wstring text;
    As name;
};

// At least 120, all different.
const std::vector<BadText>& BadTexts();

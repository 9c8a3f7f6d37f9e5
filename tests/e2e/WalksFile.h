#pragma once

#include <map>
#include <string>
#include <vector>

struct WalkLine {
    int number; // in the file
    std::wstring text;
};

// tests/e2e/walks.txt by the names of its walks. "== name" begins one; one in brackets is a part of others.
// Lines that begin with "#" are remarks.
const std::map<std::wstring, std::vector<WalkLine>>& AllWalks();

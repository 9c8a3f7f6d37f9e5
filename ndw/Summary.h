#pragma once

#include "ndw/NdwAnswers.h"

#include <string>

// The answers in eight short lines with CR LF between them, for a last look before the file is made: what
// will be stored, no more and no less. What the user typed stands in it as it is, "<" included. An index
// that no page offers shows as "?".
std::wstring SummaryText(const NdwAnswers& answers);

#pragma once

#include "ndw/NdwAnswers.h"
#include "ndw/modDcp.h"

#include <string_view>

// Stores the answers in records that hold the defaults. An empty `iconName` keeps the default icon. A
// trigger, naming or end of reception that no page offers leaves the defaults (but turns the naming on).
// Texts that are too long are cut.
void FillDcpRecords(DcpRecords& records, const NdwAnswers& answers, std::wstring_view iconName);

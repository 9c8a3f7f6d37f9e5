#pragma once

// The sample configurations that are shipped: for each kind of control the answers that its owner would
// give in the New Device Wizard. They are starting points for a class of machine, not for any maker's.

#include "ndw/NdwAnswers.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

namespace samples {

enum Code : std::int16_t { kIso, kEia, kAscii };
enum Format : std::int16_t { k7N, k8N, k7E, k8E, k7O, k8O }; // data bits and parity, with kAscii only
enum Flow : std::int16_t { kNoFlow, kXonXoff, kRtsCts };
enum EndOfBlock : std::int16_t { kCrLf, kLf, kCr };
enum Trigger : std::int16_t { kAtOnce, kOnCts, kOnXon, kOnAny };
enum Naming : std::int16_t { kONumber, kOText, kOLine, kColon4, kColonOwn, kColonRest, kDollar, kDollarMin };
enum Termination : std::int16_t { kManual, k2Seconds, k30Seconds };

// Codes before and after a program, as bits of the pages' check boxes.
enum Prefix : std::int16_t { kPercentEob = 2 | 4, kEobPercentEob = 1 | 2 | 4, kPunchOn = 8 };
enum Suffix : std::int16_t { kPercent = 2, kEobPercent = 1 | 2, kEot = 4, kPunchOff = 8 };

struct Sample {
    std::wstring_view kind; // of control; the name begins with it
    std::wstring_view icon; // file name without ".ICO"
    Code code;
    Format format;
    int baudRate; // one of kBaudRates
    Flow flow;
    EndOfBlock endOfBlock;
    std::int16_t prefix;
    std::int16_t suffix;
    Trigger trigger;
    Naming naming;
    Termination termination;
};

// clang-format off
inline constexpr Sample kSamples[] = {
    // kind          icon        code    format  baud  flow      block  before           after        trigger  naming      end of reception
    {L"Lathe",       L"LATHE",   kIso,   k7E,    4800, kXonXoff, kCrLf, kPercentEob,     kPercent,    kOnXon,  kONumber,   k2Seconds},
    {L"Lathe",       L"LATHE",   kIso,   k7E,    9600, kRtsCts,  kLf,   kPercentEob,     kPercent,    kOnCts,  kONumber,   k2Seconds},
    {L"Lathe",       L"LATHE",   kEia,   k7E,    2400, kXonXoff, kCr,   kPercentEob,     kPercent,    kOnXon,  kColon4,    k30Seconds},
    {L"Mill",        L"MILL",    kIso,   k7E,    4800, kXonXoff, kLf,   kEobPercentEob,  kPercent,    kOnXon,  kONumber,   k2Seconds},
    {L"Mill",        L"MILL",    kIso,   k7E,   19200, kRtsCts,  kLf,   kPercentEob,     kPercent,    kOnCts,  kOText,     k2Seconds},
    {L"Mill",        L"MILL",    kEia,   k7E,    4800, kRtsCts,  kCr,   kPercentEob,     kPercent,    kOnCts,  kColonRest, k30Seconds},
    {L"Drill",       L"DRILL",   kIso,   k7E,    2400, kXonXoff, kCrLf, kPercentEob,     kPercent,    kOnXon,  kONumber,   k30Seconds},
    {L"Grinder",     L"GRINDER", kIso,   k7E,    4800, kXonXoff, kCrLf, kPercentEob,     kEobPercent, kOnXon,  kOLine,     k30Seconds},
    {L"EDM",         L"EDM",     kIso,   k7E,    4800, kXonXoff, kLf,   kPercentEob,     kPercent,    kOnXon,  kONumber,   k2Seconds},
    {L"Gear Hobber", L"GEAR",    kEia,   k7E,    1200, kXonXoff, kCr,   kPercentEob,     kPercent,    kOnXon,  kColon4,    k30Seconds},
    {L"Punch Press", L"PUNCH",   kIso,   k7E,    2400, kXonXoff, kCrLf, kPercentEob,     kPercent,    kOnXon,  kDollar,    k2Seconds},
    {L"Press Brake", L"PRESS",   kAscii, k8N,    9600, kXonXoff, kCrLf, 0,               kEot,        kAtOnce, kDollarMin, k2Seconds},
    {L"Laser",       L"LASER",   kAscii, k8N,   38400, kRtsCts,  kCrLf, 0,               0,           kOnCts,  kONumber,   k2Seconds},
    {L"Plasma",      L"PLASMA",  kAscii, k7E,    9600, kXonXoff, kCrLf, kPercentEob,     kPercent,    kOnXon,  kONumber,   k2Seconds},
    {L"Router",      L"ROUTER",  kAscii, k8N,   19200, kRtsCts,  kCrLf, kPercentEob,     kPercent,    kOnCts,  kColonOwn,  k2Seconds},
    {L"Robot",       L"ROBOT",   kAscii, k8N,   19200, kXonXoff, kCrLf, 0,               kEot,        kOnAny,  kONumber,   kManual},
    {L"Saw",         L"SAW",     kAscii, k7O,    4800, kXonXoff, kCrLf, 0,               0,           kAtOnce, kONumber,   kManual},
    {L"Tape Punch",  L"TAPE",    kEia,   k7E,     300, kNoFlow,  kCr,   kPunchOn,        kPunchOff,   kAtOnce, kONumber,   kManual},
};
// clang-format on

inline NdwAnswers AnswersOf(const Sample& sample) {
    const auto rate = std::find(kBaudRates.begin(), kBaudRates.end(), std::to_wstring(sample.baudRate));
    NdwAnswers answers;
    answers.baudIndex = static_cast<std::int16_t>(rate - kBaudRates.begin());
    answers.dataFormatIndex = sample.code;
    answers.characterFormatIndex = sample.format;
    answers.flowControlIndex = sample.flow;
    answers.endOfBlockIndex = sample.endOfBlock;
    answers.prefixChoice = sample.prefix;
    answers.suffixChoice = sample.suffix;
    answers.transmitTriggerIndex = sample.trigger;
    answers.receiveNamingIndex = sample.naming;
    answers.receiveTerminationIndex = sample.termination;
    return answers;
}

// What tells the samples of one kind apart: "Lathe ISO 4800 XON-XOFF", "Saw ASCII 7O 4800 XON-XOFF".
inline std::wstring NameOf(const Sample& sample) {
    constexpr std::wstring_view kCodes[] = {L"ISO", L"EIA", L"ASCII"};
    constexpr std::wstring_view kFormats[] = {L"7N", L"8N", L"7E", L"8E", L"7O", L"8O"};
    constexpr std::wstring_view kFlows[] = {L"", L" XON-XOFF", L" RTS-CTS"};
    std::wstring name(sample.kind);
    name += L' ';
    name += kCodes[sample.code];
    if (sample.code == kAscii) name += L" " + std::wstring(kFormats[sample.format]);
    name += L' ' + std::to_wstring(sample.baudRate);
    name += kFlows[sample.flow];
    return name;
}

} // namespace samples

#pragma once

#include "ndw/FixedText.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

// A device configuration file (.DCP) in memory: four records without padding, described in
// docs/dcp-format.md. Fields whose meaning only the programs that read the file know are named by their
// offset. Flags are -1 or 0. A text holds code 0 until it is assigned; one that never is becomes zero bytes
// in the file.

inline constexpr wchar_t kDcpSignature[] = L"VDNCW32A ";
inline constexpr wchar_t kEndOfFileMarker[] = L"\x1A"; // where text viewers stop
inline constexpr std::size_t kDcpFileSize = 5449;

struct DcpHeader {
    FixedText<9> signature; // kDcpSignature
    FixedText<40> unknown9;
    FixedText<1> endOfFileMarker; // kEndOfFileMarker
    std::int16_t unknown50 = 0;
    FixedText<20> unknown52;
    std::int16_t unknown72 = 0;
    FixedText<10> unknown74;
    FixedText<30> unknown84;
    FixedText<64> iconName;      // file name of the icon with its extension; "Varnel" for the standard icon
    std::int16_t portNumber = 0; // 1 is COM1
    std::int16_t unknown180 = 0;
    std::int16_t unknown182 = 0;
    std::int16_t baudA = 0;     // index of kBaudRates
    std::int16_t parityA = 0;   // 0 none, 1 even, 2 odd
    std::int16_t dataBitsA = 0; // 0 for 7, 1 for 8
    std::int16_t unknown190 = 0;
    std::int16_t flowControlA = 0; // index of kFlowControls
    std::int16_t dataFormatA = 0;  // index of kDataFormats
    std::int16_t baudB = 0;        // the second line has the values of the first
    std::int16_t parityB = 0;
    std::int16_t dataBitsB = 0;
    std::int16_t unknown202 = 0;
    std::int16_t flowControlB = 0;
    std::int16_t dataFormatB = 0;
    std::int16_t sendsLf = 0; // the end of block, as two flags
    std::int16_t sendsCr = 0;
    std::int16_t unknown212 = 0;
    FixedText<4> unknown214;
    std::int16_t unknown218 = 0;
    FixedText<20> unknown220;
    FixedText<10> transmitPrefix; // codes in caret notation
    FixedText<10> transmitSuffix;
    FixedText<20> unknown260;
    FixedText<40> unknown280;
    FixedText<40> unknown320;
    std::int16_t unknown360 = 0;
    std::int16_t unknown362 = 0;
    FixedText<20> unknown364;
    FixedText<20> unknown384;
    FixedText<40> unknown404;
    FixedText<40> unknown444;
    std::int16_t unknown484 = 0;
    FixedText<10> removedLines;       // marks lines to leave out
    FixedText<1> removesBlankLines;   // "1" or blank
    std::int16_t removesComments = 0; // 3 or 0
    std::int16_t toUpperCase = 0;     // a flag
    std::int16_t removesSpaces = 0;   // 1 or 0
    std::int16_t unknown503 = 0;
    std::int16_t unknown505 = 0;
    std::int16_t unknown507 = 0;
    std::int16_t unknown509 = 0;
    std::int16_t unknown511 = 0;
    std::int16_t transmitTrigger = 0; // kTriggerCodes in DcpFromAnswers.cpp
    std::int16_t unknown515 = 0;
    std::int16_t unknown517 = 0;
    std::int16_t unknown519 = 0;
    FixedText<256> unknown521;
    std::int16_t unknown777 = 0;
    FixedText<10> unknown779;
    FixedText<10> unknown789;
    FixedText<10> receiveTimeout;        // seconds, as text
    std::int16_t receiveTermination = 0; // 0 manual, 3 time-out
    FixedText<8> unknown811;
    std::int16_t unknown819 = 0;
    FixedText<256> unknown821;
    std::int16_t unknown1077 = 0;
    std::int16_t namesReceived = 0; // a flag
    FixedText<10> namingMarker;     // kNamingFormats in DcpFromAnswers.cpp, as the next three
    std::int16_t namingLine = 0;
    FixedText<10> namingStart;
    FixedText<2> namingEnd;
    FixedText<10> receivePrefix;
    FixedText<7> unknown1115;
    FixedText<3> receiveExtension;
};

struct DcpRecord2 {
    FixedText<4> unknown0;
    std::int16_t unknown4 = 0;
    FixedText<20> unknown6;
    std::int16_t unknown26 = 0;
    FixedText<10> unknown28;
    std::int16_t unknown38 = 0;
    FixedText<10> removedLines; // the header's field of this name
    FixedText<90> unknown50;
};

struct DcpRecord3 {
    FixedText<2500> unknown0;
};

struct DcpTableEntry {
    FixedText<10> first;
    FixedText<10> second;
    FixedText<10> third;
};

using DcpTable = std::array<DcpTableEntry, 32>;

struct DcpRecord4 {
    std::int16_t unknown0 = 0;
    std::int16_t unknown2 = 0;
    FixedText<256> unknown4;
    DcpTable entries;
    FixedText<1> unknown1220;
    FixedText<40> unknown1221;
    FixedText<10> unknown1261;
    FixedText<10> unknown1271;
    std::int16_t unknown1281 = 0;
    FixedText<121> unknown1283;
    std::int16_t unknown1404 = 0;
    std::int16_t unknown1406 = 0;
    FixedText<254> unknown1408;
    std::int16_t unknown1662 = 0;
    FixedText<10> unknown1664;
    FixedText<10> unknown1674;
};

struct DcpRecords {
    DcpHeader header;
    DcpRecord2 record2;
    DcpRecord3 record3;
    DcpRecord4 record4;
};

// The records of the configuration being made. They outlive a failed write.
extern DcpRecords dcpRecords;

// Give every field that has a default its default, and leave the others as they are.
void SetDcpHeaderDefaults(DcpHeader& header);
void SetDcpRecord4Defaults(DcpRecord4& record);

// The last touch before the records become bytes: the end-of-file marker, and the copy of the header's
// `removedLines` in record 2.
void PrepareForWriting(DcpRecords& records);

// One character as one byte of the file, which holds ANSI text. Code 0 must give 0.
using AnsiByte = unsigned char (*)(wchar_t);

// The file: the records as they are, field after field, integers little-endian.
std::array<unsigned char, kDcpFileSize> DcpBytes(const DcpRecords& records, AnsiByte ansiByte);

// The way back: each byte of a text becomes the character with that code. False, with nothing changed,
// unless `bytes` has the length of a configuration file and begins with the signature.
bool ReadDcpBytes(std::span<const unsigned char> bytes, DcpRecords& records);

// The port number of a configuration file of the right length and signature, in range or not; nothing
// for anything else.
std::optional<std::int16_t> DcpPortNumber(std::span<const unsigned char> bytes);

// The New Device Wizard as a person uses it: the real program, its windows, its files.

#include "tests/ndw/DcpByHand.h"
#include "tests/support/DemoSuite.h"
#include "tests/support/WizardDriver.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

namespace {

constexpr const wchar_t* kDataFormats[] = {L"ISO", L"EIA-244", L"ASCII"};
constexpr const wchar_t* kCharacterFormats[] = {L"7 data bits, no parity",   L"8 data bits, no parity",
                                                L"7 data bits, even parity", L"8 data bits, even parity",
                                                L"7 data bits, odd parity",  L"8 data bits, odd parity"};
constexpr const wchar_t* kFlowControls[] = {L"None", L"Software (XON/XOFF)", L"Hardware (RTS/CTS)"};
constexpr const wchar_t* kEndsOfBlock[] = {L"CR + LF", L"LF Only", L"CR Only"};
constexpr const wchar_t* kPrefixes[] = {L"End of block", L"% (percent sign)", L"End of block (after the %)",
                                        L"DC2 (tape punch on)"};
constexpr const wchar_t* kSuffixes[] = {L"End of block", L"% (percent sign)",
                                        L"EOT (end of transmission, Ctrl+D)", L"DC4 (tape punch off, Ctrl+T)",
                                        L"SUB (end of file, Ctrl+Z)"};
constexpr const wchar_t* kFilters[] = {L"Remove spaces", L"Remove comments", L"Remove blank lines",
                                       L"Convert to upper case"};
constexpr const wchar_t* kTriggers[] = {L"Start at once", L"When the CNC turns on its hardware signal (CTS)",
                                        L"When the CNC sends XON (DC1)", L"When the CNC sends any character"};
constexpr const wchar_t* kTerminations[] = {L"Manually, by the operator", L"Automatically, after 2 seconds",
                                            L"Automatically, after 30 seconds"};

constexpr int kAsIs = -1; // leave the page as it opens

struct Answers {
    int port = kAsIs, baud = kAsIs, data = kAsIs, character = kAsIs, flow = kAsIs, endOfBlock = kAsIs;
    int prefix = 0, suffix = 0; // bits
    const wchar_t* removed = L"";
    int filters = 0; // bits
    int trigger = kAsIs, naming = kAsIs;
    const wchar_t *namePrefix = L"", *extension = L"";
    int termination = kAsIs;
};

template <std::size_t N>
void ChooseOne(const WizardDriver& wizard, const wchar_t* const (&captions)[N], int index) {
    if (index != kAsIs) wizard.Choose(captions[index]);
}

template <std::size_t N>
void CheckBits(const WizardDriver& wizard, const wchar_t* const (&captions)[N], int bits) {
    for (std::size_t i = 0; i < N; ++i)
        if ((bits >> i & 1) != 0) wizard.Check(captions[i], true);
}

void WalkFromPortToTrigger(const WizardDriver& wizard, const Answers& answers) {
    if (answers.port != kAsIs) wizard.Select(L"&COM port", answers.port);
    wizard.Next(L"Baud Rate");
    if (answers.baud != kAsIs) wizard.Select(L"&Baud rate", answers.baud);
    wizard.Next(L"Data Format");
    ChooseOne(wizard, kDataFormats, answers.data);
    if (wizard.IsChecked(L"ASCII")) {
        wizard.Next(L"ASCII Character Format");
        ChooseOne(wizard, kCharacterFormats, answers.character);
    }
    wizard.Next(L"Flow Control");
    ChooseOne(wizard, kFlowControls, answers.flow);
    wizard.Next(L"End of Block");
    ChooseOne(wizard, kEndsOfBlock, answers.endOfBlock);
    wizard.Next(L"Transmit Prefix");
    CheckBits(wizard, kPrefixes, answers.prefix);
    wizard.Next(L"Transmit Suffix");
    CheckBits(wizard, kSuffixes, answers.suffix);
    wizard.Next(L"Line Removal");
    wizard.Type(L"&Remove lines marked with", answers.removed);
    wizard.Next(L"Filter Options");
    CheckBits(wizard, kFilters, answers.filters);
    wizard.Next(L"Transmit Trigger");
    ChooseOne(wizard, kTriggers, answers.trigger);
}

// From the port page to the name page.
void Walk(const WizardDriver& wizard, const Answers& answers) {
    WalkFromPortToTrigger(wizard, answers);
    wizard.Next(L"Receive File Name");
    if (answers.naming != kAsIs) wizard.SelectInList(L"&Take the name from", answers.naming);
    wizard.Type(L"Name &prefix", answers.namePrefix);
    wizard.Type(L"File &extension", answers.extension);
    wizard.Next(L"End of Reception");
    ChooseOne(wizard, kTerminations, answers.termination);
    wizard.Next(L"Configuration Name");
    EXPECT_EQ(wizard.Step(), L"Step 14/14");
}

void GoToPortPage(const WizardDriver& wizard) {
    wizard.WaitForPage(L"New CNC Configuration");
    wizard.Next(L"Before You Begin");
    wizard.Next(L"COM Port");
}

void Create(const WizardDriver& wizard, const wchar_t* name) {
    wizard.Type(L"Configuration &name", name);
    wizard.Next(L"Finished");
}

void Finish(const WizardDriver& wizard) {
    wizard.Click(L"&Finish");
    EXPECT_EQ(wizard.WaitForExit(), 0);
}

// The first difference is easier to read than two times 5449 bytes.
void ExpectBytes(const std::string& made, const std::string& expected) {
    ASSERT_EQ(made.size(), 5449u);
    const auto [m, e] = std::mismatch(made.begin(), made.end(), expected.begin());
    if (m == made.end()) return;
    const auto offset = static_cast<std::size_t>(m - made.begin());
    ADD_FAILURE() << "at offset " << offset << ": " << testing::PrintToString(made.substr(offset, 12))
                  << " instead of " << testing::PrintToString(expected.substr(offset, 12));
}

std::wstring Own(const wchar_t* name) { return std::wstring(name) + L".DCP"; }

struct Place {
    std::size_t offset;
    const char* hex; // pairs of digits
};

struct Row {
    const wchar_t* name;
    Answers answers;
    std::vector<Place> places; // where the file differs from the one with the answers the wizard starts with
};

// clang-format off
const Row kRows[] = {
    {L"As it opens", {}, {}},
    {L"ASCII, LF, all bits, %MIN",
        {.port = 255, .baud = 11, .data = 2, .character = 5, .flow = 2, .endOfBlock = 1, .prefix = 15, .suffix = 31,
         .removed = L"  (N ", .filters = 15, .trigger = 3, .naming = 7, .namePrefix = L"P", .extension = L".nc",
         .termination = 1},
        {{178, "00 01"},                                              // COM256
         {184, "0B 00  02 00  01 00  01 00  02 00  02 00"},           // 115200, odd, 8 bits, -, RTS/CTS, ASCII
         {196, "0B 00  02 00  01 00  01 00  02 00  02 00"},
         {208, "FF FF  00 00"},                                       // LF only
         {240, "5E 4A 25 5E 4A 5E 52 20 20 20"},                      // ^J%^J^R
         {250, "5E 4A 25 5E 44 5E 54 5E 5A 20"},                      // ^J%^D^T^Z
         {486, "28 4E 20 20"},                                        // (N
         {496, "31  03 00  FF FF  01 00"},                            // all filters
         {513, "FE FF"},                                              // any character
         {799, "32 20  20 20 20 20 20 20 20 20  03 00"},              // 2 seconds
         {1081, "24 20"}, {1093, "32 20"}, {1103, "2E 20"},           // $, 2, .
         {1105, "50 20"}, {1122, "4D 49 4E"},                         // P, MIN
         {1165, "28 4E 20 20"}}},
    {L"EIA, CR, all codes, % line",
        {.port = 2, .baud = 0, .data = 1, .flow = 0, .endOfBlock = 2, .prefix = 15, .suffix = 31,
         .filters = 1, .trigger = 1, .naming = 9, .termination = 2},
        {{178, "03 00"},
         {184, "00 00  01 00  00 00  01 00  00 00  01 00"},
         {196, "00 00  01 00  00 00  01 00  00 00  01 00"},
         {208, "00 00  FF FF"},                                       // CR only
         {240, "5E 4D 25 5E 4D 5E 52 20 20 20"},                      // ^M%^M^R
         {250, "5E 4D 25 5E 44 5E 54 5E 5A 20"},                      // ^M%^D^T^Z
         {501, "01 00"},
         {513, "FD FF"},                                              // CTS
         {799, "33 30  20 20 20 20 20 20 20 20  03 00"},              // 30 seconds
         {1081, "25 20"}, {1091, "02 00"}, {1093, "28 20"}, {1103, "29 20"}}}, // %, second line, ( and )
    {L"ISO, CR LF, codes too long, no name",
        {.data = 0, .endOfBlock = 0, .prefix = 15, .suffix = 31, .filters = 4, .trigger = 0, .naming = 11,
         .namePrefix = L"LATHE-1234"},
        {{240, "5E 4D 5E 4A 25 5E 4D 5E 4A 5E"},                      // ^M^J%^M^J^R cut
         {250, "5E 4D 5E 4A 25 5E 44 5E 54 5E"},                      // ^M^J%^D^T^Z cut
         {496, "31"},
         {513, "FF FF"},                                              // at once
         {1079, "00 00"}, {1103, "20 20"},                            // naming off
         {1105, "4C 41 54 48 45 2D 31 32 33 34"}}},
    {L"ASCII, 8 bits, own prefix",
        {.port = 0, .baud = 9, .data = 2, .character = 1, .prefix = 2, .suffix = 4, .filters = 10, .trigger = 2,
         .naming = 4, .namePrefix = L"M7", .termination = 0},
        {{184, "09 00  00 00  01 00  01 00  01 00  02 00"},
         {196, "09 00  00 00  01 00  01 00  01 00  02 00"},
         {240, "25"},
         {250, "5E 44"},                                              // ^D
         {497, "03 00  FF FF  00 00"},
         {1081, "3A"}, {1093, "32"}, {1103, "34 20"}, {1105, "4D 37"}}},
};
// clang-format on

std::string Expected(const Row& row) {
    DcpByHand file;
    for (const Place& place : row.places)
        file.With(place.offset, DcpByHand::Hex(place.hex));
    return file.Bytes();
}

} // namespace

TEST(NdwWalk, WritesTheAnswers) {
    for (const Row& row : kRows) {
        SCOPED_TRACE(Utf8(row.name));
        const DemoSuite suite;
        const WizardDriver wizard(suite, L"/NDW");
        GoToPortPage(wizard);
        Walk(wizard, row.answers);
        Create(wizard, row.name);
        EXPECT_NE(wizard.PageText().find(row.name), std::wstring::npos);
        Finish(wizard);
        EXPECT_EQ(FileNames(suite.Settings()), (std::vector{Own(row.name), std::wstring(L"VarnelDnc.ini")}));
        ExpectBytes(FileBytes(suite.Settings() + Own(row.name)), Expected(row));
        EXPECT_EQ(suite.StartCount(), 0u);
    }
}

TEST(NdwWalk, BackAndForthKeepsTheAnswers) {
    const DemoSuite suite;
    const WizardDriver wizard(suite, L"/NDW");
    GoToPortPage(wizard);
    const Row& row = kRows[1];
    Walk(wizard, row.answers);
    for (const wchar_t* heading :
         {L"End of Reception", L"Receive File Name", L"Transmit Trigger", L"Filter Options", L"Line Removal",
          L"Transmit Suffix", L"Transmit Prefix", L"End of Block", L"Flow Control", L"ASCII Character Format",
          L"Data Format", L"Baud Rate", L"COM Port"})
        wizard.Back(heading);
    EXPECT_EQ(wizard.Selected(L"&COM port"), 255);
    // Answers that are left alone stay, and texts are typed anew.
    Walk(wizard, {.removed = row.answers.removed, .namePrefix = row.answers.namePrefix});
    Create(wizard, L"Again");
    ExpectBytes(FileBytes(suite.Settings() + L"Again.DCP"), Expected(row));
}

TEST(NdwWalk, NewMakesASecondConfiguration) {
    const DemoSuite suite;
    const WizardDriver wizard(suite, L"/NDW");
    GoToPortPage(wizard);
    Walk(wizard, kRows[2].answers);
    Create(wizard, L"First");
    wizard.Click(L"&New");
    wizard.WaitForPage(L"COM Port");
    EXPECT_TRUE(wizard.Has(L"< Back"));
    EXPECT_EQ(wizard.Step(), L"Step 1/14");
    EXPECT_EQ(wizard.Selected(L"&COM port"), 2);
    Walk(wizard, {.port = 6});
    EXPECT_EQ(wizard.Typed(L"Configuration &name"), L"");
    Create(wizard, L"Second");
    Finish(wizard);
    ExpectBytes(FileBytes(suite.Settings() + L"First.DCP"), Expected(kRows[2]));
    Row second = kRows[2];
    second.places.push_back({178, "07 00"});
    ExpectBytes(FileBytes(suite.Settings() + L"Second.DCP"), Expected(second));
}

TEST(NdwWalk, StartedFromVConfig) {
    const DemoSuite suite;
    const WizardDriver wizard(suite, L"/NDW /VCONFIG");
    GoToPortPage(wizard);
    Walk(wizard, {});
    Create(wizard, L"Mill 3");
    EXPECT_FALSE(wizard.Has(L"&New"));
    EXPECT_FALSE(wizard.Has(L"< Back"));
    Finish(wizard);
    const Start start = suite.WaitForStarts(L"VConfig.exe").front();
    EXPECT_EQ(start.commandLine, suite.Quoted(L"VConfig.exe") + L" Mill 3");
    EXPECT_EQ(start.folder + L"\\", suite.Folder());
    EXPECT_EQ(start.show, SW_SHOWNORMAL);
    EXPECT_EQ(suite.StartCount(), 1u);
}

TEST(NdwWalk, NamesThatAreRefused) {
    const std::wstring invalid =
        L"The name you specified contains one or more\r\nof the following invalid characters:\r\n"
        L"          /  \\  :  *  ?  \"  <  >  |  \r\n\r\nTry a different name.";
    const struct {
        const wchar_t* name;
        std::wstring text;
    } rows[] = {
        {L"", L"You must specify a valid name to continue."},
        {L"   ", L"You must specify a valid name to continue."},
        {L"Mill:2", invalid},
        {L"a/b", invalid},
        {L"..\\x", invalid},
        {L" taken ", L"The configuration name you specified is already used.\r\n\r\nTry a different name."},
    };
    const DemoSuite suite;
    WriteFileBytes(suite.Settings() + L"TAKEN.dcp", "as it was");
    const WizardDriver wizard(suite, L"/NDW");
    GoToPortPage(wizard);
    Walk(wizard, {});
    for (const auto& row : rows) {
        SCOPED_TRACE(Utf8(row.name));
        wizard.Type(L"Configuration &name", row.name);
        wizard.Click(L"&Create");
        const WizardDriver::Box box = wizard.AnswerBox(IDOK);
        EXPECT_EQ(box.title, L"Varnel DNC Setup Wizard");
        EXPECT_EQ(Utf8(box.text), Utf8(row.text));
        wizard.WaitForPage(L"Configuration Name");
        EXPECT_TRUE(wizard.HasFocus(wizard.Input(L"Edit", L"Configuration &name")));
        EXPECT_EQ(wizard.Typed(L"Configuration &name"), row.name);
        EXPECT_EQ(FileNames(suite.Settings()), (std::vector<std::wstring>{L"TAKEN.dcp", L"VarnelDnc.ini"}));
    }
    EXPECT_EQ(FileBytes(suite.Settings() + L"TAKEN.dcp"), "as it was");
    Create(wizard, L"Mill 2");
    EXPECT_EQ(FileBytes(suite.Settings() + L"Mill 2.DCP").size(), 5449u);
}

TEST(NdwWalk, AsksBeforeItCloses) {
    const DemoSuite suite;
    const WizardDriver wizard(suite, L"/NDW /VCONFIG");
    GoToPortPage(wizard);
    for (const bool byButton : {false, true}) {
        byButton ? wizard.Click(L"Cancel") : wizard.AskToClose();
        const WizardDriver::Box box = wizard.AnswerBox(IDNO);
        EXPECT_EQ(box.title, L"Varnel DNC Setup Wizard");
        EXPECT_EQ(Utf8(box.text),
                  "W A R N I N G\r\n\r\nVarnel strongly recommends that you complete\r\n"
                  "the First-Time Setup Wizard before using your\r\n"
                  "Varnel DNC software for the first time.\r\n\r\n"
                  "Click \"No\" and complete first-time\r\nsetup.\r\n\r\nExit? Are you sure?");
        wizard.WaitForPage(L"COM Port");
    }
    wizard.AskToClose();
    wizard.AnswerBox(IDYES);
    EXPECT_EQ(wizard.WaitForExit(), 0);
    EXPECT_EQ(suite.StartCount(), 0u);
    EXPECT_EQ(FileNames(suite.Settings()), std::vector<std::wstring>{L"VarnelDnc.ini"});
}

TEST(NdwWalk, ClosesWithoutAskingOnTheNamePage) {
    const DemoSuite suite;
    const WizardDriver wizard(suite, L"/NDW");
    GoToPortPage(wizard);
    Walk(wizard, {});
    wizard.AskToClose();
    EXPECT_EQ(wizard.WaitForExit(), 0);
    EXPECT_EQ(FileNames(suite.Settings()), std::vector<std::wstring>{L"VarnelDnc.ini"});
}

TEST(NdwWalk, ASecondCopyShowsTheFirst) {
    const DemoSuite suite;
    const WizardDriver first(suite, L"/NDW");
    const WizardDriver otherMode(suite);
    for (const bool minimised : {false, true}) {
        SCOPED_TRACE(minimised ? "minimised" : "behind another window");
        if (minimised)
            ShowWindow(first.Window(), SW_MINIMIZE);
        else
            SetForegroundWindow(otherMode.Window());
        first.Until(
            [&] {
                return minimised ? IsIconic(first.Window()) : GetForegroundWindow() == otherMode.Window();
            },
            L"the first copy out of sight");
        suite.SetSetting(L"RxNameMode", L"untouched");

        const WizardDriver second(suite, L"/NDW /SHIFT", WizardDriver::Wait::No);
        EXPECT_EQ(second.WaitForExit(), 0);
        first.Until([&] { return IsIconic(first.Window()) == FALSE; }, L"the first copy to be restored");
        first.Until([&] { return GetForegroundWindow() == first.Window(); }, L"the first copy in front");
        EXPECT_EQ(suite.Setting(L"RxNameMode"), L"untouched");
    }
}

TEST(NdwWalk, StartsBesideItselfAtTheScreensCorner) {
    const DemoSuite suite;
    const WizardDriver shifted(suite, L"/ndw /shift");
    RECT place{};
    GetWindowRect(shifted.Window(), &place);
    EXPECT_EQ(place.right, GetSystemMetrics(SM_CXSCREEN));
    EXPECT_EQ(place.bottom, GetSystemMetrics(SM_CYSCREEN));
    for (const wchar_t* key : {L"RxNameMode", L"RxChangeNameMode", L"NavAutoStart"})
        EXPECT_EQ(suite.Setting(key), L"1") << Utf8(key);
}

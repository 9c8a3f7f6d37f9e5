// The real program as a person uses it, its windows, its files, what it starts. Each walk of walks.txt is
// one test; the verbs that its lines may begin with are the table below.

#include "app/StartUp.h"
#include "ftw/FtwPages.h"
#include "ndw/NdwPages.h"
#include "tests/support/DcpByHand.h"
#include "tests/support/DemoSuite.h"
#include "tools/driver/Keyboard.h"
#include "tools/driver/Windows.h"
#include "tools/driver/WizardDriver.h"
#include "wizard/frmWizard.h"

#include <gtest/gtest.h>

#include <shellapi.h>
#include <shlobj.h>

#include <map>
#include <optional>
#include <ostream>
#include <sstream>

namespace {

using Text = std::wstring;

struct Line {
    int number; // in walks.txt
    Text text;
};

// The sections of walks.txt by their names.
const std::map<Text, std::vector<Line>>& AllWalks() {
    static const auto all = [] {
        std::map<Text, std::vector<Line>> walks;
        Text name;
        std::istringstream lines(FileBytes(TestFolder() + L"..\\..\\tests\\e2e\\walks.txt"));
        int number = 0;
        for (std::string bytes; std::getline(lines, bytes);) {
            const Text text = FromUtf8(bytes);
            ++number;
            if (text.starts_with(L"== "))
                name = text.substr(3);
            else if (!text.empty() && text.front() != L'#')
                walks[name].push_back({number, text});
        }
        return walks;
    }();
    return all;
}

struct Walk {
    DemoSuite suite;
    std::optional<WizardDriver> wizard;
    win::UniqueFile lock;
    std::map<Text, std::size_t> seen; // starts of a program that the walk has spoken of

    const WizardDriver& On() const { return *wizard; }
    Text Replaced(Text text) const;
    void Follow(const Text& section);
};

const std::map<Text, int> kButtons = {{L"ok", IDOK}, {L"cancel", IDCANCEL}, {L"yes", IDYES}, {L"no", IDNO}};

const std::map<Text, Spoilt> kSpoilt = {
    {L"missing", Spoilt::Missing}, {L"folder", Spoilt::Folder}, {L"locked", Spoilt::Locked}};

void Expect(const Text& is, const Text& wanted) { EXPECT_EQ(Utf8(is), Utf8(wanted)); }

Text Joined(const std::vector<Text>& texts) {
    Text all;
    for (const Text& text : texts)
        all += (all.empty() ? L"" : L" | ") + text;
    return all;
}

// "C:\folder\*.dcp" stands for the names that fit, folders included.
Text Names(const Text& path) {
    const std::size_t name = path.rfind(L'\\') + 1;
    return Joined(FileNames(path.substr(0, name), path.c_str() + name));
}

// What has the focus: its text, or its class when it holds more than a caption.
void ExpectFocus(const Walk& walk, const Text& wanted) {
    walk.On().Until(
        [&] {
            wchar_t name[32] = L"";
            GetClassNameW(walk.On().Focus(), name, 32);
            return name == wanted || TextOf(walk.On().Focus()) == wanted;
        },
        L"the focus on " + wanted);
}

void ExpectStart(Walk& walk, const Text& program, const Text& commandLine) {
    const Start start = walk.suite.WaitForStarts(program, ++walk.seen[program]).at(walk.seen[program] - 1);
    Expect(start.commandLine, commandLine);
    Expect(start.folder + L"\\", walk.suite.Folder());
    EXPECT_EQ(start.show, SW_SHOWNORMAL);
}

constexpr std::size_t kShowCommandAt = 0x3C; // of a shell link's file

// As the system does: first it asks, then it tells.
void LogOff(const Walk& walk) {
    EXPECT_TRUE(Ask(walk.On().FormWindow(), WM_QUERYENDSESSION));
    PostMessageW(walk.On().FormWindow(), WM_ENDSESSION, TRUE, 0);
}

// One after the other: "tab shift+tab".
void PressKeys(const Text& keys) {
    std::wistringstream each(keys);
    for (Text key; each >> key;)
        PressKey(key);
}

void ExpectCorner(const Walk& walk) {
    RECT place{};
    GetWindowRect(walk.On().Window(), &place);
    EXPECT_EQ(place.right, GetSystemMetrics(SM_CXSCREEN));
    EXPECT_EQ(place.bottom, GetSystemMetrics(SM_CYSCREEN));
}

void StartAgain(Walk& walk, const Text& arguments) {
    EXPECT_EQ(WizardDriver(walk.suite.CommandLine(arguments), WizardDriver::Wait::No).WaitForExit(), 0);
    const HWND first = walk.On().Window();
    walk.On().Until([&] { return !IsIconic(first) && GetForegroundWindow() == first; }, L"the first copy");
}

// "1 17 0": of that wizard, on that page, the link of that index. A form of this process follows it, the
// suite's folder as the program's and the current one, as when the wizard runs.
void FollowLink(const Walk& walk, const Text& link) {
    const ProgramLocations own = locations;
    ProgramLocations suites = own;
    suites.AppPath = suites.ProgramFolder = walk.suite.Folder();
    UseLocations(suites);
    wchar_t before[MAX_PATH] = L"";
    GetCurrentDirectoryW(MAX_PATH, before);
    SetCurrentDirectoryW(walk.suite.Folder().c_str());
    frmWizard form(link.front() == L'0' ? FtwBook() : NdwBook(), {.configAllowed = true});
    form.ConfigName = L"Mill 3 \x00E4";
    form.PageNo = static_cast<std::int16_t>(std::stoi(link.substr(2)));
    form.lblHyperlink_Click(static_cast<std::int16_t>(link.back() - L'0'));
    SetCurrentDirectoryW(before);
    UseLocations(own);
}

// `commandLine` is what the link starts, "" for nothing.
void ExpectLink(Walk& walk, const Text& link, const Text& commandLine) {
    FollowLink(walk, link);
    if (commandLine.empty()) return;
    const Text program = commandLine.substr(0, commandLine.find(L".exe") + 4);
    ExpectStart(walk, program.substr(program.rfind(L'\\') + 1), commandLine);
}

struct Verb {
    const wchar_t* word;
    void (*act)(Walk& walk, const Text& a, const Text& b);
};

// "verb a" or "verb a = b"
// clang-format off
const Verb kVerbs[] = {
    // what there is before
    {L"icons",     [](Walk& w, const Text&, const Text&) { w.suite.AddIcons(); }},
    {L"samples",   [](Walk& w, const Text&, const Text&) { w.suite.AddSamples(); }},
    {L"plant",     [](Walk& w, const Text& a, const Text&) { w.suite.Add(L"libplanted.dll", a); }},
    {L"write",     [](Walk&, const Text& a, const Text& b) { WriteFileBytes(a, Utf8(b)); }},
    {L"copy",      [](Walk&, const Text& a, const Text& b) { Copy(a, b); }},
    {L"spoil",     [](Walk& w, const Text& a, const Text& b) { w.lock = Spoil(a, kSpoilt.at(b)); }},
    {L"do",        [](Walk& w, const Text& a, const Text&) { w.Follow(a); }},
    // what the person does
    {L"start",     [](Walk& w, const Text& a, const Text&) { w.wizard.emplace(w.suite.CommandLine(a)); }},
    {L"dialog",    [](Walk& w, const Text& a, const Text&) { w.suite.Add(L"dialogs.exe", L"dialogs.exe"); w.wizard.emplace(w.suite.CommandLine(a, L"dialogs.exe"), WizardDriver::Wait::No); }},
    {L"begin",     [](Walk& w, const Text& a, const Text&) { w.wizard.emplace(w.suite.CommandLine(a), WizardDriver::Wait::No); }},
    {L"opens",     [](Walk& w, const Text&, const Text&) { w.wizard->WaitForOpening(); }},
    {L"again",     [](Walk& w, const Text& a, const Text&) { StartAgain(w, a); }},
    {L"minimise",  [](Walk& w, const Text&, const Text&) { ShowWindow(w.On().Window(), SW_MINIMIZE); }},
    {L"next",      [](Walk& w, const Text& a, const Text&) { w.On().Next(a); }},
    {L"back",      [](Walk& w, const Text& a, const Text&) { w.On().Move(L"< Back", a); }},
    {L"skip",      [](Walk& w, const Text& a, const Text&) { w.On().Move(L"&Skip", a); }},
    {L"new",       [](Walk& w, const Text& a, const Text&) { w.On().Move(L"&New", a); }},
    {L"to",        [](Walk& w, const Text& a, const Text&) { w.On().MoveTo(L"&Next >", a); }},
    {L"backto",    [](Walk& w, const Text& a, const Text&) { w.On().MoveTo(L"< Back", a); }},
    {L"press",     [](Walk& w, const Text& a, const Text&) { w.On().Press(a); }},
    {L"on",        [](Walk& w, const Text& a, const Text&) { w.On().Check(a, true); }},
    {L"off",       [](Walk& w, const Text& a, const Text&) { w.On().Check(a, false); }},
    {L"type",      [](Walk& w, const Text& a, const Text& b) { TypeOver(w.On().Input(L"Edit", a), b); }},
    {L"pick",      [](Walk& w, const Text& a, const Text& b) { Choose(w.On().Input(L"ComboBox", a), std::stoi(b)); }},
    {L"choose",    [](Walk& w, const Text& a, const Text& b) { Choose(w.On().Input(L"ListBox", a), std::stoi(b)); }},
    {L"mark",      [](Walk& w, const Text& a, const Text&) { Ask(w.On().Input(L"ListBox", L""), LB_SETSEL, TRUE, std::stoi(a)); }},
    {L"box",       [](Walk& w, const Text& a, const Text& b) { EXPECT_EQ(Utf8(w.On().AnswerBox(kButtons.at(a))).find(Utf8(b)), 0u) << Utf8(b); }},
    {L"at",        [](Walk& w, const Text& a, const Text&) { w.wizard->GoTo(a); }},
    {L"key",       [](Walk&, const Text& a, const Text&) { PressKeys(a); }},
    {L"keys",      [](Walk&, const Text& a, const Text&) { TypeKeys(a); }},
    {L"click",     [](Walk& w, const Text& a, const Text&) { Click(w.On().Button(a)); }},
    {L"double",    [](Walk& w, const Text& a, const Text&) { Click(w.On().Button(a)), Click(w.On().Button(a), 9, WM_LBUTTONDBLCLK); }},
    {L"scroll",    [](Walk& w, const Text&, const Text&) { Click(w.On().Input(L"ScrollBar", L""), -4); }},
    {L"close",     [](Walk& w, const Text&, const Text&) { PostMessageW(w.On().Window(), WM_CLOSE, 0, 0); }},
    {L"load",      [](Walk& w, const Text& a, const Text&) { w.On().Load(a); }},
    {L"log",       [](Walk& w, const Text&, const Text&) { LogOff(w); }},
    {L"exit",      [](Walk& w, const Text& a, const Text&) { Expect(std::to_wstring(w.On().WaitForExit()), a.empty() ? L"0" : a); }},
    // what the page shows
    {L"page",      [](Walk& w, const Text& a, const Text&) { w.On().WaitForPage(a); }},
    {L"says",      [](Walk& w, const Text& a, const Text&) { EXPECT_NE(w.On().PageText().find(a), Text::npos) << Utf8(w.On().PageText()); }},
    {L"label",     [](Walk& w, const Text& a, const Text&) { w.On().Until([&] { return w.On().Find(L"Static", a) != nullptr; }, L"the label " + a); }},
    {L"there",     [](Walk& w, const Text& a, const Text&) { EXPECT_TRUE(IsWindowEnabled(w.On().Button(a))); }},
    {L"grey",      [](Walk& w, const Text& a, const Text&) { EXPECT_TRUE(w.On().Button(a) && !IsWindowEnabled(w.On().Button(a))); }},
    {L"gone",      [](Walk& w, const Text& a, const Text&) { EXPECT_FALSE(w.On().Button(a)); }},
    {L"checked",   [](Walk& w, const Text& a, const Text&) { w.On().Until([&] { return w.On().IsChecked(a); }, L"a check of " + a); }},
    {L"unchecked", [](Walk& w, const Text& a, const Text&) { EXPECT_FALSE(w.On().IsChecked(a)); }},
    {L"typed",     [](Walk& w, const Text& a, const Text& b) { Expect(TextOf(w.On().Input(L"Edit", a)), b); }},
    {L"picked",    [](Walk& w, const Text& a, const Text& b) { Expect(TextOf(w.On().Input(L"ComboBox", a)), b); }},
    {L"items",     [](Walk& w, const Text& a, const Text&) { Expect(Joined(ItemsOf(w.On().Input(L"ListBox", L""))), a); }},
    {L"focused",   [](Walk& w, const Text& a, const Text&) { ExpectFocus(w, a); }},
    {L"default",   [](Walk& w, const Text& a, const Text&) { EXPECT_EQ(GetDlgItem(w.On().Window(), LOWORD(Ask(w.On().Window(), DM_GETDEFID))), w.On().Button(a)); }},
    {L"corner",    [](Walk& w, const Text&, const Text&) { ExpectCorner(w); }},
    // what is left behind
    {L"files",     [](Walk&, const Text& a, const Text& b) { Expect(Names(a), b); }},
    {L"holds",     [](Walk&, const Text& a, const Text& b) { EXPECT_NE(FileBytes(a).find(Utf8(b)), std::string::npos) << Utf8(b); }},
    {L"lacks",     [](Walk&, const Text& a, const Text& b) { EXPECT_EQ(FileBytes(a).find(Utf8(b)), std::string::npos) << FileBytes(a); }},
    {L"shown",     [](Walk&, const Text& a, const Text& b) { Expect(std::to_wstring(FileBytes(a).at(kShowCommandAt)), b); }},
    {L"ini",       [](Walk& w, const Text& a, const Text& b) { Expect(w.suite.Setting(a.c_str()), b); }},
    {L"dcp",       [](Walk& w, const Text& a, const Text& b) { ExpectBytes(FileBytes(w.suite.Settings() + a + L".DCP"), DcpByHand(Utf8(b)).Bytes()); }},
    {L"started",   [](Walk& w, const Text& a, const Text& b) { ExpectStart(w, a, b); }},
    {L"link",      [](Walk& w, const Text& a, const Text& b) { ExpectLink(w, a, b); }},
    {L"starts",    [](Walk& w, const Text& a, const Text&) { Expect(std::to_wstring(w.suite.StartCount()), a); }},
};
// clang-format on

Text Folder(int csidl) {
    wchar_t path[MAX_PATH] = L"";
    SHGetFolderPathW(nullptr, csidl, nullptr, SHGFP_TYPE_CURRENT, path);
    return path + Text(L"\\");
}

Text Walk::Replaced(Text text) const {
    const std::pair<const wchar_t*, Text> kWords[] = {
        {L"{suite}", suite.Folder()},
        {L"{settings}", suite.Settings()},
        {L"{temp}", suite.Folder().substr(0, suite.Folder().find(L"Varnel"))},
        {L"{public}", Folder(CSIDL_COMMON_DOCUMENTS)},
        {L"{desktop}", Folder(CSIDL_DESKTOPDIRECTORY)},
        {L"{start}", Folder(CSIDL_STARTMENU)},
        {L"{quick}", Folder(CSIDL_APPDATA) + L"Microsoft\\Internet Explorer\\Quick Launch\\"},
        {L"{long}", Text(300, L'x')},
        {L"{n}", L"\r\n"}};
    for (const auto& [word, meaning] : kWords)
        for (auto at = text.find(word); at != Text::npos; at = text.find(word, at + meaning.size()))
            text.replace(at, Text(word).size(), meaning);
    return text;
}

void Walk::Follow(const Text& section) {
    for (const Line& line : AllWalks().at(section)) {
        SCOPED_TRACE("line " + std::to_string(line.number) + ": " + Utf8(line.text));
        const Text word = line.text.substr(0, line.text.find(L' '));
        const auto verb = std::find_if(std::begin(kVerbs), std::end(kVerbs),
                                       [&](const Verb& each) { return each.word == word; });
        ASSERT_NE(verb, std::end(kVerbs)) << "no such verb";
        const Text rest = line.text.substr(word.size());
        const std::size_t middle = std::min(rest.find(L" ="), rest.size());
        const Text a = middle ? rest.substr(1, middle - 1) : L"";
        const Text b = rest.substr(std::min(middle + 3, rest.size()));
        verb->act(*this, Replaced(a), Replaced(b));
        if (testing::Test::HasFatalFailure()) return;
    }
}

std::vector<Text> WalkNames() {
    std::vector<Text> names;
    for (const auto& [name, lines] : AllWalks())
        if (name.front() != L'(') names.push_back(name);
    return names;
}

class EveryWalk : public testing::TestWithParam<Text> {};

TEST_P(EveryWalk, Ends) {
    Walk walk;
    walk.Follow(GetParam());
    if (walk.wizard && walk.wizard->IsRunning()) walk.wizard->Close();
}

INSTANTIATE_TEST_SUITE_P(Walks, EveryWalk, testing::ValuesIn(WalkNames()), [](const auto& walk) {
    std::string name = Utf8(walk.param);
    std::erase_if(name, [](char c) { return !isalnum(c); });
    return name;
});

} // namespace

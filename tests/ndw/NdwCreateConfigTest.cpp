#include "ndw/NdwCreateConfig.h"

#include "app/Files.h"
#include "app/StartUp.h"
#include "ndw/NdwPages.h"
#include "tests/support/DemoSuite.h"
#include "tests/support/FormUnderTest.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

namespace {

// The first words of each refusal; all but the first end in the advice below.
constexpr wchar_t kNoName[] = L"You must specify a valid name to continue.";
constexpr wchar_t kInvalid[] =
    L"The name you specified contains one or more\r\nof the following invalid characters:"
    L"\r\n          /  \\  :  *  ?  \"  <  >  |  ";
constexpr wchar_t kUsed[] = L"The configuration name you specified is already used.";
constexpr wchar_t kDevice[] = L"The name you specified is reserved by Windows for a device.";
constexpr wchar_t kDot[] = L"The name you specified ends in a dot.";
constexpr wchar_t kControl[] = L"The name you specified contains a control character.";
constexpr wchar_t kForeign[] = L"The name you specified contains the character \"";
constexpr wchar_t kAdvice[] = L"\r\n\r\nTry a different name.";

struct Row {
    const wchar_t* name;
    const wchar_t* refusal; // null: makes just its file
};

// clang-format off
const Row kRows[] = {
    {L"",              kNoName},  {L"    ",          kNoName},
    {L"a/b",           kInvalid}, {L"a\\b",          kInvalid}, {L"C:x",           kInvalid}, {L"..\\x",       kInvalid},
    {L"a*",            kInvalid}, {L"a?",            kInvalid}, {L"\"a\"",         kInvalid}, {L"<b>a</b>",    kInvalid},
    {L"a|b",           kInvalid}, {L"COM1:",         kInvalid}, {L"\\\\.\\COM1",   kInvalid}, {L"a:stream",    kInvalid},
    {L"taken",         kUsed},    {L" TAKEN ",       kUsed},
    {L"CON",           kDevice},  {L"prn",           kDevice},  {L"Aux",           kDevice},  {L"NUL",         kDevice},
    {L"COM1",          kDevice},  {L"com9",          kDevice},  {L"COM0",          kDevice},  {L"LPT1",        kDevice},
    {L"COM1 .x",       kDevice},  {L"COM\x00B2",     kDevice},  {L"CONIN$",        kDevice},  {L"conout$.nc",  kDevice},
    {L"nul.a.b",       kDevice},
    {L"abc.",          kDot},     {L".",             kDot},     {L"..",            kDot},     {L"abc. ",       kDot},
    {L"a\tb",          kControl}, {L"a\x0001" L"b",  kControl}, {L"\x0085",        kControl},
    {L"a\x2215" L"b",  kForeign}, {L"\xFF0F",        kForeign}, {L"\x65CB\x76E4",  kForeign}, {L"\x0100",      kForeign},
    {L"\xD83D\xDE00",  kForeign},
    {L"Mill 3",        nullptr},  {L"  blanks  ",    nullptr},  {L"D\x00E4n \x20AC", nullptr}, {L"COM10",      nullptr},
    {L"COMX",          nullptr},  {L"x.COM1",        nullptr},  {L".head",         nullptr},  {L"a.b.c",       nullptr},
    {L"50% [x] {y}",   nullptr},  {L"O'Brien & Co",  nullptr},  {L"a;b,c=d+e",     nullptr},  {L"%TEMP%",      nullptr},
};
// clang-format on

// No icons beside the program, so that no picker opens.
class CreateConfig : public testing::Test {
  protected:
    CreateConfig() : test(kNewDevice) {
        NdwSetDefaults();
        test.Show(kNdwNamePage);
    }
    // The text of the box that opened, "" for none.
    std::wstring Create(const std::wstring& name) {
        ndwSession.answers.name = name;
        const auto boxes = Answering({IDOK}, [&] { NdwCreateConfig(test.form); });
        EXPECT_LE(boxes.size(), 1u);
        return boxes.empty() ? L"" : boxes[0].text;
    }
    ScratchSuite suite;
    FormUnderTest test;
};

} // namespace

TEST_F(CreateConfig, AMessageOrJustOneFile) {
    WriteFileBytes(suite.Path() + L"TAKEN.dcp", "as it was");
    for (const Row& row : kRows) {
        SCOPED_TRACE(Utf8(row.name));
        const std::wstring text = Create(row.name);
        auto files = FileNames(suite);
        std::erase(files, L"TAKEN.dcp");
        EXPECT_EQ(test.form.StayOnPage, row.refusal != nullptr);
        if (row.refusal) {
            EXPECT_TRUE(text.starts_with(row.refusal)) << Utf8(text);
            EXPECT_EQ(text.ends_with(kAdvice), row.refusal != kNoName) << Utf8(text);
            EXPECT_EQ(files, std::vector<std::wstring>{});
            EXPECT_EQ(ndwSession.answers.name, row.name);
        } else {
            EXPECT_EQ(Utf8(text), "");
            EXPECT_EQ(files, std::vector{test.form.ConfigName + L".DCP"});
            EXPECT_EQ(FileSize(ConfigurationFile(test.form.ConfigName)), 5449u);
            EXPECT_EQ(ndwSession.answers.name, L"");
            DeleteFileW(ConfigurationFile(test.form.ConfigName).c_str());
        }
    }
    EXPECT_EQ(FileBytes(suite.Path() + L"TAKEN.dcp"), "as it was");
}

TEST_F(CreateConfig, ThePathEndsAt259Characters) {
    const std::wstring longest(259 - suite.Path().size() - 4, L'm');
    EXPECT_EQ(Create(longest + L"m"), std::wstring(L"The name you specified is too long.") + kAdvice);
    EXPECT_EQ(FileNames(suite).size(), 0u);
    EXPECT_EQ(Create(longest), L"");
    EXPECT_EQ(FileNames(suite), std::vector{longest + L".DCP"});
}

TEST_F(CreateConfig, AFailedWriteIsToldAndMayBeTriedAgain) {
    const std::wstring path = ConfigurationFile(L"Mill 3");
    CreateDirectoryW(path.c_str(), nullptr);
    EXPECT_EQ(Create(L"Mill 3"), L"The configuration file could not be written:\r\n" + path);
    EXPECT_TRUE(test.form.StayOnPage && !test.form.ConfigWritten);
    RemoveDirectoryW(path.c_str());
    WriteFileBytes(path, "what the failed write has left");
    EXPECT_EQ(Create(L" Mill 3 "), L"");
    EXPECT_TRUE(!test.form.StayOnPage && test.form.ConfigWritten);
    EXPECT_EQ(test.form.ConfigName, L"Mill 3");
    EXPECT_TRUE(Create(L"Mill 3").starts_with(kUsed)) << "once written, its name is taken";
}

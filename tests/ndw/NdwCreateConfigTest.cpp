#include "ndw/NdwCreateConfig.h"

#include "app/Files.h"
#include "app/StartUp.h"
#include "ndw/NdwPages.h"
#include "tests/support/FormUnderTest.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

namespace {

struct Row {
    const wchar_t* words; // of the refusal; null: makes just its file
    std::vector<std::wstring> names;
};

// clang-format off
const Row kRows[] = {
    {L"specify a valid name",  {L"", L"    "}},
    {L"invalid characters",    {L"a/b", L"a\\b", L"C:x", L"..\\x", L"a*", L"a?", L"\"a\"", L"<b>a</b>", L"a|b", L"COM1:", L"\\\\.\\COM1"}},
    {L"already used",          {L"taken", L" TAKEN "}},
    {L"reserved by Windows",   {L"CON", L"Aux", L"NUL", L"com9", L"LPT1", L"COM1 .x", L"COM\x00B2", L"conout$.nc", L"nul.a.b"}},
    {L"ends in a dot",         {L"abc.", L".", L"..", L"abc. "}},
    {L"a control character",   {L"a\tb", L"a\x0001" L"b", L"\x0085"}},
    {L"the character \"",      {L"a\x2215" L"b", L"\xFF0F", L"\x65CB\x76E4", L"\x0100", L"\xD83D\xDE00"}},
    {nullptr,                  {L"Mill 3", L"  blanks  ", L"D\x00E4n \x20AC", L"COM10", L"x.COM1", L".head", L"a.b.c", L"50% [x] {y}", L"O'Brien & Co", L"%TEMP%"}},
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
        return boxes.empty() ? L"" : boxes[0];
    }
    ScratchSuite suite;
    FormUnderTest test;
};

} // namespace

TEST_F(CreateConfig, AMessageOrJustOneFile) {
    WriteFileBytes(suite.Path() + L"TAKEN.dcp", "as it was");
    for (const Row& row : kRows)
        for (const std::wstring& name : row.names) {
            SCOPED_TRACE(Utf8(name));
            const std::wstring text = Create(name);
            EXPECT_EQ(test.form.StayOnPage, row.words != nullptr);
            EXPECT_TRUE(row.words ? text.find(row.words) != text.npos : text.empty()) << Utf8(text);
            EXPECT_EQ(ndwSession.answers.name, row.words ? name : L"");
            std::vector<std::wstring> files = {L"TAKEN.dcp"};
            if (!row.words) files.insert(files.begin(), test.form.ConfigName + L".DCP");
            std::sort(files.begin(), files.end());
            EXPECT_EQ(FileNames(suite), files);
            DeleteFileW(ConfigurationFile(test.form.ConfigName).c_str());
        }
    EXPECT_EQ(FileBytes(suite.Path() + L"TAKEN.dcp"), "as it was");
}

TEST_F(CreateConfig, ThePathEndsAt259Characters) {
    const std::wstring longest(259 - suite.Path().size() - 4, L'm');
    EXPECT_NE(Create(longest + L"m").find(L"The name you specified is too long."), std::wstring::npos);
    EXPECT_EQ(Create(longest), L"");
    EXPECT_EQ(FileNames(suite), std::vector{longest + L".DCP"});
}

TEST_F(CreateConfig, AFailedWriteIsToldAndMayBeTriedAgain) {
    const std::wstring path = ConfigurationFile(L"Mill 3");
    CreateDirectoryW(path.c_str(), nullptr);
    EXPECT_NE(Create(L"Mill 3").find(L"The configuration file could not be written:\r\n" + path),
              std::wstring::npos);
    EXPECT_TRUE(test.form.StayOnPage && !test.form.ConfigWritten);
    RemoveDirectoryW(path.c_str());
    WriteFileBytes(path, "what the failed write has left");
    EXPECT_EQ(Create(L" Mill 3 "), L"");
    EXPECT_TRUE(!test.form.StayOnPage && test.form.ConfigWritten);
    EXPECT_EQ(test.form.ConfigName, L"Mill 3");
    EXPECT_NE(Create(L"Mill 3").find(L"already used"), std::wstring::npos);
}

#include "app/Blanks.h"
#include "app/FileNames.h"
#include "app/Numbers.h"
#include "app/Paths.h"
#include "endurance/fuzz/Fuzz.h"

void Examine(FuzzedDataProvider& from) {
    constexpr std::size_t kNone = std::wstring::npos;
    const std::wstring path = Text(from, 40, L"cC:\\\\..ab /");
    const std::wstring drive = SplitPath(path, 1);
    const std::wstring folder = SplitPath(path, 2);
    const std::wstring name = SplitPath(path, 3);
    const std::wstring extension = SplitPath(path, 4);
    const std::wstring file = SplitPath(path, 5);
    REQUIRE(drive + folder + file == path);
    REQUIRE(drive + folder == SplitPath(path, 6));
    REQUIRE(drive.empty() || (drive.size() == 2 && drive[1] == L':'));
    REQUIRE(folder.empty() || folder.back() == L'\\');
    REQUIRE(file == name || file == name + L"." + extension);
    REQUIRE((file + extension).find(L'\\') == kNone && extension.find(L'.') == kNone);
    REQUIRE(SplitPath(path, static_cast<std::int16_t>(7 + Below(from, 30000))).empty());

    const std::wstring whole = WithBackslash(path);
    REQUIRE(whole == path || whole == path + L"\\");
    REQUIRE(WithBackslash(whole) == whole && (path.empty() || whole.back() == L'\\'));

    const std::wstring text = Text(from, 8, L" .ab*09-+\t");
    const std::wstring trimmed = TrimBlanks(text);
    REQUIRE(text.find(trimmed) != kNone && TrimBlanks(L" " + trimmed + L"  ") == trimmed);
    REQUIRE(IsReservedName(text) == IsReservedName(L" " + text + L".x"));
    const auto checked = CheckedExtension(text);
    REQUIRE(!checked || (checked->size() <= 3 && IsValidName(*checked) && checked->find(L'.') == kNone));
    const auto number = from.ConsumeIntegral<std::int32_t>();
    REQUIRE(NumericValue(L" " + std::to_wstring(number) + L"x" + text) == number);
}

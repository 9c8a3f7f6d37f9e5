#include "tests/support/LinkFile.h"

#include <stdexcept>

namespace {

// Offsets and flags of the published format, [MS-SHLLINK].
constexpr std::size_t kHeaderSize = 0x4C;
constexpr std::uint32_t kHasItems = 1, kHasLinkInfo = 2, kIsUnicode = 0x80;
constexpr std::size_t kFlagsAt = 0x14, kIconIndexAt = 0x38, kShowCommandAt = 0x3C, kHotKeyAt = 0x40;
constexpr std::string_view kClassId("\x01\x14\x02\0\0\0\0\0\xC0\0\0\0\0\0\0\x46", 16);

class Reader {
  public:
    explicit Reader(std::string_view bytes) : bytes_(bytes) {}

    std::uint32_t Number(std::size_t at, std::size_t size) const {
        std::uint32_t value = 0;
        for (std::size_t i = size; i-- > 0;)
            value = value << 8 | Byte(at + i);
        return value;
    }
    std::wstring TextTo0(std::size_t at) const {
        std::wstring text;
        for (; Byte(at) != 0; ++at)
            text += static_cast<wchar_t>(Byte(at));
        return text;
    }
    // One counted text, without the NUL that some writers count in; moves `at` behind it.
    std::wstring Counted(std::size_t& at, std::size_t width) const {
        const std::size_t length = Number(at, 2);
        std::wstring text;
        at += 2;
        for (std::size_t i = 0; i < length; ++i, at += width)
            text += static_cast<wchar_t>(Number(at, width));
        if (!text.empty() && text.back() == L'\0') text.pop_back();
        return text;
    }

  private:
    std::uint8_t Byte(std::size_t at) const {
        if (at >= bytes_.size()) throw std::runtime_error("the link is cut off");
        return static_cast<std::uint8_t>(bytes_[at]);
    }
    std::string_view bytes_;
};

} // namespace

LinkFile ParseLinkFile(std::string_view bytes) {
    const Reader reader(bytes);
    if (reader.Number(0, 4) != kHeaderSize || bytes.substr(4, 16) != kClassId)
        throw std::runtime_error("no link");
    LinkFile link;
    const std::uint32_t flags = reader.Number(kFlagsAt, 4);
    link.iconIndex = static_cast<std::int32_t>(reader.Number(kIconIndexAt, 4));
    link.showCommand = reader.Number(kShowCommandAt, 4);
    link.hotKey = static_cast<std::uint16_t>(reader.Number(kHotKeyAt, 2));
    std::size_t at = kHeaderSize;
    if (flags & kHasItems) at += 2 + reader.Number(at, 2);
    if (flags & kHasLinkInfo) {
        link.target = reader.TextTo0(at + reader.Number(at + 0x10, 4));
        at += reader.Number(at, 4);
    }
    // In this order, each when its flag is set.
    std::wstring* const texts[] = {&link.description, &link.relativePath, &link.workingFolder,
                                   &link.arguments, &link.iconFile};
    for (std::uint32_t i = 0; i < std::size(texts); ++i)
        if (flags & 4u << i) *texts[i] = reader.Counted(at, flags & kIsUnicode ? 2 : 1);
    return link;
}

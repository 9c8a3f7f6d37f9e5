#pragma once

#include "ndw/NdwAnswers.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// Makes test input of bytes: those that a fuzzer hands over. When the bytes are used
// up every choice is the first one, so that all input ends.
class Generator {
  public:
    explicit Generator(std::span<const unsigned char> bytes) : bytes_(bytes) {}

    bool Done() const { return bytes_.empty(); }
    unsigned char Byte() {
        if (Done()) return 0;
        const unsigned char byte = bytes_.front();
        bytes_ = bytes_.subspan(1);
        return byte;
    }
    // 0 to count - 1, where count is at most 65536.
    std::size_t Below(std::size_t count) {
        const std::size_t low = Byte();
        return (count > 256 ? low + 256U * Byte() : low) % count;
    }
    template <class Table> const auto& OneOf(const Table& table) { return table[Below(std::size(table))]; }

    // Mostly of the characters in `alphabet`, now and then any 16-bit code.
    wchar_t Character(std::wstring_view alphabet) {
        const std::size_t choice = Below(256);
        return choice < 240 ? alphabet[choice % alphabet.size()] : static_cast<wchar_t>(Below(65536));
    }
    std::wstring Text(std::size_t longest, std::wstring_view alphabet) {
        std::wstring text(Below(longest + 1), L' ');
        for (wchar_t& c : text)
            c = Character(alphabet);
        return text;
    }

  private:
    std::span<const unsigned char> bytes_;
};

// Answers that the pages can give; the texts are ASCII, the name is a valid one.
inline NdwAnswers ValidAnswers(Generator& from) {
    constexpr std::wstring_view kTyped = L"ABCxyz019 (%$-+.";
    const auto ascii = [&](std::size_t longest) {
        std::wstring text(from.Below(longest + 1), L' ');
        for (wchar_t& c : text)
            c = from.OneOf(kTyped);
        return text;
    };
    const auto index = [&](std::size_t count) { return static_cast<std::int16_t>(from.Below(count)); };
    NdwAnswers answers;
    answers.portIndex = index(kPortCount);
    answers.baudIndex = index(kBaudRates.size());
    answers.dataFormatIndex = index(kDataFormats.size());
    answers.characterFormatIndex = index(kCharacterFormats.size());
    answers.flowControlIndex = index(kFlowControls.size());
    answers.endOfBlockIndex = index(kEndOfBlocks.size());
    answers.prefixChoice = index(std::size_t{1} << kPrefixChoices.size());
    answers.suffixChoice = index(std::size_t{1} << kSuffixChoices.size());
    answers.filterOptions = index(std::size_t{1} << kFilterOptions.size());
    answers.transmitTriggerIndex = index(kTransmitTriggers.size());
    answers.receiveNamingIndex = index(kReceiveNamings.size());
    answers.receiveTerminationIndex = index(kReceiveTerminations.size());
    answers.removedLines = ascii(kCodesLength);
    answers.receivePrefix = ascii(kCodesLength);
    answers.receiveExtension = from.OneOf(std::vector<std::wstring>{L"", L"NC", L"MIN", L"x"});
    answers.name = L"CNC " + std::to_wstring(from.Below(65536));
    return answers;
}

#pragma once

// The checks of endurance and what they have in common. Each counts what it tried, tells of every failure
// in one line, and can do a part of its work for the quick run.

#include <cstdint>
#include <random>
#include <string>
#include <string_view>

class Tally {
  public:
    Tally(bool quick, std::uint32_t seed) : quick_(quick), seed_(seed) {}

    // How many to do of `full`, which take part in the quick run only as `few`.
    int Of(int full, int few) const { return quick_ ? few : full; }
    bool Quick() const { return quick_; }
    std::uint32_t Seed() const { return seed_; }

    // Counts one attempt; a failure is printed with `what`.
    bool Expect(bool holds, const std::wstring& what);
    // Prints what could not be tried here and why.
    void Skip(const std::wstring& what);
    // A figure for the table.
    void Note(const std::string& text) { notes_ += (notes_.empty() ? "" : ", ") + text; }

    int Count() const { return count_; }
    int Failures() const { return failures_; }
    const std::string& Notes() const { return notes_; }

  private:
    bool quick_;
    std::uint32_t seed_;
    int count_ = 0;
    int failures_ = 0;
    std::string notes_;
};

void CheckNames(Tally& tally);
void CheckFaults(Tally& tally);
void CheckSettingsFile(Tally& tally);
void CheckWindows(Tally& tally);
void CheckTwoCopies(Tally& tally);
void CheckMonkey(Tally& tally);

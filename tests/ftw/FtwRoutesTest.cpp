#include "ftw/FtwPages.h"
#include "ndw/NdwPages.h"

#include <gtest/gtest.h>

namespace {

constexpr std::int16_t kNone = 0; // the button is hidden, or the wizard ends

// Where the buttons lead, without and with the page's detour where that has a condition.
struct Route {
    std::int16_t page;
    std::int16_t next, otherNext;
    std::int16_t back, otherBack;
    std::int16_t skip;
};

// clang-format off
constexpr Route kFtwRoutes[] = {
    // page  next       back       skip
    { 1,      2, kNone, kNone, kNone,  2},
    { 2,      3, kNone,  1, kNone,     3},
    { 3,      7, kNone,  2, kNone,     7},
    { 7,      8, kNone,  3, kNone,     8},
    { 8,      9, kNone,  7, kNone,     9},
    { 9,     10, kNone,  8, kNone,    11},
    {10,     11, kNone,  9, kNone,    11},
    {11,     12, kNone,  9, kNone,    12},
    {12,     13, 14,    11, kNone,    14},
    {13,     14, kNone, 12, kNone,    14},
    {14,     15, kNone, 12, kNone,    15},
    {15,     16, kNone, 14, kNone,    16},
    {16,     17, kNone, 15, kNone,    17},
    {17,  kNone, kNone, 16, kNone, kNone},
};
constexpr Route kNdwRoutes[] = {
    { 1,      2, kNone, kNone, kNone, kNone},
    { 2,      3, kNone,  1, kNone,    kNone},
    { 3,      4, kNone,  2, kNone,    kNone},
    { 4,      5, kNone,  3, kNone,    kNone},
    { 5,      6,  7,     4, kNone,    kNone},
    { 6,      7, kNone,  5, kNone,    kNone},
    { 7,      8, kNone,  6,  5,       kNone},
    { 8,      9, kNone,  7, kNone,    kNone},
    { 9,     10, kNone,  8, kNone,    kNone},
    {10,     11, kNone,  9, kNone,    kNone},
    {11,     12, kNone, 10, kNone,    kNone},
    {12,     13, kNone, 11, kNone,    kNone},
    {13,     14, kNone, 12, kNone,    kNone},
    {14,     15, kNone, 13, kNone,    kNone},
    {15,     16, kNone, 14, kNone,    kNone},
    {16,     17, kNone, 15, kNone,    kNone},
    {17,  kNone, kNone, kNone, kNone, kNone}, // Back is "&New" here
};
// clang-format on

void ExpectArrivals(const Page& page, Move move, std::int16_t usual, std::int16_t other) {
    if (usual == kNone) return;
    const bool isConditional = DetourOf(page, move).condition != nullptr;
    EXPECT_EQ(Arrival(page, move, !isConditional), usual) << static_cast<int>(move);
    EXPECT_EQ(isConditional, other != kNone) << static_cast<int>(move);
    if (isConditional) {
        EXPECT_EQ(Arrival(page, move, true), other) << static_cast<int>(move);
    }
}

void ExpectRoutes(std::span<const Page> pages, std::span<const Route> routes) {
    ASSERT_EQ(pages.size(), routes.size());
    for (const Route& route : routes) {
        SCOPED_TRACE("page " + std::to_string(route.page));
        const Page* page = FindPage(pages, route.page);
        ASSERT_TRUE(page);
        ExpectArrivals(*page, Move::Next, route.next, route.otherNext);
        ExpectArrivals(*page, Move::Back, route.back, route.otherBack);
        ExpectArrivals(*page, Move::Skip, route.skip, kNone);
    }
}

} // namespace

TEST(Routes, FirstTimeSetupWizard) {
    ExpectRoutes(kFtwPages, kFtwRoutes);
    for (const int samples : {0, 1, 7}) {
        ftwSession.selectedSamples = samples;
        EXPECT_EQ(NoSampleSelected(), samples == 0);
    }
}

TEST(Routes, NewDeviceWizard) {
    ExpectRoutes(kNdwPages, kNdwRoutes);
    std::int16_t& format = ndwSession.answers.dataFormatIndex;
    for (format = 0; format < 3; ++format)
        EXPECT_EQ(LeavesOutCharacterFormat(), format != 2);
    format = 0;
}

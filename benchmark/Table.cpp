#include "benchmark/Table.h"

#include <cstdio>

namespace {

const char* Verdict(double value, double wanted) { return value <= wanted ? "met" : "MISSED"; }

} // namespace

void PrintHead() {
    std::printf("%-42s %-30s %10s %10s %-6s %6s %7s\n", "figure", "peer", "ours", "peer's", "", "ratio",
                "wanted");
    std::fflush(stdout);
}

void PrintRatio(const std::string& figure, const std::string& peer, double ours, double theirs,
                const char* unit, double wanted) {
    const double ratio = theirs > 0 ? ours / theirs : 0;
    std::printf("%-42s %-30s %10.2f %10.2f %-6s %6.2f ", figure.c_str(), peer.c_str(), ours, theirs, unit,
                ratio);
    if (wanted > 0) std::printf("%7.2f  %s", wanted, Verdict(ratio, wanted));
    std::printf("\n");
    std::fflush(stdout);
}

void PrintValue(const std::string& figure, double value, const char* unit, double limit) {
    std::printf("%-42s %-30s %10.2f %10s %-6s %6s %7.2f  %s\n", figure.c_str(), "-", value, "", unit, "",
                limit, Verdict(value, limit));
    std::fflush(stdout);
}

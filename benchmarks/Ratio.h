// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string_view>
#include <vector>

#include <unistd.h>

/// Measuring two sides in turn, so that a machine whose speed drifts treats both alike.
namespace Ratio {

template <typename Work>
double milliseconds(Work&& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

inline double median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values[values.size() / 2];
}

/// How many items to work on: an argument of the program, or what its limit counts for.
inline int sizeFrom(int argc, char** argv, int usual, int place = 1)
{
    return argc > place ? std::atoi(argv[place]) : usual;
}

/// Bytes of memory that this process has in use.
inline long residentBytes()
{
    long total = 0;
    long resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    return resident * ::sysconf(_SC_PAGESIZE);
}

/// "ours", "baseline" or "none" for one who counts instructions: of what is measured only this side runs, once. Null
/// otherwise.
inline const char* countedSide()
{
    return std::getenv("BENCHMARK_SIDE");
}

inline bool isCounted(std::string_view side)
{
    return countedSide() != nullptr && countedSide() == side;
}

/// By how much the work makes that grow.
template <typename Work>
long bytesOf(Work&& work)
{
    if (countedSide() != nullptr) {
        return 0;
    }
    const long before = residentBytes();
    work();
    return residentBytes() - before;
}

/// The median times of both sides, and 0 or 1 for a limit that is kept or missed.
struct Outcome
{
    double ms;
    double baselineMs;
    int missed;
};

/// What the work takes for each item, for those who look how it grows.
inline void reportCost(int items, const Outcome& outcome, long bytes)
{
    if (countedSide() == nullptr) {
        std::printf("  cost of %d items: %.4f us and %ld bytes each, baseline %.4f us\n", items,
                    outcome.ms * 1000 / items, bytes / items, outcome.baselineMs * 1000 / items);
        std::fflush(stdout);
    }
}

/// Runs both sides once to warm up and then rounds times; prints the medians and their ratio.
template <typename Ours, typename Baseline>
Outcome measure(const char* name, double limit, Ours&& ours, Baseline&& baseline, int rounds = 7)
{
    if (countedSide() != nullptr) {
        if (isCounted("ours")) {
            ours();
        } else if (isCounted("baseline")) {
            baseline();
        }
        return {0, 0, 0};
    }
    std::vector<double> oursMs;
    std::vector<double> baselineMs;
    std::vector<double> ratios;
    for (int i = 0; i <= rounds; ++i) {
        const double b = milliseconds(baseline);
        const double o = milliseconds(ours);
        if (i > 0) {
            oursMs.push_back(o);
            baselineMs.push_back(b);
            ratios.push_back(o / b);
        }
    }
    const double ratio = median(ratios);
    std::printf("%s: %.1f ms against %.1f ms, ratio %.2f (at most %.2f) %s\n", name, median(oursMs), median(baselineMs),
                ratio, limit, ratio <= limit ? "ok" : "MISSED");
    std::fflush(stdout);
    return {median(oursMs), median(baselineMs), ratio <= limit ? 0 : 1};
}

/// The same, for a work whose growth nobody asks for.
template <typename Ours, typename Baseline>
int report(const char* name, double limit, Ours&& ours, Baseline&& baseline, int rounds = 7)
{
    return measure(name, limit, ours, baseline, rounds).missed;
}

} // namespace Ratio

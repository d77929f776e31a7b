// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

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

/// Runs both sides once to warm up and then rounds times; prints the medians and their ratio. The result is 0 while the
/// ratio keeps to its limit, else 1.
template <typename Ours, typename Baseline>
int report(const char* name, double limit, Ours&& ours, Baseline&& baseline, int rounds = 7)
{
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
    return ratio <= limit ? 0 : 1;
}

} // namespace Ratio

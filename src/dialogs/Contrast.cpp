// SPDX-License-Identifier: MIT
#include "dialogs/Contrast.h"

#include <algorithm>
#include <cmath>

namespace {

// The part of a channel's light, as the sRGB curve has it.
double light(float channel)
{
    return channel <= 0.04045F ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour)
{
    return 0.2126 * light(colour.redF()) + 0.7152 * light(colour.greenF()) + 0.0722 * light(colour.blueF());
}

QColor mixed(const QColor& from, const QColor& to, float part)
{
    const auto channel = [part](float a, float b) { return std::clamp(a + (b - a) * part, 0.0F, 1.0F); };
    return QColor::fromRgbF(channel(from.redF(), to.redF()), channel(from.greenF(), to.greenF()),
                            channel(from.blueF(), to.blueF()));
}

} // namespace

double Contrast::between(const QColor& first, const QColor& second)
{
    const auto [darker, lighter] = std::minmax({luminance(first), luminance(second)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor Contrast::readable(const QColor& colour, const QColor& background, const QColor& towards)
{
    constexpr int steps = 32;
    QColor result = colour;
    for (int step = 1; step <= steps && between(result, background) < least; ++step) {
        result = mixed(colour, towards, float(step) / steps);
    }
    return result;
}

QColor Contrast::alarm(const QColor& background)
{
    return luminance(background) > 0.4 ? QColor(Qt::red) : readable(Qt::red, background, Qt::white);
}

#pragma once

#include <QColor>

#include <algorithm>
#include <cmath>

/// WCAG 2.1, "relative luminance" and "contrast ratio".
namespace Contrast
{

constexpr double readable = 4.5; ///< For texts; those of disabled controls are excepted.

inline double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

inline double ratio(const QColor &one, const QColor &other)
{
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

} // namespace Contrast

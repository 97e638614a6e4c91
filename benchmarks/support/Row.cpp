#include "Row.h"

#include <algorithm>
#include <cstdio>

bool Row::print() const
{
    const bool isWithin = figure <= limit;
    const std::string verdict = isWithin ? "ok" : (excuse.empty() ? "over the limit" : excuse);
    std::printf("| %-40s | %6.2f | %6.2f | %-5s | %-44s | %s |\n", work.c_str(), figure, limit,
                unit.c_str(), detail.c_str(), verdict.c_str());
    std::fflush(stdout);
    return isWithin || !excuse.empty();
}

std::string against(double ours, double theirs, const char *unit)
{
    char text[80];
    std::snprintf(text, sizeof text, "%.1f %s against %.1f %s", ours, unit, theirs, unit);
    return text;
}

double median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values[values.size() / 2];
}

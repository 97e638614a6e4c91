#pragma once

#include <cstdint>

/// A day as the user's own calendar counts it: the calendar of the locale that the environment
/// names for dates (LC_ALL, LC_TIME, LANG), so Buddhist in Thailand, Persian in Iran. A keyword
/// such as "@calendar=hebrew" in the locale's name is honoured.
struct LocalDate {
    std::int64_t year = 0;
    std::int64_t month = 0; ///< From 1.
    std::int64_t day = 0; ///< From 1.
    std::int64_t weekday = 0; ///< 1 is Sunday, 7 Saturday.
};

/// The day of a moment, given in milliseconds since 1970-01-01 00:00 UTC, in the local time zone.
/// All zero when ICU has no calendar at all (its data files are missing). Any thread.
LocalDate localDateAt(std::int64_t milliseconds);

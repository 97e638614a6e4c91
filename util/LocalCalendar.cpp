#include "LocalCalendar.h"

#include <QByteArray>

#include <unicode/calendar.h>
#include <unicode/locid.h>

#include <memory>

namespace
{

// ICU's own default locale ignores LC_TIME and is fixed at its first use; the user's setting for
// dates is read anew each time.
icu::Locale dateLocale()
{
    for (const char *variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        const QByteArray name = qgetenv(variable);
        if (!name.isEmpty())
            return icu::Locale::createCanonical(name.constData());
    }
    return icu::Locale::getRoot();
}

std::int64_t field(const icu::Calendar &calendar, UCalendarDateFields name)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::int32_t value = calendar.get(name, status);
    return U_SUCCESS(status) ? value : 0;
}

} // namespace

LocalDate localDateAt(std::int64_t milliseconds)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::Calendar> calendar(
        icu::Calendar::createInstance(dateLocale(), status));
    if (calendar && U_SUCCESS(status))
        calendar->setTime(static_cast<UDate>(milliseconds), status);
    if (!calendar || U_FAILURE(status))
        return {};
    return {.year = field(*calendar, UCAL_YEAR),
            .month = field(*calendar, UCAL_MONTH) + 1,
            .day = field(*calendar, UCAL_DATE),
            .weekday = field(*calendar, UCAL_DAY_OF_WEEK)};
}

#pragma once

#include <QString>

/// The number as C's "%.<precision>f" writes it in the "C" locale: fixed notation, exact decimal
/// expansion rounded half to even, so 1.25 with one digit is "1.2". QString::number would give
/// "1.3" and snprintf follows the locale. Precision is 0 to 100 (clamped). Infinities and NaN read
/// "inf", "-inf", "nan". Any thread.
QString fixedText(double value, int precision);

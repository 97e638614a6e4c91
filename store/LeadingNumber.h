#pragma once

#include <QByteArrayView>

/// The number at the beginning of a text: blanks are skipped, then a sign and digits are read up to
/// the first other character ("7 rows" is 7). 0 if no number begins there; limited to the type's
/// range. Independent of the locale. Any thread.
int leadingInteger(QByteArrayView text);

/// The same with a fraction and an exponent ("2.5e3x" is 2500). "inf", "nan" and "0x…" do not count
/// as numbers.
double leadingDouble(QByteArrayView text);

#pragma once

#include <QByteArray>

/// The same JSON text with values that a parser can hold: a number beyond the range of a double
/// becomes null, an integer beyond 64 bits gets a fraction, and half a surrogate pair becomes
/// U+FFFD. What is not JSON stays so, apart from such numbers. Any thread.
QByteArray repairedJSON(QByteArrayView text);

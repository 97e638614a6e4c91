#pragma once

#include "MiscTool.h"

/// The texts of records: percent-escaped in the table, decoded on the screen.
namespace ShownText
{

constexpr qsizetype maximumLength = 100; // UTF-16 units, before escaping

/// Empty where the escapes are not those of UTF-8 text.
inline QString of(const QString &stored)
{
    return MiscTool::decodeFromUTF8(stored).value_or(QString());
}

} // namespace ShownText

// The text of a table's creation may come from another program: cutting columns out of it never
// leaves the text. The first byte of the input is the length of the table's name.

#include "DB.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const QString text = QString::fromUtf8(QByteArrayView(data + 1, qsizetype(size) - 1));
    const QStringList definitions = DB::getColumnsWithType(text, text.left(data[0]));
    if (DB::convert2Columns(definitions).size() != definitions.size())
        __builtin_trap();
    return 0;
}

// Replies of a web service become records of every kind of property, whatever they hold.

#include "SampleRecords.h"
#include "SchemaReflect.h"

#include <cstdint>

namespace
{

template <RecordClass T>
void read(QByteArrayView reply)
{
    QList<T> records;
    SchemaReflect::appendSelectReply(reply, RecordList(records));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArrayView reply(data, qsizetype(size));
    read<PriceSchema>(reply);
    read<OddSchema>(reply);
    return 0;
}

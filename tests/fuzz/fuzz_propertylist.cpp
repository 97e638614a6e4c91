// Property lists of both forms come from servers: no bytes may crash the reader or pass its limits.

#include "PropertyList.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    PropertyList::read(QByteArrayView(data, qsizetype(size)), {.bytes = 65536, .objects = 10'000});
    return 0;
}

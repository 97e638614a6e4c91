// Update feeds come from a server: no bytes may crash the reader, or make it read more than is
// there.

#include "UpdateFeed.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArrayView bytes(data, qsizetype(size));
    const SignedFeed split = SignedFeed::split(bytes);
    if (split.feed.size() > bytes.size())
        std::abort();
    for (const QByteArrayView &part : {bytes, split.feed}) {
        const auto feed = UpdateFeed::read(part);
        if (!feed)
            continue;
        if (feed->items.size() > UpdateFeed::maxItems)
            std::abort();
        for (const UpdateItem &item : feed->items) {
            if (item.version.isNull() || item.shortVersion.isEmpty()
                || item.notes.size() > 16 * 1024)
                std::abort();
        }
    }
    return 0;
}

#include "PropertyList.h"

#include "PropertyListBinary.h"
#include "PropertyListXml.h"

#include <QFile>

namespace PropertyList
{

std::optional<QVariant> read(QByteArrayView bytes, const Limits &limits)
{
    if (bytes.size() > limits.bytes)
        return {};
    return isBinary(bytes) ? readBinary(bytes, limits) : readXml(bytes, limits);
}

std::optional<QVariantMap> readDictionary(QByteArrayView bytes, const Limits &limits)
{
    const auto value = read(bytes, limits);
    if (!value || value->metaType() != QMetaType::fromType<QVariantMap>())
        return {};
    return value->toMap();
}

std::optional<QVariantMap> readDictionaryFile(const QString &path, const Limits &limits)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    // One byte more than allowed shows that the file is too long.
    return readDictionary(file.read(limits.bytes + 1), limits);
}

} // namespace PropertyList

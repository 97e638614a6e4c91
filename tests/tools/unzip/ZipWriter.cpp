#include "ZipWriter.h"

#include <QtEndian>

namespace
{

template <typename Number>
void append(QByteArray &bytes, Number number)
{
    const Number little = qToLittleEndian(number);
    bytes.append(reinterpret_cast<const char *>(&little), sizeof little);
}

void append16(QByteArray &bytes, std::initializer_list<qsizetype> numbers)
{
    for (const qsizetype number : numbers)
        append(bytes, static_cast<quint16>(number));
}

quint32 crc32(const QByteArray &bytes)
{
    quint32 crc = ~0u;
    for (const char byte : bytes) {
        crc ^= static_cast<quint8>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ (crc & 1 ? 0xedb88320u : 0u);
    }
    return ~crc;
}

} // namespace

void ZipWriter::add(const QByteArray &name, const QByteArray &content, quint32 mode, int flags)
{
    QByteArray common; // the part that both records have
    append16(common, {20, flags, 0, 0, 0x21}); // version, flags, stored, time, 1 January 1980
    append(common, crc32(content));
    append(common, static_cast<quint32>(content.size()));
    append(common, static_cast<quint32>(content.size()));
    append16(common, {name.size(), 0});

    m_directory += QByteArray("PK\1\2") + QByteArray("\x14\3", 2) + common; // made on Unix
    append16(m_directory, {0, 0, 0});
    append(m_directory, mode << 16);
    append(m_directory, static_cast<quint32>(m_entries.size()));
    m_directory += name;
    m_entries += QByteArray("PK\3\4") + common + name + content;
    ++m_count;
}

QByteArray ZipWriter::archive() const
{
    QByteArray end("PK\5\6");
    append16(end, {0, 0, m_count, m_count});
    append(end, static_cast<quint32>(m_directory.size()));
    append(end, static_cast<quint32>(m_entries.size()));
    append16(end, {0});
    return m_entries + m_directory + end;
}

#include "AiffWriter.h"

#include "Failure.h"

#include <QByteArray>
#include <QDataStream>
#include <QIODevice>

#include <unistd.h>

#include <bit>
#include <cerrno>
#include <utility>

namespace standin
{

namespace
{

constexpr std::int64_t headerSize = 54;
constexpr std::int64_t maxData = (std::int64_t{1} << 31) - 1024;
constexpr std::size_t bufferSize = 65536;

// An 80-bit extended number (IEEE 754): exponent with the bias 16383, then 64 bits that begin with
// the leading one.
void writeExtended(QDataStream &out, quint64 value)
{
    const int shift = std::countl_zero(value);
    out << static_cast<quint16>(16383 + 63 - shift) << (value << shift);
}

QByteArray header(std::int64_t dataBytes, int samplesPerSecond)
{
    const auto size = static_cast<quint32>(dataBytes);
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly); // big-endian
    out.writeRawData("FORM", 4);
    out << static_cast<quint32>(size + headerSize - 8);
    out.writeRawData("AIFFCOMM", 8);
    out << quint32{18} << quint16{1} << quint32{size / 2} << quint16{16}; // channels, frames, bits
    writeExtended(out, static_cast<quint64>(samplesPerSecond));
    out.writeRawData("SSND", 4);
    out << quint32{size + 8} << quint64{0}; // offset and block size: unused
    return bytes;
}

} // namespace

AiffWriter::AiffWriter(OutputFile &file) : m_file(file)
{
    m_file.write(std::string(headerSize, '\0').data(), headerSize);
}

void AiffWriter::add(std::string_view samples)
{
    m_bytes += static_cast<std::int64_t>(samples.size());
    if (m_bytes > maxData)
        failWithError(m_file.target(), EFBIG);
    m_buffer += samples;
    if (m_buffer.size() >= bufferSize)
        flush();
}

void AiffWriter::flush()
{
    const std::size_t whole = m_buffer.size() & ~std::size_t{1};
    for (std::size_t index = 0; index < whole; index += 2)
        std::swap(m_buffer[index], m_buffer[index + 1]);
    m_file.write(m_buffer.data(), whole);
    m_buffer.erase(0, whole);
}

void AiffWriter::finish(int samplesPerSecond)
{
    if (m_bytes < 2)
        add(std::string(static_cast<std::size_t>(samplesPerSecond / 10 * 2), '\0'));
    flush();
    const QByteArray bytes = header(m_bytes & ~std::int64_t{1}, samplesPerSecond);
    if (::pwrite(m_file.descriptor(), bytes.data(), headerSize, 0) != headerSize)
        failWithError(m_file.target(), errno);
}

} // namespace standin

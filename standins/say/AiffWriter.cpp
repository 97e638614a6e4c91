#include "AiffWriter.h"

#include "Failure.h"

#include <unistd.h>

#include <algorithm>
#include <bit>
#include <cerrno>
#include <utility>

namespace standin
{

namespace
{

constexpr std::int64_t headerSize = 54;
constexpr std::int64_t largestData = (std::int64_t{1} << 31) - 1024;
constexpr std::size_t bufferSize = 65536;

void appendNumber(std::string &text, std::uint64_t value, int bytes)
{
    for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8)
        text += static_cast<char>(value >> shift & 0xff);
}

// An 80-bit extended number (IEEE 754): exponent with the bias 16383, then 64 bits that begin with
// the leading one.
void appendExtended(std::string &text, std::uint64_t value)
{
    const int shift = std::countl_zero(value);
    appendNumber(text, static_cast<std::uint64_t>(16383 + 63 - shift), 2);
    appendNumber(text, value << shift, 8);
}

std::string header(std::int64_t dataBytes, int samplesPerSecond)
{
    const auto size = static_cast<std::uint64_t>(dataBytes);
    std::string text = "FORM";
    appendNumber(text, size + headerSize - 8, 4);
    text += "AIFFCOMM";
    appendNumber(text, 18, 4);
    appendNumber(text, 1, 2); // channels
    appendNumber(text, size / 2, 4); // sample frames
    appendNumber(text, 16, 2); // bits a sample
    appendExtended(text, static_cast<std::uint64_t>(samplesPerSecond));
    text += "SSND";
    appendNumber(text, size + 8, 4);
    appendNumber(text, 0, 8); // offset and block size: unused
    return text;
}

} // namespace

AiffWriter::AiffWriter(OutputFile &file) : m_file(file)
{
    m_file.write(std::string(headerSize, '\0').data(), headerSize);
}

void AiffWriter::add(std::string_view samples)
{
    m_bytes += static_cast<std::int64_t>(samples.size());
    if (m_bytes > largestData)
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
    const std::string text = header(m_bytes & ~std::int64_t{1}, samplesPerSecond);
    if (::pwrite(m_file.descriptor(), text.data(), text.size(), 0) != headerSize)
        failWithError(m_file.target(), errno);
}

} // namespace standin

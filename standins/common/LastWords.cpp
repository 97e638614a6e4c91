#include "LastWords.h"

namespace standin
{

namespace
{
constexpr std::size_t longestLine = 1000;
}

void LastWords::add(std::string_view bytes)
{
    for (char byte : bytes) {
        if (byte != '\n' && byte != '\r') {
            const bool control = static_cast<unsigned char>(byte) < 0x20 || byte == 0x7f;
            if (m_line.size() < longestLine)
                m_line += control ? ' ' : byte;
        } else if (!m_line.empty()) {
            m_lastLine = m_line;
            m_line.clear();
        }
    }
}

std::string LastWords::text() const
{
    return m_line.empty() ? m_lastLine : m_line;
}

} // namespace standin

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
        } else {
            m_lastLine = text();
            m_line.clear();
        }
    }
}

std::string LastWords::text() const
{
    return saysSomething() ? m_line : m_lastLine;
}

bool LastWords::saysSomething() const
{
    return !m_line.empty() && (m_hollow.empty() || m_line.find(m_hollow) == std::string::npos);
}

} // namespace standin

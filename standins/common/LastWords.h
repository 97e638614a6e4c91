#pragma once

#include <string>
#include <string_view>

namespace standin
{

// Keeps the last line that a child wrote to its standard error: the reason to give when it fails.
// Bounded, whatever the child writes, and free of control characters.
class LastWords
{
public:
    void add(std::string_view bytes);

    // Empty when the child wrote none.
    std::string text() const;

private:
    std::string m_line;
    std::string m_lastLine;
};

} // namespace standin

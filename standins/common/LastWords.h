#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace standin
{

// Keeps the last line that a child wrote to its standard error: the reason to give when it fails.
// Bounded, whatever the child writes, and free of control characters.
class LastWords
{
public:
    // Lines that hold these words are passed over.
    explicit LastWords(std::string hollow = {}) : m_hollow(std::move(hollow)) { }

    void add(std::string_view bytes);

    // Empty when the child wrote none.
    std::string text() const;

private:
    bool saysSomething() const;

    std::string m_hollow;
    std::string m_line;
    std::string m_lastLine;
};

} // namespace standin

#pragma once

#include "Child.h"
#include "FileDescriptor.h"

#include <string_view>

namespace standin
{

struct Speech {
    std::string_view text; // as speakableText() gives it
    std::string voice; // language code
    int rate; // words a minute
};

// espeak-ng reading the text from its standard input, never from its arguments, and writing a WAV
// stream to its standard output. The descriptor holds the text and must live until the start.
class Synthesis
{
public:
    explicit Synthesis(const Speech &speech);
    const Command &command() const { return m_command; }

private:
    FileDescriptor m_text;
    Command m_command;
};

} // namespace standin

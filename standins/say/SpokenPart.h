#pragma once

#include "FileDescriptor.h"

#include <sys/types.h>

#include <cstdint>
#include <string_view>

namespace standin
{

/// How much of a text the synthesiser has spoken, by the phonemes that it notes beside its sound:
/// it says nothing else about its place in the text. It notes a word for a word, more for a number.
class SpokenPart
{
public:
    /// Fails if no file in memory can be made.
    explicit SpokenPart(std::string_view text);

    /// Where the phonemes go.
    int phonemes() const { return m_phonemes.number(); }

    /// From 0 to 1; never less than before.
    double part();

private:
    FileDescriptor m_phonemes;
    std::uint64_t m_words; // of the text
    std::uint64_t m_spoken = 0;
    off_t m_read = 0; // bytes of the phonemes
};

/// Words are parted by blanks and line breaks; a Chinese character, which needs neither, is a word
/// too.
std::uint64_t wordsIn(std::string_view text);

} // namespace standin

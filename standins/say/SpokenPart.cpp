#include "SpokenPart.h"

#include "Synthesiser.h"

#include <QString>

#include <unistd.h>

#include <algorithm>

namespace standin
{

std::uint64_t wordsIn(std::string_view text)
{
    std::uint64_t words = 0;
    bool isInWord = false;
    for (const QChar unit : QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))) {
        const bool isWord = unit.script() == QChar::Script_Han;
        const bool isBlank = unit.isSpace();
        words += isWord || (!isBlank && !isInWord);
        isInWord = !isWord && !isBlank;
    }
    return words;
}

SpokenPart::SpokenPart(std::string_view text) : m_phonemes(textFile({})), m_words(wordsIn(text))
{
}

double SpokenPart::part()
{
    std::array<char, 4096> piece;
    const auto count = ::pread(m_phonemes.number(), piece.data(), piece.size(), m_read);
    if (count > 0) {
        m_read += count;
        m_spoken += std::count_if(piece.begin(), piece.begin() + count,
                                  [](char c) { return c == ' ' || c == '\n'; });
    }
    return m_words > 0 ? std::min(static_cast<double>(m_spoken) / static_cast<double>(m_words), 1.0)
                       : 0;
}

} // namespace standin

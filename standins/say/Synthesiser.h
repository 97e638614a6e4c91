#pragma once

#include "Child.h"

#include <string>
#include <string_view>

namespace standin
{

/// What espeak-ng has to speak.
struct Speech {
    FileDescriptor text; ///< at its beginning; see textFile()
    std::string voice; ///< language code, as voiceCode() gives it
    int rate; ///< words a minute
    int phonemes = -1; ///< descriptor of a file that gets them beside the sound; -1: none
};

/// A file in memory, open at its beginning: nobody has to feed it while the speech is read. Fails
/// if it cannot be made.
FileDescriptor textFile(std::string_view text);

/// Language code of the voice with exactly this title among those of the installed synthesiser; an
/// unknown title fails. The title itself never reaches the synthesiser, which would take a path for
/// a voice file.
std::string voiceCode(const std::string &title);

/// espeak-ng reading the text from its standard input, never from its arguments, and writing a WAV
/// stream to its standard output. The speech must live until the start.
Command synthesis(const Speech &speech);

/// The header that the synthesiser writes before its samples is 44 bytes of RIFF. The lengths in it
/// mean nothing, as it writes them before it knows them.
inline constexpr std::size_t wavHeaderSize = 44;

/// Samples a second by the header, or of nearly all voices if it is empty: without anything to
/// speak the synthesiser writes nothing at all. Fails unless the header is of 16-bit mono PCM.
int sampleRateIn(std::string_view header);

} // namespace standin

#include "Synthesiser.h"

#include "Failure.h"

#include <sys/mman.h>

#include <cerrno>

namespace standin
{

namespace
{

// A file in memory rather than a pipe: nobody has to feed it while the speech is read.
FileDescriptor textFile(std::string_view text)
{
    FileDescriptor file(::memfd_create("text", MFD_CLOEXEC));
    if (::write(file.number(), text.data(), text.size()) != static_cast<ssize_t>(text.size())
        || ::lseek(file.number(), 0, SEEK_SET) != 0)
        failWithError("text", errno);
    return file;
}

} // namespace

Synthesis::Synthesis(const Speech &speech)
    : m_text(textFile(speech.text)), m_command{.program = "espeak-ng",
                                               .package = "espeak-ng",
                                               .arguments = {"-b", "1", "-v", speech.voice, "-s",
                                                             std::to_string(speech.rate), "--stdin",
                                                             "--stdout"},
                                               .input = m_text.number()}
{
}

} // namespace standin

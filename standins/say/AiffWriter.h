#pragma once

#include "OutputFile.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace standin
{

/// Writes 16-bit mono samples as an AIFF file (Audio Interchange File Format 1.3, Apple 1989): big-
/// endian, with the chunks COMM and SSND. The sizes are filled in at the end. Every member fails if
/// the file cannot be written.
class AiffWriter
{
public:
    /// Borrows the file, which is empty.
    explicit AiffWriter(OutputFile &file);

    /// Samples as 16-bit little-endian numbers; may be cut anywhere. Fails beyond 2 GiB, which is
    /// more than the readers of the format take.
    void add(std::string_view samples);

    /// To be called once, after the last sample. A file without any gets a tenth of a second of
    /// silence, as some readers refuse an empty one. The rate is in samples a second.
    void finish(int samplesPerSecond);

private:
    void flush();

    OutputFile &m_file;
    std::string m_buffer; // what came and is not written yet
    std::int64_t m_bytes = 0;
};

} // namespace standin

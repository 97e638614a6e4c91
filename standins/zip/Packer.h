#pragma once

#include "Buffer.h"
#include "Deflater.h"
#include "Report.h"
#include "Turn.h"

/// Reads and packs one turn after the other; one for each thread.
class Packer
{
public:
    Packer(Level level, archive::Report &report) : m_deflater(level), m_report(report) { }

    /// Where a piece of a large file is read to, before its turn is packed.
    Buffer &input() { return m_input; }

    /// The result's bytes may lie in buffers of the packer's until it packs the next.
    PackedTurn pack(Turn turn);

private:
    PackedTurn packWhole(FoundItem item);
    PackedTurn packSmall(FoundItem item, const standin::FileDescriptor &file);
    PackedTurn packBig(FoundItem item, const standin::FileDescriptor &file);
    PackedTurn packPiece(Turn turn);
    PackedTurn lost(FoundItem item, int error);

    Deflater m_deflater;
    archive::Report &m_report;
    Buffer m_input;
    Buffer m_output;
};

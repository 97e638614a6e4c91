#pragma once

#include "PropertyList.h"

namespace PropertyList
{

/// What a reader may still use of its limits; shared by the two forms.
class Budget
{
public:
    explicit Budget(const Limits &limits)
        : m_bytes(limits.bytes), m_objects(limits.objects), m_depth(limits.depth)
    {
    }

    bool takeObject() { return m_objects-- > 0; }
    bool takeBytes(quint64 count)
    {
        if (count > quint64(m_bytes))
            return false;
        m_bytes -= qsizetype(count);
        return true;
    }
    bool enter() { return m_depth-- > 0; }
    void leave() { ++m_depth; }

private:
    qsizetype m_bytes;
    int m_objects;
    int m_depth;
};

/// Whether the bytes claim to be of the binary form.
bool isBinary(QByteArrayView bytes);

/// Reads the binary form: objects, a table of their offsets, and a trailer of 32 bytes that says
/// where the table is and how wide its numbers are. Parts of a list may be named again and again,
/// even in circles: the limits count what is read out, not what is stored. An empty QVariant if the
/// list is refused.
QVariant readBinary(QByteArrayView bytes, const Limits &limits);

} // namespace PropertyList

#pragma once

#include "PropertyList.h"

namespace PropertyList
{

/// What a reader may still spend; shared by the two forms.
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

} // namespace PropertyList

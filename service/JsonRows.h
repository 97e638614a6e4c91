#pragma once

#include "TableSchema.h"

/// Writes the reply to a select: {"RESULT":[…]} with one object per record. The values of a record
/// are added in the order of the columns.
class JsonRows
{
public:
    static constexpr std::size_t maxLength = 64 * 1024 * 1024;

    explicit JsonRows(const TableSchema &table) : m_table(table) { m_text.reserve(256); }

    void add(std::int64_t number);
    void add(std::string_view text); ///< UTF-8.
    void addNull();
    bool isTooLong() const { return m_text.size() > maxLength; }
    std::string take(); ///< The whole reply.

private:
    void beginValue();
    void endValue();
    void appendEscaped(std::string_view text);

    const TableSchema &m_table;
    std::size_t m_column = 0; ///< The next one; past the last at the end of a record.
    std::string m_text = "{\"RESULT\":[";
};

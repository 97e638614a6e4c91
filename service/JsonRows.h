#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

struct TableSchema;

/// Writes the reply to a select: {"RESULT":[…]} with one object per record. The values of a record
/// are added in the order of the columns.
class JsonRows
{
public:
    static constexpr std::size_t maxLength = 64 * 1024 * 1024;

    explicit JsonRows(const TableSchema &table);

    void add(std::int64_t number);
    void add(std::string_view text); ///< UTF-8.
    void addNull();
    bool isTooLong() const { return m_text.size() > maxLength; }
    std::string take(); ///< The whole reply.

private:
    void beginValue();
    void endValue();
    void appendEscaped(std::string_view text);

    std::vector<std::string> m_begins; ///< What stands before each column's value.
    std::size_t m_column = 0;
    std::string m_text = "{\"RESULT\":[";
};

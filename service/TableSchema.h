#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

enum class ColumnKind { Integer, Text };

/// One value of a record: of an integer column or of a text column.
using Value = std::variant<std::int64_t, std::string>;

struct ColumnSchema {
    std::string name;
    ColumnKind kind;
    std::string definition; ///< As it stands in "CREATE TABLE".
};

/// A table as its description in resources/schema has it. Column 0 is the key, "ID".
struct TableSchema {
    std::string name;
    std::vector<ColumnSchema> columns;
    std::vector<std::string> indexes; ///< The columns that have an index.
    int nameColumn = -1; ///< Its values name one record each, -1 if there is no such column.

    /// The column's position, -1 if there is none. Upper and lower case are the same, as in SQL.
    int columnNamed(std::string_view column) const;

    /// Every table that the application describes. Ends the program if a description cannot be
    /// read: it is compiled in.
    static std::vector<TableSchema> readAll();
};

/// Whether two names are the same but for upper and lower case of ASCII.
bool isSameName(std::string_view a, std::string_view b);

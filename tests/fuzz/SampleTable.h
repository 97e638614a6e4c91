#pragma once

#include "TableSchema.h"

#include <cstdint>

/// The application's table of users, without reading its description.
inline const std::vector<TableSchema> &sampleTables()
{
    static const std::vector<TableSchema> tables = {{"User",
                                                     {{"ID", ColumnKind::Integer, ""},
                                                      {"UserGroupID", ColumnKind::Integer, ""},
                                                      {"User", ColumnKind::Text, ""}},
                                                     {},
                                                     2}};
    return tables;
}

inline std::string_view sampleText(const std::uint8_t *data, std::size_t size)
{
    return {reinterpret_cast<const char *>(data), size};
}

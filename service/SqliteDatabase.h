#pragma once

#include "SqliteConnection.h"

/// The database file of the service: WAL, one writer, readers beside it.
namespace SqliteDatabase
{

/// Opens it for writing and makes what is missing: the file, the tables, their indexes. Null, with
/// a line in the log, if a newer version made it, if its tables are others than ours, or on an
/// error; the file is then as it was.
std::unique_ptr<SqliteConnection> openWriter(const std::string &path,
                                             const std::vector<TableSchema> &tables);

/// Opens it for reading; the same if it is not ready yet.
std::unique_ptr<SqliteConnection> openReader(const std::string &path);

} // namespace SqliteDatabase

#pragma once

class QString;

/// Earlier versions kept the record database in the user's own Documents folder.
namespace EarlierDatabase
{

/// Copies such a database to the path, for its owner alone, if nothing is at the path yet and the
/// earlier file holds at least one table of ours. The earlier file stays. Returns 0 if it was
/// copied or there is nothing to take over; otherwise SQLite's result code, with a log line: the
/// records could not be copied now, and nothing is at the path. Blocks for at most one second
/// while another program holds the earlier file.
int takeOver(const QString &path);

} // namespace EarlierDatabase

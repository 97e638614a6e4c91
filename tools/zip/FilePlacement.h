#pragma once

#include <QString>

#include <stop_token>

/// Moves a finished file to its place: renames it there, or, from another file system, copies it
/// under no name, flushes it and only then gives it its name. Returns 0 or the `errno` of the
/// failure, which also goes to the log; ECANCELED if it was stopped. Blocks; any thread.
///
/// What exists at `to` stays byte for byte (EEXIST), and nothing half-written is ever left at `to`
/// or beside it. Afterwards the file is at one of the two paths: at `from` after any failure.
///
/// A stop counts until the file gets its name. What the system is flushing to a slow disk just then
/// is waited for.
int placeFile(const QString &from, const QString &to, const std::stop_token &stop = {});

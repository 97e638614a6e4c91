#pragma once

#include <QByteArray>
#include <QUrl>

/// The bookmark of the folder that the user granted, in the user defaults under
/// "AuthorizedLocation", where it outlives the program. Any thread.
namespace StoredGrant
{

/// Whether a bookmark is stored, of use or not.
bool exists();

/// The granted folder; empty where none is stored or the stored one is of no use any more.
QUrl resolve();

/// Stores the bookmark for good before it returns; a log line says where that failed.
void store(const QByteArray &bookmark);

} // namespace StoredGrant

#pragma once

#include <QString>

/// Finished archives whose place refused them, in a folder of the application's own below its
/// documents folder. They are kept until they are placed or the user discards them, from one start
/// of the program to the next, too. Blocks briefly; any thread, one at a time.
namespace UnplacedArchives
{

/// Moves a finished archive among them, under its name, and returns its new path. The path stays as
/// it is if the archive is one of them already or cannot be moved; empty if there is no archive.
QString keep(const QString &archive);

/// The one that came last; empty if there is none.
QString newest();

/// Removes an archive, or what is left of its entry after it was placed.
void remove(const QString &archive);

} // namespace UnplacedArchives

#pragma once

#include <QImage>
#include <QString>

#include <stop_token>

// The image of one icon, on the disk and from the server. Everything here blocks and may be called
// on any thread. Names must have passed isIconName().

namespace IconFile
{

constexpr qint64 mostBytes = 512 * 1024;
constexpr int longestSide = 1024;

/// An icon's two files in the folder: `name` and, twice as dense, `name@2x`.
enum class Density { Single, Double };

bool exists(const QString &folder, const QString &name, Density density);

/// Fetches the file into the folder if it is missing. What is no PNG image within the limits is not
/// kept.
void fetchMissing(const QString &server, const QString &folder, const QString &name,
                  Density density, const std::stop_token &stop);

/// The image of the single file, made smaller where it is larger than `side`; the double one is
/// fetched and kept, and never read. Null when the file is missing or no PNG image within the
/// limits.
QImage read(const QString &folder, const QString &name, int side);

} // namespace IconFile

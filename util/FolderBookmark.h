#pragma once

#include <QByteArray>

#include <optional>

/// A remembered folder: its path with what tells it from another folder that takes its place later.
/// The data form is "TvBm", a format number, the identity and the path, big-endian, and is checked
/// on the way in: whatever it holds, no more than one file status is asked. Any thread.
namespace FolderBookmark
{

/// The bookmark of what stands at an absolute path (bytes, as the system calls take them); none
/// with errno set where that cannot be asked.
std::optional<QByteArray> make(const QByteArray &path);

/// The path of a bookmark; none with errno set: EBADMSG for data that make() did not give, ESTALE
/// where another folder stands at the path now, else what asking for it gave.
std::optional<QByteArray> resolve(const QByteArray &bookmark);

} // namespace FolderBookmark

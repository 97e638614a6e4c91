#pragma once

#include <QByteArray>

#include <optional>

/// The picture in the bytes of a PNG file (ISO/IEC 15948) and nothing else: those of its chunks
/// that make the picture up, and the small ones of fixed size that say how to show it. Texts,
/// colour profiles and all else that a decoder would unpack along with it are left out; so is what
/// follows the end.
///
/// Nothing for bytes that are not such a file: a wrong checksum, a side that is larger than
/// `maxSide` pixels, or picture data that unpacks to another size than the header says. Takes
/// as much memory as the picture has. Any thread.
std::optional<QByteArray> pictureOfPng(const QByteArray &bytes, quint32 maxSide);

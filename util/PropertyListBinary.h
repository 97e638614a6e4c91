#pragma once

#include "PropertyList.h"

namespace PropertyList
{

/// Whether the bytes claim to be of the binary form.
bool isBinary(QByteArrayView bytes);

/// The binary form alone: objects, a table of their offsets, and a trailer of 32 bytes that says
/// where the table is and how wide its numbers are. The parts of a list may be named again and
/// again, in circles even: the limits count what is read out, not what is stored.
std::optional<QVariant> readBinary(QByteArrayView bytes, const Limits &limits);

} // namespace PropertyList

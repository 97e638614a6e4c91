#pragma once

#include "PropertyList.h"

namespace PropertyList
{

/// The XML form alone; the caller has checked the input's length. A document that declares entities
/// of its own is refused: property lists have no use for them and attackers do.
std::optional<QVariant> readXml(QByteArrayView bytes, const Limits &limits);

} // namespace PropertyList

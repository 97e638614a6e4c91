#pragma once

#include <compare>
#include <string>
#include <string_view>
#include <vector>

namespace hfs
{

// Names as HFS Plus stores them: UTF-16 in the decomposed form of Unicode 3.2 (TN1150, "Unicode
// Subtleties"; Apple Q&A QA1173 for the version and the ranges that stay composed). A ':' is stored
// as '/', as HFS Plus itself separates folders by ':'. Bytes that are not UTF-8 become %XX.

/// The name for a volume. Cut at a character to 255 units; an empty one gives "Untitled".
std::u16string volumeName(const std::string &bytes);

/// The names for the items of one folder, in the same order. Different names stay different: what
/// would clash after decomposition gets its other bytes as %XX, and a name that is too long, or
/// still clashes, is cut and gets a hash of its bytes before its extension. Of several that clash,
/// the one that is stored unchanged keeps its form. Each has 1 to 255 units.
std::vector<std::u16string> itemNames(const std::vector<std::string> &rawNames);

/// Whether the order of plain HFS Plus could depend on its table of folded characters for this
/// name: it holds a character outside of ASCII with a lower-case form, or one that the table
/// ignores (TN1150, "Case-Insensitive String Comparison Algorithm").
bool needsFoldTable(std::u16string_view name);

/// Order of plain HFS Plus. Only for names for which needsFoldTable() is false.
std::strong_ordering compareFolded(std::u16string_view left, std::u16string_view right);

} // namespace hfs

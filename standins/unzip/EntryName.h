#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Names of entries as paths below the destination.
namespace entryname
{

/// The path without empty components and ".", empty for the destination itself. None if it is
/// absolute, holds ".." or a null character, or has more levels than can be made.
std::optional<std::string> below(std::string_view name);

/// The folder of a path, empty for the destination itself.
std::string_view folderOf(std::string_view path);
std::string_view leafOf(std::string_view path);

} // namespace entryname

#include "EntryName.h"

#include <algorithm>

namespace entryname
{

namespace
{
constexpr int maxLevels = 4000; // each keeps a descriptor while its contents are made
}

std::optional<std::string> below(std::string_view name)
{
    if (name.starts_with('/') || name.find('\0') != std::string_view::npos)
        return std::nullopt;
    std::string path;
    int levels = 0;
    while (!name.empty()) {
        const std::string_view component = name.substr(0, name.find('/'));
        name.remove_prefix(std::min(name.size(), component.size() + 1));
        if (component.empty() || component == ".")
            continue;
        if (component == ".." || ++levels > maxLevels)
            return std::nullopt;
        if (!path.empty())
            path += '/';
        path += component;
    }
    return path;
}

std::string_view folderOf(std::string_view path)
{
    const auto slash = path.rfind('/');
    return slash == std::string_view::npos ? std::string_view() : path.substr(0, slash);
}

std::string_view leafOf(std::string_view path)
{
    return path.substr(path.rfind('/') + 1);
}

} // namespace entryname

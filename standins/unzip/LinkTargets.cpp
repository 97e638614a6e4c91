#include "LinkTargets.h"

#include "EntryName.h"
#include "UnzipStatus.h"

#include <limits.h>

#include <algorithm>

bool LinkTargets::isInside(const std::string &linkPath, std::string_view target) const
{
    if (target.empty() || target.starts_with('/') || target.find('\0') != std::string_view::npos)
        return false;
    std::string place(entryname::folderOf(linkPath)); // real folders alone
    bool isBehindLink = false;
    while (!target.empty()) {
        const std::string_view component = target.substr(0, target.find('/'));
        target.remove_prefix(std::min(target.size(), component.size() + 1));
        if (component.empty() || component == ".")
            continue;
        if (component == "..") {
            if (place.empty() || isBehindLink)
                return false;
            place.resize(entryname::folderOf(place).size());
            continue;
        }
        if (!place.empty())
            place += '/';
        place += component;
        // A link that lay there before leads anywhere; those of the archive are not made yet.
        if (m_destination.isLink(place))
            return false;
        isBehindLink = isBehindLink || m_links.contains(place);
    }
    return true;
}

std::optional<std::string> LinkTargets::read(EntryData &data, const Contents::Entry &link,
                                             archive::Report &report) const
{
    const bool isShort = link.size < PATH_MAX && EntryData::isSmall(link);
    const auto target = isShort ? data.readWhole(link) : std::nullopt;
    if (isShort && !target)
        report.leftOut(Damaged, link.path, "Its data is damaged");
    else if (!target || !isInside(link.path, *target))
        report.leftOut(SomethingLeftOut, link.path, "A link that leads out of the folder");
    else
        return std::string(*target);
    return std::nullopt;
}

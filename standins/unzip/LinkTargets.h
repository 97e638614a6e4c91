#pragma once

#include "Contents.h"
#include "Destination.h"
#include "EntryData.h"
#include "Report.h"

#include <optional>
#include <set>
#include <string>
#include <string_view>

/// Decides whether a symbolic link of an archive leads to a place below the destination, whether
/// that exists or not. Links lead through each other: ".." after one of them may go anywhere, so
/// only what passes none before its last ".." counts as inside. Every link that was found inside
/// leads on from a place inside, so following several stays inside as well.
class LinkTargets
{
public:
    explicit LinkTargets(const Destination &destination) : m_destination(destination) { }

    /// Each link of the archive, before the first question.
    void add(const std::string &path) { m_links.insert(path); }

    /// None if it must not be made, which goes into the report.
    std::optional<std::string> read(EntryData &data, const Contents::Entry &link,
                                    archive::Report &report) const;

private:
    bool isInside(const std::string &linkPath, std::string_view target) const;

    const Destination &m_destination;
    std::set<std::string> m_links;
};

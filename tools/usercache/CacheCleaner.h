#pragma once

#include "CacheUpdate.h"

#include <QUrl>

#include <functional>
#include <stop_token>

/// Measures and deletes the ticked categories, and tells in which order the page is to follow. It
/// knows no widget; it blocks, so it is used on a thread of its own, by one thread at a time.
class CacheCleaner
{
public:
    using Report = std::function<void(const CacheUpdate &)>; ///< Called on the cleaner's thread.

    /// `bookmarkURL` is the folder that the user granted; empty where the stored grant has yet to
    /// be resolved. Once `stop` is requested, what is not deleted yet stays, what is not measured
    /// to its end is not told, and no further category is begun.
    CacheCleaner(const QUrl &bookmarkURL, CacheSelection ticked, Report report,
                 std::stop_token stop);

    /// Measures below the granted folder.
    void checkDisk();

    /// Deletes the ticked folders of the user's home, themselves included and without a question,
    /// then measures. Failures are passed over. The page becomes idle twice: the measuring step
    /// ends like any other.
    void cleanDisk();

    /// Where a category is measured. Empty, which has no size, for a base that is empty or "/":
    /// what stands at the root of the file system is nobody's clutter.
    static QString measuredFolder(const QString &base, CacheCategoryIndex category);

private:
    void resolveGrant();
    void measure(CacheCategoryIndex category) const;
    void forEachTicked(const std::function<void(CacheCategoryIndex)> &act) const;

    QUrl m_bookmarkURL;
    CacheSelection m_ticked;
    Report m_report;
    std::stop_token m_stop;
};

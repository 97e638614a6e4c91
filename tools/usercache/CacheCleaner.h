#pragma once

#include "FolderRemoval.h"
#include "FolderSize.h"

#include <QUrl>
#include <QtGlobal>

#include <array>
#include <bitset>
#include <functional>
#include <stop_token>
#include <variant>

/// One kind of clutter in a home folder.
struct CacheCategory {
    const char *titleKey; ///< Key in the table of texts; a size follows the text directly.
    const char *folder; ///< Relative to the home folder, without a slash at either end.
};

/// All kinds in the order in which they are shown, measured and cleaned. Logs and mail downloads
/// are directly in the home folder, on purpose.
inline constexpr std::array<CacheCategory, 5> cacheCategories{{
    {QT_TRID_NOOP("Caches"), "Library/Caches"},
    {QT_TRID_NOOP("Logs"), "Logs"},
    {QT_TRID_NOOP("Downloads"), "Downloads"},
    {QT_TRID_NOOP("Mail Download"), "Mail Downloads"},
    {QT_TRID_NOOP("Trash"), ".Trash"},
}};

/// Place of a category in `cacheCategories`.
using CacheCategoryIndex = std::size_t;

/// Which categories take part, by their place in `cacheCategories`.
using CacheSelection = std::bitset<cacheCategories.size()>;

/// The stored grant was resolved again, because the page had no folder from it.
struct GrantResolved {
    QUrl bookmarkURL;
};

/// A ticked category was measured.
struct FolderMeasured {
    CacheCategoryIndex category;
    FolderMeasurement found;
};

/// A ticked category was deleted, as far as that was possible.
struct FolderCleaned {
    CacheCategoryIndex category;
    FolderRemovalResult result;
};

/// Why a run ended without having done its work.
enum class CacheTrouble {
    NoThread, ///< The system refused a thread, so nothing was begun.
    NoAnswer, ///< It was to stop, but a file system did not answer in time; it was left behind.
};

/// What is on the disk has changed: its figures, and the sizes shown before, are out of date.
struct DiskChanged {
};

/// The page may be used again.
struct CleanerIdle {
};

/// What a worker has for the page, in the order in which the page is to show it.
using CacheUpdate = std::variant<GrantResolved, FolderMeasured, FolderCleaned, CacheTrouble,
                                 DiskChanged, CleanerIdle>;

/// Measures and deletes the ticked categories, and reports in the order in which the page is to
/// follow. It blocks, so it is used on a thread of its own, by one thread at a time.
class CacheCleaner
{
public:
    using Report = std::function<void(const CacheUpdate &)>; ///< Called on the cleaner's thread.

    /// `bookmarkURL` is the folder that the user granted; empty if the stored grant has yet to be
    /// resolved. Once `stop` is requested, what is not deleted yet stays, what is not measured
    /// to its end is not reported, and no further category is begun.
    CacheCleaner(const QUrl &bookmarkURL, CacheSelection ticked, Report report,
                 std::stop_token stop);

    /// Measures below the granted folder.
    void checkDisk();

    /// Deletes the ticked folders of the user's home, themselves included and without a question,
    /// then measures. What refuses is reported and passed over. The page becomes idle twice: the
    /// measuring step ends like any other.
    void cleanDisk();

    /// Where a category is measured. Empty, which has no size, for a base that is empty or "/":
    /// what is at the root of the file system is not clutter.
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

#include "CacheCleaner.h"

#include "MiscTool.h"
#include "PathText.h"
#include "StoredGrant.h"

#include <QFile>

#include <utility>

CacheCleaner::CacheCleaner(const QUrl &bookmarkURL, CacheSelection ticked, Report report,
                           std::stop_token stop)
    : m_bookmarkURL(bookmarkURL), m_ticked(ticked), m_report(std::move(report)),
      m_stop(std::move(stop))
{
}

void CacheCleaner::checkDisk()
{
    resolveGrant();
    const SecurityScopedAccess access(m_bookmarkURL);
    forEachTicked([this](CacheCategoryIndex category) { measure(category); });
    m_report(CleanerIdle{});
}

void CacheCleaner::cleanDisk()
{
    resolveGrant();
    const SecurityScopedAccess access(m_bookmarkURL);
    const QByteArray home = QFile::encodeName(MiscTool::getUserHome());
    forEachTicked([&](CacheCategoryIndex category) {
        m_report(FolderCleaned{
            category,
            removeBelow(home, cacheCategories.at(category).folder, m_stop, FreedBytes::Count)});
    });
    checkDisk();
    m_report(DiskChanged{});
    m_report(CleanerIdle{});
}

void CacheCleaner::resolveGrant()
{
    if (!m_bookmarkURL.isEmpty())
        return;
    m_bookmarkURL = StoredGrant::resolve();
    if (!m_bookmarkURL.isEmpty())
        m_report(GrantResolved{m_bookmarkURL});
}

QString CacheCleaner::measuredFolder(const QString &base, CacheCategoryIndex category)
{
    if (base.size() < 2)
        return {};
    return appendPathComponent(base, QString::fromLatin1(cacheCategories.at(category).folder));
}

void CacheCleaner::measure(CacheCategoryIndex category) const
{
    const QString folder = measuredFolder(m_bookmarkURL.toLocalFile(), category);
    const FolderMeasurement found = measureFolder(QFile::encodeName(folder), m_stop);
    if (!m_stop.stop_requested()) // else that is not all of it
        m_report(FolderMeasured{category, found});
}

void CacheCleaner::forEachTicked(const std::function<void(CacheCategoryIndex)> &act) const
{
    for (CacheCategoryIndex category = 0; category < m_ticked.size(); ++category) {
        if (m_ticked.test(category) && !m_stop.stop_requested())
            act(category);
    }
}

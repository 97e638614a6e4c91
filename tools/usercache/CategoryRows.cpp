#include "CategoryRows.h"

#include "MiscTool.h"
#include "PathText.h"
#include "PlainToolTip.h"

#include <QCheckBox>
#include <QLabel>

#include <cerrno>

namespace
{

QString titleOf(CacheCategoryIndex category)
{
    return qtTrId(cacheCategories.at(category).titleKey);
}

QString sizeText(std::uint64_t bytes)
{
    return bytes != 0 ? MiscTool::convertBytes(bytes) : qtTrId("UserCache.Empty");
}

QString reasonText(int error)
{
    switch (error) {
    case EACCES:
    case EPERM:
        return qtTrId("UserCache.Reason.Permission");
    case EXDEV:
    case EBUSY:
        return qtTrId("UserCache.Reason.Mounted");
    case ELOOP:
    case ENOTDIR:
        return qtTrId("UserCache.Reason.Link");
    case ECANCELED:
        return qtTrId("UserCache.Reason.Stopped");
    default:
        return qt_error_string(error);
    }
}

// Empty if the size says it all.
QString findingText(const FolderMeasurement &found)
{
    if (found.error == ENOENT)
        return qtTrId("UserCache.Missing");
    if (found.error == ENOTDIR)
        return qtTrId("UserCache.NotAFolder");
    if (found.error != 0)
        return qtTrId("UserCache.Unreadable");
    if (found.isPartial)
        return qtTrId("UserCache.PartlyUnreadable");
    return found.bytes == 0 ? sizeText(0) : QString();
}

QString cleaningText(const FolderRemovalResult &result)
{
    if (result.refused == 0)
        return result.removed == 0 ? qtTrId("UserCache.Missing")
                                   : qtTrId("UserCache.Freed").arg(sizeText(result.freed));
    const QString reason = reasonText(result.firstError);
    if (result.removed == 0)
        return qtTrId("UserCache.Stayed").arg(reason);
    return qtTrId("UserCache.FreedPartly").arg(sizeText(result.freed), reason);
}

void showResult(const CategoryRows::Row &row, const QString &text)
{
    row.result->setText(text);
    row.box->setAccessibleDescription(text);
}

} // namespace

CacheSelection CategoryRows::ticked() const
{
    CacheSelection ticked;
    for (CacheCategoryIndex category = 0; category < ticked.size(); ++category)
        ticked.set(category, m_rows.at(category).box->checkState() == Qt::Checked);
    return ticked;
}

void CategoryRows::setEnabled(bool enabled) const
{
    for (const Row &row : m_rows)
        row.box->setEnabled(enabled);
}

void CategoryRows::showPaths(const QString &home) const
{
    for (CacheCategoryIndex category = 0; category < m_rows.size(); ++category) {
        const auto folder = QString::fromLatin1(cacheCategories.at(category).folder);
        m_rows.at(category).box->setToolTip(plainToolTip(appendPathComponent(home, folder)));
    }
}

void CategoryRows::showPlainTitles() const
{
    for (CacheCategoryIndex category = 0; category < m_rows.size(); ++category)
        m_rows.at(category).box->setText(titleOf(category));
}

void CategoryRows::clearResults(CacheSelection rows) const
{
    for (CacheCategoryIndex category = 0; category < m_rows.size(); ++category) {
        if (rows.test(category))
            showResult(m_rows.at(category), {});
    }
}

void CategoryRows::show(const FolderMeasured &measured) const
{
    const Row &row = m_rows.at(measured.category);
    const auto bytes = static_cast<std::uint64_t>(measured.found.bytes);
    row.box->setText(titleOf(measured.category)
                     + (bytes != 0 ? MiscTool::convertBytes(bytes) : QString()));
    // After a deletion its result says more than what is left.
    if (row.result->text().isEmpty())
        showResult(row, findingText(measured.found));
}

void CategoryRows::show(const FolderCleaned &cleaned) const
{
    showResult(m_rows.at(cleaned.category), cleaningText(cleaned.result));
}

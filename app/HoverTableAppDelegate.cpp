#include "HoverTableAppDelegate.h"

#include "ContainerBox.h"
#include "HoverTableRowView.h"
#include "HoverTableView.h"
#include "JobList.h"
#include "Notifier.h"

#include <QAccessible>
#include <QApplication>
#include <QFontInfo>

#include <algorithm>
#include <utility>

// The requested size, which stays the same; the size of the matched font may shrink each time.
static qreal pointSize(const QFont &font)
{
    return font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
}

HoverTableAppDelegate::HoverTableAppDelegate(const QList<Tool> &tools, JobList &jobs,
                                             AppDelegate &appDelegate, HoverTableView &tableView,
                                             QObject *parent)
    : QAbstractListModel(parent), m_appDelegate(appDelegate), m_tableView(tableView), m_jobs(jobs)
{
    for (const Tool &tool : tools)
        m_naviItems += getNaviItem(qtTrId(tool.nameKey), QString::fromLatin1(tool.imageName));
    for (const Tool &tool : tools) {
        QWidget *page = tool.makePage(jobs, appDelegate.container);
        page->hide(); // it would appear together with its window
        m_viewItems += page;
    }
    m_tableView.setModel(this);
    connect(m_tableView.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &HoverTableAppDelegate::tableViewSelectionDidChange);
    connect(&m_jobs, &JobList::changed, this, &HoverTableAppDelegate::showRunningJobs);
    connect(&m_jobs, &JobList::jobEnded, this, &HoverTableAppDelegate::announceEnd);
}

HoverTableAppDelegate::NaviItem HoverTableAppDelegate::getNaviItem(const QString &name,
                                                                   const QString &image)
{
    return {image, qtTrId(name.toUtf8().constData())};
}

void HoverTableAppDelegate::tableViewSelectionDidChange()
{
    for (int row = 0; row < numberOfRowsInTableView(); ++row) {
        const HoverTableRowView *rowView = m_tableView.rowView(row);
        if (!rowView)
            continue;
        QFont font = QApplication::font();
        font.setPointSize(static_cast<int>(pointSize(rowView->textField()->font())));
        font.setBold(rowView->isSelected());
        rowView->textField()->setFont(font);
        if (rowView->isSelected() && row < m_viewItems.size() && m_tableView.isInView(row))
            m_appDelegate.container->setContentView(m_viewItems.at(row));
    }
}

void HoverTableAppDelegate::selectTool(int row)
{
    m_tableView.scrollTo(index(row)); // a row out of view shows no page
    m_tableView.setCurrentIndex(index(row));
}

bool HoverTableAppDelegate::showPage(const QString &page)
{
    const qsizetype row = rowOf(page);
    if (row >= 0)
        selectTool(static_cast<int>(row));
    return row >= 0;
}

qsizetype HoverTableAppDelegate::rowOf(const QString &page) const
{
    const auto item = std::ranges::find(m_viewItems, page, &QObject::objectName);
    return item == m_viewItems.end() ? -1 : item - m_viewItems.begin();
}

int HoverTableAppDelegate::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : numberOfRowsInTableView();
}

QVariant HoverTableAppDelegate::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const NaviItem item = objectValueForTableColumn(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return item.name;
    case HoverTableView::ImageNameRole:
        return item.icon;
    case Qt::AccessibleDescriptionRole: // screen readers do not find the dot on the row
        return isRunning(index.row()) ? qtTrId("Sidebar.Running") : QString();
    default:
        return {};
    }
}

void HoverTableAppDelegate::closePages()
{
    qDeleteAll(std::exchange(m_viewItems, {})); // what they still end reads the list
}

void HoverTableAppDelegate::showRunningJobs()
{
    for (int row = 0; row < m_viewItems.size(); ++row) {
        if (HoverTableRowView *rowView = m_tableView.rowView(row))
            rowView->setRunning(isRunning(row));
    }
    if (!m_viewItems.isEmpty())
        Q_EMIT dataChanged(index(0), index(numberOfRowsInTableView() - 1),
                           {Qt::AccessibleDescriptionRole});
}

bool HoverTableAppDelegate::isRunning(int row) const
{
    return std::ranges::any_of(m_jobs.running(), [&](const RunningJob &job) {
        return row < m_viewItems.size()
            && job.description.page == m_viewItems.at(row)->objectName();
    });
}

// A screen reader announces it on whichever page its user is.
void HoverTableAppDelegate::announceEnd(const RunningJob &job, JobOutcome outcome)
{
    const qsizetype row = rowOf(job.description.page);
    if (row < 0)
        return;
    m_viewItems.at(row)->setAccessibleDescription(jobSummary(job.description, outcome));
    QAccessibleEvent alert(m_viewItems.at(row), QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

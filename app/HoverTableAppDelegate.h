#pragma once

#include "AppDelegate.h"
#include "Tool.h"

#include <QAbstractListModel>
#include <QList>

class HoverTableView;

/// The sidebar's data source and delegate, and the owner of the tool pages: it makes each page
/// once, in the order of the list, and puts the page of the chosen row into the main window's
/// container.
class HoverTableAppDelegate : public QAbstractListModel
{
    Q_OBJECT

public:
    struct NaviItem {
        QString icon; ///< Image name.
        QString name; ///< Text shown to the user.
    };

    HoverTableAppDelegate(const QList<Tool> &tools, JobList &jobs, AppDelegate &appDelegate,
                          HoverTableView &tableView, QObject *parent = nullptr);

    /// The name is looked up in the table of texts once more, so a text that is itself a key is
    /// replaced again.
    static NaviItem getNaviItem(const QString &name, const QString &image);

    int numberOfRowsInTableView() const { return static_cast<int>(m_naviItems.size()); }
    NaviItem objectValueForTableColumn(int row) const { return m_naviItems.at(row); }
    void tableViewSelectionDidChange();

    QWidget *viewItem(int row) const { return m_viewItems.at(row); }
    void selectTool(int row);
    /// Destroys the pages for good, and with each the runs that it still has.
    void closePages();

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    void showRunningJobs();
    bool isRunning(int row) const;

    AppDelegate &m_appDelegate;
    HoverTableView &m_tableView;
    JobList &m_jobs;
    QList<NaviItem> m_naviItems;
    QList<QWidget *> m_viewItems;
};

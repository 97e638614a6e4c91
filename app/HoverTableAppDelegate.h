#pragma once

#include "AppDelegate.h"
#include "Job.h"
#include "Tool.h"

#include <QAbstractListModel>
#include <QList>

class HoverTableView;
struct RunningJob;

/// The sidebar's data source and delegate, and the owner of the tool pages: it makes each page
/// once, in the order of the list, and puts the page of the chosen row into the main window's
/// container. Interface thread only.
class HoverTableAppDelegate : public QAbstractListModel
{
    Q_OBJECT

public:
    struct NaviItem {
        QString icon; ///< Image name.
        QString name; ///< Text shown to the user.
    };

    /// Makes all pages, hidden, as children of the delegate's container. List, delegate and view
    /// must outlive this object.
    HoverTableAppDelegate(const QList<Tool> &tools, JobList &jobs, AppDelegate &appDelegate,
                          HoverTableView &tableView, QObject *parent = nullptr);

    /// The name is looked up in the table of texts once more, so a text that is itself a key is
    /// replaced again.
    static NaviItem getNaviItem(const QString &name, const QString &image);

    /// All rows must be in range: 0 up to this number.
    int numberOfRowsInTableView() const { return static_cast<int>(m_naviItems.size()); }
    NaviItem objectValueForTableColumn(int row) const { return m_naviItems.at(row); }
    /// Makes the selected row's name bold and shows its page, unless the row is scrolled out of
    /// view.
    void tableViewSelectionDidChange();

    /// The page of a row, owned by the container. Not after closePages().
    QWidget *viewItem(int row) const { return m_viewItems.at(row); }
    void selectTool(int row); ///< As if the user had scrolled to it and clicked it.
    /// Selects the tool whose page has this name: its class name, as in JobDescription::page.
    /// Returns false and does nothing if no tool has such a page.
    bool showPage(const QString &page);
    /// Destroys the pages for good, which ends their runs. No row leads to a page after that.
    void closePages();

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    qsizetype rowOf(const QString &page) const; ///< -1 for a page of no tool.
    void showRunningJobs();
    bool isRunning(int row) const;
    /// Lets screen readers say how a run ended.
    void announceEnd(const RunningJob &job, JobOutcome outcome);

    AppDelegate &m_appDelegate;
    HoverTableView &m_tableView;
    JobList &m_jobs;
    QList<NaviItem> m_naviItems;
    QList<QWidget *> m_viewItems;
};

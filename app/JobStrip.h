#pragma once

#include "JobList.h"

#include <QScrollArea>
#include <QTimer>

#include <vector>

class JobRow;

/// The strip below the sidebar's list that shows the running jobs. It is visible only while
/// something runs, takes its room from the empty end of the list of tools, so that no page moves,
/// and scrolls from the fourth row on. A job is shown after 300 ms: shorter ones would only
/// flicker. Interface thread only.
class JobStrip : public QScrollArea
{
    Q_OBJECT

public:
    explicit JobStrip(QWidget *parent = nullptr);

    /// Shows what this list holds. Called once; the list must outlive the strip.
    void setJobs(JobList &jobs);

    QSize sizeHint() const override; ///< Of three rows at most; empty without jobs.
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

Q_SIGNALS:
    /// The user pressed a job's button. The name is that of JobDescription::page.
    void pageWanted(const QString &page);

private:
    /// Makes the rows those of the list, and the strip visible or hidden.
    void updateRows();
    void removeEnded();
    void addRows();
    void addRow(const RunningJob &job);
    void showProgress(JobId id);
    void showElapsed();

    JobList *m_jobs = nullptr;
    std::vector<JobRow *> m_rows; ///< In the order of the list.
    QTimer m_showTimer;
    QTimer m_elapsedTimer;
};

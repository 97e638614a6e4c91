#pragma once

#include "JobList.h"

#include <QWidget>

class JobRowButton;
class QPushButton;

/// One running job in the strip: a button that names the job and leads to its page, and a button
/// that stops it.
class JobRow : public QWidget
{
    Q_OBJECT

public:
    /// Shows the job as it is now; the row does not follow the list.
    explicit JobRow(const RunningJob &job, QWidget *parent = nullptr);

    JobId id() const { return m_id; }
    void showElapsed(); ///< Updates the time that the job has run.

Q_SIGNALS:
    void pageWanted(const QString &page); ///< The name of a page, as in JobDescription.
    void stopWanted(JobId id); ///< At most once: the button is disabled then.

protected:
    /// Lets Return and Enter press the button that has the focus.
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QPushButton *makeStopButton(const QString &title);

    JobId m_id;
    QElapsedTimer m_started;
    JobRowButton *m_button;
};

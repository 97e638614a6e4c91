#pragma once

#include "JobList.h"

#include <QWidget>

class JobRowButton;
class QPushButton;

/// One running job in the strip: what it is, the way to its page, and the way to stop it.
class JobRow : public QWidget
{
    Q_OBJECT

public:
    explicit JobRow(const RunningJob &job, QWidget *parent = nullptr);

    JobId id() const { return m_id; }
    void showElapsed(); ///< As of now.

Q_SIGNALS:
    void pageWanted(const QString &page);
    void stopWanted(JobId id);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QPushButton *makeStopButton(const QString &title);

    JobId m_id;
    QElapsedTimer m_started;
    JobRowButton *m_button;
};

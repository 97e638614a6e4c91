#pragma once

#include <QPushButton>

/// The part of a job's row that names the job: its title and how long it has run, and below them
/// what it is done to, shortened in the middle. What it says can change every second without any
/// layout being done again.
class JobRowButton : public QPushButton
{
    Q_OBJECT

public:
    JobRowButton(const QString &title, const QString &subject, QWidget *parent);

    void setElapsed(const QString &elapsed);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void focusInEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_title;
    QString m_subject;
    QString m_elapsed;
};

#pragma once

#include <QWidget>

/// The small sign at the end of a sidebar row whose page is at work.
class RunningMark : public QWidget
{
    Q_OBJECT

public:
    explicit RunningMark(QWidget *parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};

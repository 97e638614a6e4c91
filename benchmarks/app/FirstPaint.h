#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

/// Ends the program once the window has been painted for the first time, everything in it included.
class FirstPaint : public QObject
{
public:
    explicit FirstPaint(QWidget &window) { window.installEventFilter(this); }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        return false;
    }
};

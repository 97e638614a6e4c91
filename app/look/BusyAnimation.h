#pragma once

#include <QBasicTimer>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QWidget>

/// Keeps indeterminate progress bars moving: each paint of one asks for the next, so a bar that is
/// hidden or finished costs nothing and needs no word to stop. Interface thread only.
class BusyAnimation : public QObject
{
    Q_OBJECT

public:
    /// How far the movement has come, 0 to 1; where animations are switched off always 0.5.
    qreal phase(const QWidget *widget) const;
    /// The widget is repainted at the next step. A null widget is ignored.
    void keepMoving(const QWidget *widget);

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    QBasicTimer m_timer;
    QList<QPointer<QWidget>> m_painted;
};

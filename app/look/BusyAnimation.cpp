#include "BusyAnimation.h"

#include <QStyle>

#include <chrono>

namespace
{
constexpr int stepMilliseconds = 33;
constexpr int roundMilliseconds = 1600;
} // namespace

static bool isAnimated(const QWidget *widget)
{
    return widget
        && widget->style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, widget) > 0;
}

qreal BusyAnimation::phase(const QWidget *widget) const
{
    if (!isAnimated(widget))
        return 0.5;
    using namespace std::chrono;
    const auto now = duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
    return qreal(now % roundMilliseconds) / roundMilliseconds;
}

void BusyAnimation::keepMoving(const QWidget *widget)
{
    if (!isAnimated(widget))
        return;
    QPointer<QWidget> painted(const_cast<QWidget *>(widget));
    if (!m_painted.contains(painted))
        m_painted.append(std::move(painted));
    if (!m_timer.isActive())
        m_timer.start(stepMilliseconds, this);
}

void BusyAnimation::timerEvent(QTimerEvent *)
{
    const QList<QPointer<QWidget>> painted = std::exchange(m_painted, {});
    if (painted.isEmpty())
        m_timer.stop();
    for (const QPointer<QWidget> &widget : painted)
        if (widget)
            widget->update();
}

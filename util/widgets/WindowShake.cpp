#include "WindowShake.h"

#include <cmath>

namespace
{

constexpr float swing = 0.02F; // of the window's width
constexpr float swingSeconds = 0.1F; // one swing from left to right
constexpr int swings = 4;

} // namespace

double WindowShake::offset(int windowWidth)
{
    return static_cast<double>(swing) * windowWidth;
}

void WindowShake::start(QWidget *window)
{
    if (!window)
        return;
    const auto running = window->findChildren<WindowShake *>(QString(), Qt::FindDirectChildrenOnly);
    for (WindowShake *shake : running)
        shake->stop();
    (new WindowShake(window))->QVariantAnimation::start(DeleteWhenStopped);
}

WindowShake::WindowShake(QWidget *window)
    : QVariantAnimation(window), m_window(window), m_home(window->pos())
{
    const double distance = offset(window->width());
    setStartValue(m_home.x() - distance);
    setEndValue(m_home.x() + distance);
    setDuration(static_cast<int>(std::lround(swingSeconds * 1000)));
    setLoopCount(swings);
    connect(this, &QVariantAnimation::valueChanged, window,
            [this](const QVariant &x) { m_window->move(qRound(x.toDouble()), m_home.y()); });
}

void WindowShake::updateState(State newState, State oldState)
{
    QVariantAnimation::updateState(newState, oldState);
    if (newState == Stopped)
        m_window->move(m_home);
}

#pragma once

#include <QPoint>
#include <QVariantAnimation>
#include <QWidget>

/// Swings a window left and right and leaves it where it stood. Lives as a child of the window
/// while it runs. Interface thread only.
class WindowShake : public QVariantAnimation
{
    Q_OBJECT

public:
    /// Starts the animation and returns at once; a shake that is still running ends first, so that
    /// the window never drifts. No window, no shake. Where the desktop places windows itself
    /// (Wayland) nothing moves.
    static void start(QWidget *window);

    /// How far a window of this width swings to either side, in pixels.
    static double offset(int windowWidth);

private:
    explicit WindowShake(QWidget *window);
    void updateState(State newState, State oldState) override;

    QWidget *m_window;
    QPoint m_home;
};

#pragma once

#include <QWidget>

/// A white veil over one window that fades within a moment: the visible side of an alert. It takes
/// no input and destroys itself. Interface thread only.
class FlashOverlay : public QWidget
{
    Q_OBJECT

public:
    static void flash(QWidget *window);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    explicit FlashOverlay(QWidget *window);

    qreal m_opacity = 0;
};

#include "FlashOverlay.h"

#include <QPainter>
#include <QVariantAnimation>

namespace
{

constexpr qreal strongest = 0.7;
constexpr int fadeMilliseconds = 180;

} // namespace

void FlashOverlay::flash(QWidget *window)
{
    if (window->findChild<FlashOverlay *>(QString(), Qt::FindDirectChildrenOnly))
        return; // one flash at a time is enough
    auto *overlay = new FlashOverlay(window);
    overlay->show();
    overlay->raise();
}

FlashOverlay::FlashOverlay(QWidget *window) : QWidget(window), m_opacity(strongest)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(window->rect());
    auto *fade = new QVariantAnimation(this);
    fade->setStartValue(strongest);
    fade->setEndValue(0.0);
    fade->setDuration(fadeMilliseconds);
    connect(fade, &QVariantAnimation::valueChanged, this, [this](const QVariant &value) {
        m_opacity = value.toReal();
        update();
    });
    connect(fade, &QVariantAnimation::finished, this, &QObject::deleteLater);
    fade->start();
}

void FlashOverlay::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setOpacity(m_opacity);
    painter.fillRect(rect(), Qt::white);
}

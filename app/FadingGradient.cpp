#include "FadingGradient.h"

#include <QColor>
#include <QPainter>

FadingGradient::FadingGradient(const QColor &color) : m_gradient(0, 0, 1, 0)
{
    QColor transparent = color;
    transparent.setAlpha(0);
    m_gradient.setCoordinateMode(QGradient::ObjectMode);
    m_gradient.setStops({{0.0, transparent}, {0.35, color}, {0.65, color}, {1.0, transparent}});
}

void FadingGradient::draw(QPainter &painter, const QRectF &rect) const
{
    painter.fillRect(rect, m_gradient);
}

const FadingGradient &FadingGradient::separator()
{
    static const FadingGradient gradient(QColor::fromRgbF(0.8F, 0.8F, 0.8F));
    return gradient;
}

#pragma once

#include <QLinearGradient>
#include <QRectF>

class QColor;
class QPainter;

/// A colour that fades in from the left and out to the right of a rectangle: the hover band of a
/// sidebar row and every separator line.
class FadingGradient
{
public:
    explicit FadingGradient(const QColor &color);

    void draw(QPainter &painter, const QRectF &rect) const;

    /// The one gradient of all separator lines, made on first use.
    static const FadingGradient &separator();

private:
    QLinearGradient m_gradient;
};

#include "GaugeDrawing.h"

#include "PanelDrawing.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

#include <algorithm>

namespace
{

constexpr int grooveThickness = 4;
constexpr int progressThickness = 6;
constexpr int shortestScrollHandle = 32;
constexpr qreal busyShare = 0.3; // of the bar's width

QRectF centredBand(const QRectF &rect, qreal thickness)
{
    return QRectF(rect.left(), rect.center().y() - thickness / 2, rect.width(), thickness);
}

// From the leading edge on, mirrored where texts run from right to left.
QRectF part(const QRectF &band, qreal from, qreal to, bool mirrored)
{
    const qreal left = mirrored ? 1 - to : from;
    return QRectF(band.left() + band.width() * left, band.top(), band.width() * (to - from),
                  band.height());
}

void pill(QPainter &painter, const QRectF &rect, const QColor &color)
{
    drawing::roundedPanel(painter, rect, std::min(rect.width(), rect.height()) / 2, color,
                          QColor());
}

void busyPiece(QPainter &painter, const QRectF &band, qreal phase, bool mirrored,
               const QColor &color)
{
    // It enters on one side and leaves on the other, slower at both ends.
    const qreal eased = phase * phase * (3 - 2 * phase);
    const qreal from = eased * (1 + busyShare) - busyShare;
    const qreal start = std::max(0.0, from);
    const qreal end = std::min(1.0, from + busyShare);
    if (end > start)
        pill(painter, part(band, start, end, mirrored), color);
}

int tickStep(const QStyleOptionSlider &option)
{
    if (option.tickInterval > 0)
        return option.tickInterval;
    const bool areFew = option.maximum - option.minimum <= option.pageStep;
    return std::max(1, areFew ? option.singleStep : option.pageStep);
}

void ticks(QPainter &painter, const QStyleOptionSlider &option)
{
    if (option.tickPosition == QSlider::NoTicks || option.orientation != Qt::Horizontal)
        return;
    const int room = option.rect.width() - drawing::knobSize;
    const int top = drawing::sliderHandle(option).bottom() + 2;
    for (int value = option.minimum; value <= option.maximum; value += tickStep(option)) {
        const int offset = QStyle::sliderPositionFromValue(option.minimum, option.maximum, value,
                                                           room, option.upsideDown);
        painter.fillRect(QRect(option.rect.left() + drawing::knobSize / 2 + offset, top, 1, 4),
                         option.palette.color(QPalette::Dark));
    }
}

// The track, and the part of it that the value has reached.
void track(QPainter &painter, const QStyleOptionSlider &option, const QPointF &middle)
{
    const QRectF rect = option.rect;
    QRectF band = rect;
    QRectF reached;
    if (option.orientation == Qt::Horizontal) {
        band =
            QRectF(rect.left(), middle.y() - grooveThickness / 2.0, rect.width(), grooveThickness);
        reached = band;
        option.upsideDown ? reached.setLeft(middle.x()) : reached.setRight(middle.x());
    } else {
        band =
            QRectF(middle.x() - grooveThickness / 2.0, rect.top(), grooveThickness, rect.height());
        reached = band;
        option.upsideDown ? reached.setTop(middle.y()) : reached.setBottom(middle.y());
    }
    pill(painter, band, option.palette.color(QPalette::Mid));
    pill(painter, reached, option.palette.color(QPalette::Highlight));
}

} // namespace

bool drawing::isBusy(const QStyleOptionProgressBar &option)
{
    return option.minimum == 0 && option.maximum == 0;
}

void drawing::progressBar(QPainter &painter, const QStyleOptionProgressBar &option, qreal phase)
{
    const QPalette &palette = option.palette;
    const bool mirrored = (option.direction == Qt::RightToLeft) != option.invertedAppearance;
    QRect bar = option.rect;
    if (option.textVisible && !isBusy(option) && !option.text.isEmpty()) {
        const int textWidth = option.fontMetrics.horizontalAdvance(option.text);
        bar.setWidth(std::max(0, bar.width() - textWidth - 10));
        bar = QStyle::visualRect(option.direction, option.rect, bar);
        painter.setPen(palette.color(QPalette::WindowText));
        const auto trailing =
            QStyle::visualAlignment(option.direction, Qt::AlignRight | Qt::AlignVCenter);
        painter.drawText(option.rect, int(trailing) | Qt::TextSingleLine, option.text);
    }
    const QRectF band = centredBand(bar, progressThickness);
    const QColor accent = palette.color(QPalette::Highlight);
    pill(painter, band, palette.color(QPalette::Midlight));
    if (isBusy(option)) {
        busyPiece(painter, band, phase, mirrored, accent);
        return;
    }
    const qreal range = std::max(1.0, qreal(option.maximum) - option.minimum);
    const qreal share = std::clamp((qreal(option.progress) - option.minimum) / range, 0.0, 1.0);
    if (share > 0)
        pill(painter, part(band, 0, share, mirrored), accent);
}

QRect drawing::sliderHandle(const QStyleOptionSlider &option)
{
    const bool isHorizontal = option.orientation == Qt::Horizontal;
    const QRect &rect = option.rect;
    const int length = isHorizontal ? rect.width() : rect.height();
    const int across = isHorizontal ? rect.height() : rect.width();
    const int ticksRoom = option.tickPosition == QSlider::NoTicks ? 0 : 6;
    const int start =
        QStyle::sliderPositionFromValue(option.minimum, option.maximum, option.sliderPosition,
                                        length - knobSize, option.upsideDown);
    const int side = (across - knobSize - ticksRoom) / 2;
    const QPoint place = isHorizontal ? QPoint(start, side) : QPoint(side, start);
    return QRect(rect.topLeft() + place, QSize(knobSize, knobSize));
}

void drawing::slider(QPainter &painter, const QStyleOptionSlider &option)
{
    const QPalette &palette = option.palette;
    const bool isEnabled = option.state & QStyle::State_Enabled;
    const QRectF knob = sliderHandle(option);
    ticks(painter, option);
    track(painter, option, knob.center());

    const bool isHeld = option.activeSubControls & QStyle::SC_SliderHandle;
    const bool isFocused = option.state & QStyle::State_HasFocus;
    const QColor edge =
        palette.color(isEnabled && (isHeld || isFocused) ? QPalette::Highlight : QPalette::Dark);
    const QColor face = palette.color(isEnabled ? QPalette::Light : QPalette::Midlight);
    roundedPanel(painter, knob, knobSize / 2.0, face, edge, isFocused ? 2 : 1.2);
}

QRect drawing::scrollBarHandle(const QStyleOptionSlider &option)
{
    const bool isHorizontal = option.orientation == Qt::Horizontal;
    const int length = isHorizontal ? option.rect.width() : option.rect.height();
    const qint64 range = qint64(option.maximum) - option.minimum;
    int handle = length;
    if (range > 0) {
        handle =
            int(qint64(length) * option.pageStep / std::max<qint64>(1, range + option.pageStep));
        handle = std::min(length, std::max(handle, shortestScrollHandle));
    }
    const int start = QStyle::sliderPositionFromValue(
        option.minimum, option.maximum, option.sliderPosition, length - handle, option.upsideDown);
    const QRect rect = isHorizontal ? QRect(start, 0, handle, option.rect.height())
                                    : QRect(0, start, option.rect.width(), handle);
    return rect.translated(option.rect.topLeft());
}

QRect drawing::scrollBarPart(const QStyleOptionSlider &option, QStyle::SubControl part)
{
    const QRect handle = scrollBarHandle(option);
    QRect before = option.rect;
    QRect after = option.rect;
    if (option.orientation == Qt::Horizontal) {
        before.setRight(handle.left() - 1);
        after.setLeft(handle.right() + 1);
    } else {
        before.setBottom(handle.top() - 1);
        after.setTop(handle.bottom() + 1);
    }
    if (option.upsideDown)
        std::swap(before, after);
    switch (part) {
    case QStyle::SC_ScrollBarSlider:
        return handle;
    case QStyle::SC_ScrollBarGroove:
        return option.rect;
    case QStyle::SC_ScrollBarSubPage:
        return before;
    case QStyle::SC_ScrollBarAddPage:
        return after;
    default:
        return {};
    }
}

void drawing::scrollBar(QPainter &painter, const QStyleOptionSlider &option,
                        QPalette::ColorRole ground)
{
    const QPalette &palette = option.palette;
    painter.fillRect(option.rect, palette.color(ground));
    if (option.maximum <= option.minimum)
        return;
    const bool isHeld = option.state & QStyle::State_Sunken;
    const bool isHovered = option.activeSubControls & QStyle::SC_ScrollBarSlider;
    const QColor color = palette.color(isHeld || isHovered ? QPalette::Dark : QPalette::Mid);
    pill(painter, QRectF(scrollBarHandle(option)).adjusted(3, 3, -3, -3), color);
}

#include "Drawing.h"

#include <QPainter>

#include <algorithm>

namespace
{

constexpr qreal cardRadius = 9;
constexpr qreal controlRadius = 6;
constexpr qreal checkRadius = 4.5;
constexpr qreal ringRadius = 4;
constexpr qreal ringWidth = 2;
constexpr int grooveHeight = 4;
constexpr int progressHeight = 6;
constexpr qreal busyShare = 0.3; // of the bar's width

bool isEnabled(const QStyleOption &option)
{
    return option.state & QStyle::State_Enabled;
}

QColor translucent(QColor color, qreal opacity)
{
    color.setAlphaF(float(opacity));
    return color;
}

QColor idleEdge(const QStyleOption &option)
{
    return option.palette.color(isEnabled(option) ? QPalette::Mid : QPalette::Midlight);
}

// How much of the colour of its text lies on a face.
qreal reaction(const QStyleOption &option)
{
    if (!isEnabled(option))
        return 0;
    if (option.state & (QStyle::State_Sunken | QStyle::State_On))
        return 0.16;
    return option.state & QStyle::State_MouseOver ? 0.07 : 0;
}

// A filled rounded rectangle with a sharp edge inside it. An invalid colour draws nothing.
void panel(QPainter &painter, const QRectF &rect, qreal radius, const QColor &fill,
           const QColor &edge = {}, qreal edgeWidth = 1)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(fill.isValid() ? QBrush(fill) : QBrush(Qt::NoBrush));
    painter.setPen(edge.isValid() ? QPen(edge, edgeWidth) : QPen(Qt::NoPen));
    const qreal inset = edge.isValid() ? edgeWidth / 2 : 0;
    painter.drawRoundedRect(rect.adjusted(inset, inset, -inset, -inset), radius, radius);
    painter.restore();
}

void pill(QPainter &painter, const QRectF &rect, const QColor &color)
{
    panel(painter, rect, std::min(rect.width(), rect.height()) / 2, color);
}

// Where the piece of a busy bar begins and ends: it enters on one side and leaves on the other,
// slower at both ends.
std::pair<qreal, qreal> busyPiece(qreal phase)
{
    const qreal eased = phase * phase * (3 - 2 * phase);
    const qreal start = eased * (1 + busyShare) - busyShare;
    return {std::max(0.0, start), std::min(1.0, start + busyShare)};
}

} // namespace

void drawing::card(QPainter &painter, const QStyleOption &option)
{
    panel(painter, option.rect, cardRadius, option.palette.color(QPalette::Light),
          option.palette.color(QPalette::Midlight));
}

void drawing::field(QPainter &painter, const QStyleOption &option)
{
    const bool isReadOnly = option.state & QStyle::State_ReadOnly;
    const bool hasFocus = isEnabled(option) && (option.state & QStyle::State_HasFocus);
    panel(painter, option.rect, controlRadius,
          option.palette.color(isReadOnly ? QPalette::Window : QPalette::Base),
          hasFocus ? option.palette.color(QPalette::Highlight) : idleEdge(option),
          hasFocus ? ringWidth : 1);
}

void drawing::focusRing(QPainter &painter, const QStyleOption &option)
{
    if (option.state & QStyle::State_KeyboardFocusChange)
        panel(painter, option.rect, ringRadius, QColor(), option.palette.color(QPalette::Highlight),
              ringWidth);
}

void drawing::button(QPainter &painter, const QStyleOption &option)
{
    const auto *push = qstyleoption_cast<const QStyleOptionButton *>(&option);
    const bool isFlat = option.state & QStyle::State_AutoRaise
        || (push && push->features & QStyleOptionButton::Flat);
    const bool isFocused = push && option.state & QStyle::State_HasFocus
        && option.state & QStyle::State_KeyboardFocusChange;
    const QColor accent = option.palette.color(QPalette::Highlight);
    const QColor face = option.palette.color(QPalette::Button);
    const QColor text = option.palette.color(QPalette::ButtonText);
    const QColor edge = isFlat || face == accent ? QColor() : idleEdge(option);
    panel(painter, option.rect, controlRadius, isFlat ? QColor() : face, isFocused ? accent : edge,
          isFocused ? ringWidth : 1);
    panel(painter, option.rect, controlRadius, translucent(text, reaction(option)));
    if (isFocused && face == accent) // on the accent a ring of the accent would not be seen
        panel(painter, QRectF(option.rect).adjusted(3, 3, -3, -3), controlRadius - 3, QColor(),
              text, 1.5);
}

void drawing::checkMark(QPainter &painter, const QStyleOption &option)
{
    const bool isChosen = option.state & QStyle::State_On;
    const bool isHovered = isEnabled(option) && (option.state & QStyle::State_MouseOver);
    const QColor accent = option.palette.color(QPalette::Highlight);
    const auto idle = isEnabled(option) ? QPalette::Dark : QPalette::Mid;
    panel(painter, option.rect, checkRadius,
          isChosen ? accent : option.palette.color(QPalette::Base),
          isChosen || isHovered ? accent : option.palette.color(idle), 1.2);
    if (!isChosen)
        return;
    const QPointF middle = QRectF(option.rect).center();
    const QPointF tick[] = {middle + QPointF(-4.4, 0.4), middle + QPointF(-1.3, 3.4),
                            middle + QPointF(4.4, -3)};
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(option.palette.color(QPalette::HighlightedText), 1.8, Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(tick, 3);
    painter.restore();
}

void drawing::ruledArea(QPainter &painter, const QStyleOption &option, QPalette::ColorRole ground)
{
    const QRect &rect = option.rect;
    painter.fillRect(rect, option.palette.color(ground));
    painter.fillRect(rect.left(), rect.bottom(), rect.width(), 1,
                     option.palette.color(QPalette::Midlight));
}

void drawing::tab(QPainter &painter, const QStyleOption &option)
{
    const QRectF rect = QRectF(option.rect).adjusted(1, 1, -1, -3);
    if (isEnabled(option) && (option.state & QStyle::State_MouseOver))
        panel(painter, rect, controlRadius,
              translucent(option.palette.color(QPalette::WindowText), 0.07));
    if (option.state & QStyle::State_Selected)
        pill(painter, QRectF(rect.left() + 8, rect.bottom(), rect.width() - 16, 3),
             option.palette.color(QPalette::Highlight));
}

void drawing::progressBar(QPainter &painter, const QStyleOptionProgressBar &option, qreal phase)
{
    QRectF bar(0, 0, option.rect.width(), progressHeight);
    bar.moveCenter(QRectF(option.rect).center());
    pill(painter, bar, option.palette.color(QPalette::Midlight));
    const qreal range = std::max(1.0, qreal(option.maximum) - option.minimum);
    const qreal done = std::clamp((qreal(option.progress) - option.minimum) / range, 0.0, 1.0);
    const bool isBusy = option.minimum == option.maximum;
    const auto [start, end] = isBusy ? busyPiece(phase) : std::pair(0.0, done);
    if (end <= start)
        return;
    const qreal left = option.direction == Qt::RightToLeft ? 1 - end : start;
    pill(painter,
         QRectF(bar.left() + bar.width() * left, bar.top(), bar.width() * (end - start),
                bar.height()),
         option.palette.color(QPalette::Highlight));
}

void drawing::slider(QPainter &painter, const QStyleOptionSlider &option, const QRect &handle)
{
    const QPalette &palette = option.palette;
    QRectF knob(0, 0, knobSize, knobSize);
    knob.moveCenter(QRectF(handle).center());
    QRectF groove(option.rect.left(), 0, option.rect.width(), grooveHeight);
    groove.moveCenter({groove.center().x(), knob.center().y()});
    pill(painter, groove, palette.color(QPalette::Mid));
    option.upsideDown ? groove.setLeft(knob.center().x()) : groove.setRight(knob.center().x());
    pill(painter, groove, palette.color(QPalette::Highlight));

    const bool isActive =
        option.state & QStyle::State_HasFocus || option.activeSubControls & QStyle::SC_SliderHandle;
    panel(painter, knob, knobSize / 2.0,
          palette.color(isEnabled(option) ? QPalette::Light : QPalette::Midlight),
          palette.color(isActive ? QPalette::Highlight : QPalette::Dark),
          isActive ? ringWidth : 1.2);
}

void drawing::scrollBar(QPainter &painter, const QStyleOptionSlider &option, const QRect &handle)
{
    if (option.maximum <= option.minimum)
        return;
    const bool isActive = (option.state & QStyle::State_Sunken)
        || (option.activeSubControls & QStyle::SC_ScrollBarSlider);
    pill(painter, QRectF(handle).adjusted(3, 3, -3, -3),
         option.palette.color(isActive ? QPalette::Dark : QPalette::Mid));
}

#include "ControlDrawing.h"

#include "PanelDrawing.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

#include <algorithm>

namespace
{

constexpr int iconGap = 8;

bool isEnabled(const QStyleOption &option)
{
    return option.state & QStyle::State_Enabled;
}

bool showsFocus(const QStyleOption &option)
{
    return (option.state & QStyle::State_HasFocus)
        && (option.state & QStyle::State_KeyboardFocusChange);
}

bool isAccented(const QStyleOptionButton &option)
{
    return isEnabled(option) && (option.features & QStyleOptionButton::DefaultButton);
}

// How far a face moves towards the colour of its text.
qreal liveliness(const QStyleOption &option)
{
    if (!isEnabled(option))
        return 0;
    if (option.state & (QStyle::State_Sunken | QStyle::State_On))
        return 0.16;
    return option.state & QStyle::State_MouseOver ? 0.07 : 0;
}

QColor edgeColor(const QStyleOption &option)
{
    return option.palette.color(isEnabled(option) ? QPalette::Mid : QPalette::Midlight);
}

QPen markPen(const QColor &color)
{
    return QPen(color, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

// The ground of check and radio marks: filled with the accent once chosen.
void markGround(QPainter &painter, const QStyleOption &option, qreal radius)
{
    using drawing::between;
    const QPalette &palette = option.palette;
    const bool isChosen = option.state & (QStyle::State_On | QStyle::State_NoChange);
    const QColor rest = palette.color(isChosen ? QPalette::Highlight : QPalette::Base);
    QColor edge = palette.color(isEnabled(option) ? QPalette::Dark : QPalette::Mid);
    if (isEnabled(option) && (option.state & QStyle::State_MouseOver))
        edge = palette.color(QPalette::Highlight);
    drawing::roundedPanel(painter, option.rect, radius,
                          between(rest, palette.color(QPalette::Text), liveliness(option) / 2),
                          isChosen ? QColor() : edge, 1.2);
}

// A button's icon is asked for without its widget, so it comes in the text colour of plain buttons.
QPixmap tinted(const drawing::Label &label, qreal scale, const QStyleOption &option)
{
    const QIcon::Mode mode = isEnabled(option) ? QIcon::Normal : QIcon::Disabled;
    QPixmap pixmap = label.icon.pixmap(label.iconSize, scale, mode);
    if (label.role != QPalette::ButtonText) {
        QPainter painter(&pixmap);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(QRect({}, label.iconSize), option.palette.color(label.role));
    }
    return pixmap;
}

} // namespace

void drawing::pushButton(QPainter &painter, const QStyleOptionButton &option)
{
    const QPalette &palette = option.palette;
    const bool accented = isAccented(option);
    const bool isFlat = option.features & QStyleOptionButton::Flat;
    if (isFlat && liveliness(option) <= 0 && !showsFocus(option))
        return;
    const QColor face = palette.color(accented ? QPalette::Highlight : QPalette::Button);
    const QColor text = palette.color(accented ? QPalette::HighlightedText : QPalette::ButtonText);
    QColor edge = isFlat || accented ? QColor() : edgeColor(option);
    if (showsFocus(option) && !accented)
        edge = palette.color(QPalette::Highlight);
    roundedPanel(painter, option.rect, controlRadius, between(face, text, liveliness(option)), edge,
                 showsFocus(option) ? 2 : 1);
    // On the accent a ring of the accent would not be seen.
    if (showsFocus(option) && accented)
        roundedPanel(painter, QRectF(option.rect).adjusted(3, 3, -3, -3), controlRadius - 3,
                     QColor(), text, 1.5);
}

void drawing::pushButtonLabel(QPainter &painter, const QStyleOptionButton &option)
{
    const QPalette::ColorRole role =
        isAccented(option) ? QPalette::HighlightedText : QPalette::ButtonText;
    iconAndText(painter, option, {option.icon, option.iconSize, option.text, role});
}

void drawing::iconAndText(QPainter &painter, const QStyleOption &option, const Label &label)
{
    const QColor color = option.palette.color(label.role);
    const int flags =
        Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine | mnemonicFlag(option.direction);
    const int gap = label.text.isEmpty() ? 0 : iconGap;
    const int iconWidth = label.icon.isNull() ? 0 : label.iconSize.width() + gap;
    const int textWidth = option.fontMetrics.size(flags, label.text).width();
    const int room = option.rect.width();
    const int width = std::min(room, iconWidth + textWidth);
    const QRect &all = option.rect;
    const int start = all.left() + (room - width) / 2;
    if (!label.icon.isNull()) {
        QRect place(QPoint(start, 0), label.iconSize);
        place.moveCenter(QPoint(place.center().x(), all.center().y()));
        painter.drawPixmap(QStyle::visualRect(option.direction, all, place),
                           tinted(label, painter.device()->devicePixelRatio(), option));
    }
    const QRect place(start + iconWidth, all.top(), width - iconWidth, all.height());
    painter.setPen(color);
    painter.drawText(QStyle::visualRect(option.direction, all, place), flags, label.text);
}

void drawing::toolButton(QPainter &painter, const QStyleOption &option)
{
    const QPalette &palette = option.palette;
    const bool isFlat = option.state & QStyle::State_AutoRaise;
    const QColor ground = palette.color(isFlat ? QPalette::Window : QPalette::Button);
    const QColor edge = isFlat ? QColor() : edgeColor(option);
    const QColor face = between(ground, palette.color(QPalette::ButtonText), liveliness(option));
    if (!isFlat || liveliness(option) > 0)
        roundedPanel(painter, option.rect, controlRadius, face, edge);
}

void drawing::comboBox(QPainter &painter, const QStyleOptionComboBox &option,
                       const QRect &arrowRect)
{
    const QPalette &palette = option.palette;
    const bool hasFocus =
        option.editable ? bool(option.state & QStyle::State_HasFocus) : showsFocus(option);
    const QColor ground = palette.color(option.editable ? QPalette::Base : QPalette::Button);
    const qreal share = option.editable ? 0 : liveliness(option);
    roundedPanel(painter, option.rect, controlRadius,
                 between(ground, palette.color(QPalette::ButtonText), share),
                 hasFocus ? palette.color(QPalette::Highlight) : edgeColor(option),
                 hasFocus ? 2 : 1);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(markPen(palette.color(QPalette::ButtonText)));
    const QPointF middle = QRectF(arrowRect).center();
    const QPointF chevron[] = {middle + QPointF(-4, -2), middle + QPointF(0, 2),
                               middle + QPointF(4, -2)};
    painter.drawPolyline(chevron, 3);
    painter.restore();
}

void drawing::checkMark(QPainter &painter, const QStyleOption &option)
{
    markGround(painter, option, 4.5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(markPen(option.palette.color(QPalette::HighlightedText)));
    painter.translate(option.rect.topLeft());
    painter.scale(option.rect.width() / 18.0, option.rect.height() / 18.0);
    const QPointF tick[] = {{4.6, 9.4}, {7.7, 12.4}, {13.4, 6}};
    if (option.state & QStyle::State_On)
        painter.drawPolyline(tick, 3);
    else if (option.state & QStyle::State_NoChange)
        painter.drawLine(QPointF(5, 9), QPointF(13, 9));
    painter.restore();
}

void drawing::radioMark(QPainter &painter, const QStyleOption &option)
{
    const QRectF rect = option.rect;
    markGround(painter, option, rect.width() / 2);
    const qreal inset = rect.width() * 0.31;
    if (option.state & QStyle::State_On)
        roundedPanel(painter, rect.adjusted(inset, inset, -inset, -inset), rect.width(),
                     option.palette.color(QPalette::HighlightedText), QColor());
}

QStyleOptionMenuItem drawing::chosenMenuItem(QPainter &painter, const QStyleOptionMenuItem &option)
{
    const QColor text = option.palette.color(QPalette::HighlightedText);
    roundedPanel(painter, QRectF(option.rect).adjusted(1, 0, -1, 0), controlRadius - 2,
                 option.palette.color(QPalette::Highlight), QColor());
    QStyleOptionMenuItem idle = option;
    idle.state &= ~QStyle::State_Selected;
    idle.palette.setColor(QPalette::Text, text);
    if (!option.icon.isNull()) {
        const QSize size(option.maxIconWidth, option.maxIconWidth);
        const Label label{option.icon, size, {}, QPalette::HighlightedText};
        idle.icon = tinted(label, painter.device()->devicePixelRatio(), option);
    }
    return idle;
}

void drawing::menuBarItem(QPainter &painter, const QStyleOption &option)
{
    const QPalette &palette = option.palette;
    const QColor ground = palette.color(QPalette::Window);
    painter.fillRect(option.rect, ground);
    const bool isOpen = option.state & QStyle::State_Sunken;
    if (isEnabled(option) && (option.state & QStyle::State_Selected || isOpen))
        roundedPanel(painter, QRectF(option.rect).adjusted(1, 2, -1, -2), controlRadius,
                     between(ground, palette.color(QPalette::WindowText), isOpen ? 0.14 : 0.08),
                     QColor());
}

#include "PanelDrawing.h"

#include <QGroupBox>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace
{

constexpr int titleGap = 6; // between a card and its title

int titleHeight(const QStyleOptionGroupBox &option)
{
    return option.text.isEmpty() ? 0 : option.fontMetrics.height() + titleGap;
}

} // namespace

QColor drawing::between(const QColor &from, const QColor &to, qreal share)
{
    const auto mix = [share](int a, int b) { return qRound(a + (b - a) * share); };
    return QColor(mix(from.red(), to.red()), mix(from.green(), to.green()),
                  mix(from.blue(), to.blue()));
}

void drawing::roundedPanel(QPainter &painter, const QRectF &rect, qreal radius, const QColor &fill,
                           const QColor &edge, qreal edgeWidth)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(fill.isValid() ? QBrush(fill) : QBrush(Qt::NoBrush));
    painter.setPen(edge.isValid() ? QPen(edge, edgeWidth) : QPen(Qt::NoPen));
    const qreal inset = edge.isValid() ? edgeWidth / 2 : 0;
    painter.drawRoundedRect(rect.adjusted(inset, inset, -inset, -inset), radius, radius);
    painter.restore();
}

int drawing::mnemonicFlag(Qt::LayoutDirection direction)
{
    return direction == Qt::RightToLeft ? Qt::TextHideMnemonic : Qt::TextShowMnemonic;
}

void drawing::field(QPainter &painter, const QStyleOptionFrame &option)
{
    const QPalette &palette = option.palette;
    const bool isEnabled = option.state & QStyle::State_Enabled;
    const bool isReadOnly = option.state & QStyle::State_ReadOnly;
    const bool hasFocus = isEnabled && (option.state & QStyle::State_HasFocus);
    const bool isHovered = isEnabled && (option.state & QStyle::State_MouseOver);
    const QColor base = palette.color(QPalette::Base);
    const QColor fill =
        isEnabled && !isReadOnly ? base : between(base, palette.color(QPalette::Window), 0.6);
    QColor edge = palette.color(isEnabled ? QPalette::Mid : QPalette::Midlight);
    if (isHovered && !isReadOnly)
        edge = palette.color(QPalette::Dark);
    if (hasFocus)
        edge = palette.color(QPalette::Highlight);
    roundedPanel(painter, option.rect, controlRadius, fill, edge, hasFocus ? 2 : 1);
}

void drawing::frame(QPainter &painter, const QStyleOption &option)
{
    const bool hasFocus = option.state & QStyle::State_HasFocus;
    const QPalette &palette = option.palette;
    roundedPanel(painter, option.rect, controlRadius, palette.color(QPalette::Base),
                 palette.color(hasFocus ? QPalette::Highlight : QPalette::Mid), hasFocus ? 2 : 1);
}

void drawing::edge(QPainter &painter, const QStyleOption &option)
{
    painter.setPen(option.palette.color(QPalette::Mid));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
}

void drawing::focusRing(QPainter &painter, const QStyleOption &option)
{
    if (option.state & QStyle::State_KeyboardFocusChange)
        roundedPanel(painter, option.rect, 4, QColor(), option.palette.color(QPalette::Highlight),
                     2);
}

void drawing::card(QPainter &painter, const QStyleOption &option, const QRect &rect)
{
    roundedPanel(painter, rect, cardRadius, option.palette.color(QPalette::Light),
                 option.palette.color(QPalette::Midlight));
}

bool drawing::isCard(const QStyleOptionGroupBox &option)
{
    return !(option.subControls & QStyle::SC_GroupBoxCheckBox);
}

bool drawing::isPlainBox(const QWidget *widget)
{
    const auto *box = qobject_cast<const QGroupBox *>(widget);
    if (!box || box->isFlat())
        return box;
    for (const QWidget *outer = box->parentWidget(); outer; outer = outer->parentWidget())
        if (const auto *card = qobject_cast<const QGroupBox *>(outer); card && !card->isFlat())
            return true;
    return false;
}

QRect drawing::titleRect(const QStyleOptionGroupBox &option)
{
    return option.rect.adjusted(2, 0, -2, 0)
        .intersected(QRect(option.rect.topLeft(), QSize(option.rect.width(), titleHeight(option))));
}

QRect drawing::cardRect(const QStyleOptionGroupBox &option)
{
    return option.rect.adjusted(0, titleHeight(option), 0, 0);
}

void drawing::groupBox(QPainter &painter, const QStyleOptionGroupBox &option, bool isPlain)
{
    const QPalette &palette = option.palette;
    if (!isPlain)
        card(painter, option, cardRect(option));
    painter.save();
    QFont font = painter.font();
    font.setWeight(QFont::DemiBold);
    painter.setFont(font);
    const QRect place = titleRect(option);
    const QString text = QFontMetrics(font).elidedText(option.text, Qt::ElideRight, place.width(),
                                                       mnemonicFlag(option.direction));
    const Qt::Alignment alignment =
        QStyle::visualAlignment(option.direction, Qt::AlignLeft | Qt::AlignTop);
    painter.setPen(palette.color(QPalette::WindowText));
    const int flags = int(alignment) | mnemonicFlag(option.direction) | Qt::TextSingleLine;
    painter.drawText(place, flags, text);
    painter.restore();
}

void drawing::headerSection(QPainter &painter, const QStyleOption &option)
{
    const QRect rect = option.rect;
    const QColor line = option.palette.color(QPalette::Midlight);
    painter.fillRect(rect, option.palette.color(QPalette::Base));
    const auto *section = qstyleoption_cast<const QStyleOptionHeader *>(&option);
    const bool isHorizontal = option.state & QStyle::State_Horizontal;
    if (section || isHorizontal)
        painter.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), line);
    if (section && isHorizontal && section->position != QStyleOptionHeader::End) {
        const QRect end(rect.right(), rect.top() + 6, 1, rect.height() - 12);
        painter.fillRect(QStyle::visualRect(option.direction, rect, end), line);
    }
}

void drawing::tab(QPainter &painter, const QStyleOption &option)
{
    const QPalette &palette = option.palette;
    const QColor ground = palette.color(QPalette::Window);
    const bool isEnabled = option.state & QStyle::State_Enabled;
    const QRectF rect = QRectF(option.rect).adjusted(1, 1, -1, -3);
    if (isEnabled && (option.state & QStyle::State_MouseOver))
        roundedPanel(painter, rect, controlRadius,
                     between(ground, palette.color(QPalette::WindowText), 0.07), QColor());
    if (option.state & QStyle::State_Selected) {
        const QRectF line(rect.left() + 8, option.rect.bottom() - 3, rect.width() - 16, 3);
        roundedPanel(painter, line, 1.5, palette.color(QPalette::Highlight), QColor());
    }
}

void drawing::toolBar(QPainter &painter, const QStyleOption &option)
{
    const QRect rect = option.rect;
    painter.fillRect(rect, option.palette.color(QPalette::Window));
    painter.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1),
                     option.palette.color(QPalette::Midlight));
}

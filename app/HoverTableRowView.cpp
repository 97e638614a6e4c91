#include "HoverTableRowView.h"

#include "ElidedLabel.h"
#include "FadingGradient.h"
#include "IconView.h"
#include "RunningMark.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>

namespace
{

constexpr int iconSize = 22;
constexpr int sideMargin = 18;
constexpr int gap = 12;
constexpr double separatorHeight = 1.0;
constexpr double selectionInset = 5.5;
constexpr double selectionRadius = 10.0;
constexpr double focusRingInset = 4;
constexpr double focusRingWidth = 2;
constexpr float selectionStroke = 0.72F; // shades of grey, 1 is white
constexpr float selectionFill = 0.82F;

QColor grey(float white)
{
    return QColor::fromRgbF(white, white, white);
}

} // namespace

HoverTableRowView::HoverTableRowView(const QString &imageName, const QString &name, QWidget *parent)
    : QWidget(parent), m_imageView(new IconView(this)), m_textField(new ElidedLabel(name, this)),
      m_runningMark(new RunningMark(this))
{
    // Growing shows new background only; what changes with the size is repainted in resizeEvent.
    setAttribute(Qt::WA_StaticContents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_imageView->setImageName(imageName);
    m_imageView->setFixedSize(iconSize, iconSize);
    m_runningMark->hide();

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(sideMargin, 0, sideMargin, 0);
    layout->setSpacing(gap);
    layout->addWidget(m_imageView);
    layout->addWidget(m_textField, 1);
    layout->addWidget(m_runningMark);
}

void HoverTableRowView::setMouseInside(bool inside)
{
    if (m_mouseInside == inside)
        return;
    m_mouseInside = inside;
    update();
}

void HoverTableRowView::setSelected(bool selected)
{
    if (m_selected == selected)
        return;
    m_selected = selected;
    update();
}

void HoverTableRowView::setFocusRing(bool shown)
{
    if (m_focusRing == shown)
        return;
    m_focusRing = shown;
    update();
}

void HoverTableRowView::setSelectionHighlightStyle(SelectionHighlightStyle style)
{
    m_highlightStyle = style;
    update();
}

void HoverTableRowView::setRunning(bool running)
{
    m_runningMark->setVisible(running);
}

QRectF HoverTableRowView::separatorRect() const
{
    return QRectF(0, height() - separatorHeight, width(), separatorHeight);
}

// The name has a font of its own, bold where it is selected, and so inherits none.
void HoverTableRowView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::FontChange)
        return;
    QFont name = font();
    name.setBold(m_textField->font().bold());
    m_textField->setFont(name);
}

void HoverTableRowView::enterEvent(QEnterEvent *)
{
    setMouseInside(true);
}

void HoverTableRowView::leaveEvent(QEvent *)
{
    setMouseInside(false);
}

void HoverTableRowView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    // To the last pixel, of which a fractional scale may leave a part: not with soft edges.
    drawBackgroundInRect(painter);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_selected)
        drawSelectionInRect(painter);
    drawSeparatorInRect(painter);
    if (m_focusRing)
        drawFocusRing(painter);
}

void HoverTableRowView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (m_selected || m_mouseInside)
        update();
    else
        update(separatorRect().toAlignedRect());
}

void HoverTableRowView::drawBackgroundInRect(QPainter &painter) const
{
    painter.fillRect(rect(), palette().color(QPalette::Window));
    if (m_mouseInside)
        FadingGradient(Qt::white).draw(painter, rect());
}

void HoverTableRowView::drawSelectionInRect(QPainter &painter) const
{
    if (m_highlightStyle == SelectionHighlightStyle::None)
        return;
    painter.setPen(grey(selectionStroke));
    painter.setBrush(grey(selectionFill));
    painter.drawRoundedRect(
        QRectF(rect()).adjusted(selectionInset, selectionInset, -selectionInset, -selectionInset),
        selectionRadius, selectionRadius);
}

void HoverTableRowView::drawSeparatorInRect(QPainter &painter) const
{
    FadingGradient::separator().draw(painter, separatorRect());
}

void HoverTableRowView::drawFocusRing(QPainter &painter) const
{
    painter.setPen(QPen(palette().color(QPalette::Highlight), focusRingWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(
        QRectF(rect()).adjusted(focusRingInset, focusRingInset, -focusRingInset, -focusRingInset),
        selectionRadius, selectionRadius);
}

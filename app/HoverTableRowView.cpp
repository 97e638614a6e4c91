#include "HoverTableRowView.h"

#include "IconView.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLinearGradient>
#include <QPainter>

#include <utility>

namespace
{

constexpr int iconSize = 22;
constexpr int sideMargin = 18;
constexpr int gap = 12;
constexpr int markDiameter = 8;
constexpr double separatorHeight = 1.0;
constexpr double selectionInset = 5.5;
constexpr double selectionRadius = 10.0;
constexpr double focusRingInset = 4;
constexpr double focusRingWidth = 2;
constexpr float separatorShade = 0.8F;
constexpr float selectionStroke = 0.72F; // shades of grey, 1 is white
constexpr float selectionFill = 0.82F;

QColor grey(float white)
{
    return QColor::fromRgbF(white, white, white);
}

// In from the left and out to the right of whatever is filled with it.
QLinearGradient fadingGradient(const QColor &color)
{
    QColor transparent = color;
    transparent.setAlpha(0);
    QLinearGradient gradient(0, 0, 1, 0);
    gradient.setCoordinateMode(QGradient::ObjectMode);
    gradient.setStops({{0.0, transparent}, {0.35, color}, {0.65, color}, {1.0, transparent}});
    return gradient;
}

} // namespace

RunningMark::RunningMark(QWidget *parent) : QWidget(parent)
{
    const QString text = qtTrId("Sidebar.Running");
    setAccessibleName(text);
    setToolTip(text);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize RunningMark::sizeHint() const
{
    return {markDiameter, markDiameter};
}

void RunningMark::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::Highlight));
    painter.drawEllipse(rect());
}

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
    layout->addWidget(m_textField); // as wide as its text: a wider row need not draw it again
    layout->addStretch(1);
    layout->addWidget(m_runningMark);
}

void HoverTableRowView::setMouseInside(bool inside)
{
    if (std::exchange(m_mouseInside, inside) != inside)
        update();
}

void HoverTableRowView::setSelected(bool selected)
{
    if (std::exchange(m_selected, selected) != selected)
        update();
}

void HoverTableRowView::setFocusRing(bool shown)
{
    if (std::exchange(m_focusRing, shown) != shown)
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

const QGradient &HoverTableRowView::separatorGradient()
{
    static const QLinearGradient gradient = fadingGradient(grey(separatorShade));
    return gradient;
}

// The name has a font of its own, bold while it is selected, and so does not inherit the row's.
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
        painter.fillRect(rect(), fadingGradient(Qt::white));
}

void HoverTableRowView::drawSelectionInRect(QPainter &painter) const
{
    if (m_highlightStyle == SelectionHighlightStyle::None)
        return;
    painter.setPen(grey(selectionStroke));
    painter.setBrush(grey(selectionFill));
    drawInset(painter, selectionInset);
}

void HoverTableRowView::drawSeparatorInRect(QPainter &painter) const
{
    painter.fillRect(separatorRect(), separatorGradient());
}

void HoverTableRowView::drawFocusRing(QPainter &painter) const
{
    painter.setPen(QPen(palette().color(QPalette::Highlight), focusRingWidth));
    painter.setBrush(Qt::NoBrush);
    drawInset(painter, focusRingInset);
}

void HoverTableRowView::drawInset(QPainter &painter, double inset) const
{
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), selectionRadius,
                            selectionRadius);
}

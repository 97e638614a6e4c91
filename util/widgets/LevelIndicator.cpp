#include "LevelIndicator.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace
{

constexpr int nearlyFull = 90;
constexpr int barHeight = 10;
constexpr int minBarWidth = 80;
constexpr int gap = 12;

} // namespace

LevelIndicator::LevelIndicator(QWidget *parent) : QProgressBar(parent)
{
    setRange(0, 100);
    setValue(0);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

bool LevelIndicator::isNearlyFull() const
{
    return value() >= nearlyFull;
}

void LevelIndicator::setWarningText(const QString &text)
{
    m_warningText = text;
    updateGeometry();
    update();
}

QString LevelIndicator::text() const
{
    return isNearlyFull() ? m_warningText : QString();
}

QSize LevelIndicator::minimumSizeHint() const
{
    const int textWidth = fontMetrics().horizontalAdvance(text());
    return QSize(minBarWidth + gap + textWidth, std::max(barHeight, fontMetrics().height() + 4));
}

QSize LevelIndicator::sizeHint() const
{
    return minimumSizeHint() + QSize(minBarWidth, 0);
}

QRect LevelIndicator::barRect() const
{
    const int textWidth = text().isEmpty() ? 0 : fontMetrics().horizontalAdvance(text()) + gap;
    const QRect bar(0, (height() - barHeight) / 2, width() - textWidth, barHeight);
    return QStyle::visualRect(layoutDirection(), rect(), bar);
}

void LevelIndicator::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QRectF bar = barRect();
    painter.setBrush(palette().color(QPalette::Midlight));
    painter.drawRoundedRect(bar, barHeight / 2.0, barHeight / 2.0);

    QRectF filled = bar;
    filled.setWidth(std::max<qreal>(barHeight, bar.width() * value() / 100));
    if (layoutDirection() == Qt::RightToLeft)
        filled.moveRight(bar.right());
    const QPalette::ColorRole tone = isNearlyFull() ? QPalette::BrightText : QPalette::Highlight;
    if (value() > 0) {
        painter.setBrush(palette().color(tone));
        painter.drawRoundedRect(filled, barHeight / 2.0, barHeight / 2.0);
    }
    painter.setPen(palette().color(isNearlyFull() ? tone : QPalette::WindowText));
    const int alignment = Qt::AlignRight | Qt::AlignVCenter;
    painter.drawText(rect(), QStyle::visualAlignment(layoutDirection(), Qt::Alignment(alignment)),
                     text());
}

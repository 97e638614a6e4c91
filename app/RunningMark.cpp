#include "RunningMark.h"

#include <QPainter>

namespace
{

constexpr int diameter = 8;

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
    return {diameter, diameter};
}

void RunningMark::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::Highlight));
    painter.drawEllipse(rect());
}

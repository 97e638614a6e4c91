#include "IconView.h"

#include "NamedImage.h"

#include <QPainter>

IconView::IconView(QWidget *parent) : QWidget(parent)
{
}

void IconView::setImageName(const QString &name)
{
    if (m_imageName == name)
        return;
    m_imageName = name;
    m_icon = namedImage(name);
    update();
}

void IconView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    m_icon.paint(&painter, rect(), Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

#pragma once

#include "NamedImage.h"

#include <QPainter>
#include <QWidget>

/// Shows one of the application's own images, by name, as large as the widget is. The image is
/// drawn when the widget is painted, never before, and follows palette and scale. Interface thread
/// only.
class IconView : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString imageName READ imageName WRITE setImageName)

public:
    using QWidget::QWidget;

    QString imageName() const { return m_imageName; }
    /// An unknown name shows nothing.
    void setImageName(const QString &name)
    {
        m_imageName = name;
        m_icon = namedImage(name);
        update();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        m_icon.paint(&painter, rect(), Qt::AlignCenter,
                     isEnabled() ? QIcon::Normal : QIcon::Disabled);
    }

private:
    QString m_imageName;
    QIcon m_icon;
};

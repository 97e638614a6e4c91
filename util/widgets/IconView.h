#pragma once

#include <QIcon>
#include <QWidget>

/// Shows one of the application's own images, by name, as large as the widget is. The image is
/// drawn when the widget is painted, never before, and follows palette and scale. Interface thread
/// only.
class IconView : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString imageName READ imageName WRITE setImageName)

public:
    explicit IconView(QWidget *parent = nullptr);

    QString imageName() const { return m_imageName; }
    /// An unknown name shows nothing.
    void setImageName(const QString &name);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_imageName;
    QIcon m_icon;
};

#pragma once

#include <QProxyStyle>

/// Fusion, with shapes and sizes of our own for what makes a page: cards, fields, buttons, check
/// marks, gauges, the accent and the focus. What is not overridden here is Fusion's. Interface
/// thread only.
class ToolvaneStyle : public QProxyStyle
{
    Q_OBJECT

public:
    ToolvaneStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                         SubControl subControl, const QWidget *widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption *option,
                         const QWidget *widget) const override;
    /// Controls in one row share one height, which grows with the font.
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override;
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override;
    /// The icons of message boxes and of a crowded toolbar are the application's own.
    QIcon standardIcon(StandardPixmap standard, const QStyleOption *option,
                       const QWidget *widget) const override;
    using QProxyStyle::polish;
    /// Gives the two texts of a message box the weight and the width that they need.
    void polish(QWidget *widget) override;
};

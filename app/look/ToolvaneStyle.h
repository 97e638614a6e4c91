#pragma once

#include "BusyAnimation.h"

#include <QProxyStyle>

/// Fusion with Toolvane's own drawing of what a page is made of. Draws from the palette alone, so
/// light, dark and disabled need no word here. Interface thread only.
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
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override;
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override;
    using QProxyStyle::polish;
    void polish(QWidget *widget) override;
    QIcon standardIcon(StandardPixmap standard, const QStyleOption *option,
                       const QWidget *widget) const override;

private:
    mutable BusyAnimation m_busy;
};

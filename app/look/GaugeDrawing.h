#pragma once

#include <QRect>
#include <QStyle>

class QPainter;
class QStyleOptionProgressBar;
class QStyleOptionSlider;

/// What shows or sets an amount: progress bars, sliders, scroll bars. All colours come from the
/// option's palette.
namespace drawing
{

/// The phase (0 to 1) says where the moving piece of an indeterminate bar stands.
void progressBar(QPainter &painter, const QStyleOptionProgressBar &option, qreal phase);
bool isBusy(const QStyleOptionProgressBar &option);

constexpr int knobSize = 18;
QRect sliderHandle(const QStyleOptionSlider &option);
void slider(QPainter &painter, const QStyleOptionSlider &option);

/// The piece that is dragged; the whole bar is its track, there are no arrow buttons.
QRect scrollBarHandle(const QStyleOptionSlider &option);
/// Empty for the parts that this bar does not have.
QRect scrollBarPart(const QStyleOptionSlider &option, QStyle::SubControl part);
void scrollBar(QPainter &painter, const QStyleOptionSlider &option, QPalette::ColorRole ground);

} // namespace drawing

#pragma once

#include <QStyleOption>

class QPainter;

/// The shapes that differ from Fusion's. Every colour comes from the option's palette, so light,
/// dark and disabled need no code here. Interface thread only.
namespace drawing
{

/// The diameter of a slider's knob, in device-independent pixels.
constexpr int knobSize = 18;

/// The ground of a group box and of a tab's page.
void card(QPainter &painter, const QStyleOption &option);
/// The ground and the edge of what holds a text or a list. What is read-only is tinted.
void field(QPainter &painter, const QStyleOption &option);
/// A ring in the accent colour, if the keyboard is what moves the focus.
void focusRing(QPainter &painter, const QStyleOption &option);
/// The face of a push button, a tool button or a combo box. A flat one has a face only under the
/// pointer and pressed. The focus is shown on all but tool buttons, which Fusion gives a ring.
void button(QPainter &painter, const QStyleOption &option);
/// The box of a check box with its tick.
void checkMark(QPainter &painter, const QStyleOption &option);
/// A ground with a line at its bottom: a tool bar, the header of a table.
void ruledArea(QPainter &painter, const QStyleOption &option, QPalette::ColorRole ground);
/// A tab without its text: a line of the accent below the chosen one.
void tab(QPainter &painter, const QStyleOption &option);
/// A bar whose range is empty is busy. `phase` (0 to 1) is how far its piece has come on its way;
/// others ignore it.
void progressBar(QPainter &painter, const QStyleOptionProgressBar &option, qreal phase);
/// A horizontal slider. `handle` is where Fusion puts the handle.
void slider(QPainter &painter, const QStyleOptionSlider &option, const QRect &handle);
/// A scroll bar is its handle alone, drawn only if there is something to scroll.
void scrollBar(QPainter &painter, const QStyleOptionSlider &option, const QRect &handle);

} // namespace drawing

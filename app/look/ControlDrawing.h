#pragma once

#include <QStyleOptionMenuItem>

class QPainter;
class QRect;

/// What is pressed and chosen: buttons, marks, pop-up buttons. All colours come from the option's
/// palette.
namespace drawing
{

void pushButton(QPainter &painter, const QStyleOptionButton &option);
void pushButtonLabel(QPainter &painter, const QStyleOptionButton &option);

/// What stands on a button.
struct Label {
    QIcon icon; ///< May be null.
    QSize iconSize;
    QString text;
    QPalette::ColorRole role = QPalette::ButtonText;
};
/// Icon and text side by side in the middle of the option's rectangle.
void iconAndText(QPainter &painter, const QStyleOption &option, const Label &label);

/// Flat until the pointer, a press or a check calls for a face.
void toolButton(QPainter &painter, const QStyleOption &option);
void comboBox(QPainter &painter, const QStyleOptionComboBox &option, const QRect &arrowRect);
void checkMark(QPainter &painter, const QStyleOption &option);
void radioMark(QPainter &painter, const QStyleOption &option);
/// Draws the highlight and gives the item's copy that Fusion then draws on it as an idle one.
QStyleOptionMenuItem chosenMenuItem(QPainter &painter, const QStyleOptionMenuItem &option);
void menuBarItem(QPainter &painter, const QStyleOption &option);

} // namespace drawing

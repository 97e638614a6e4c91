#pragma once

#include <QColor>
#include <QRectF>

class QPainter;
class QStyleOption;
class QStyleOptionFrame;
class QStyleOptionGroupBox;
class QWidget;

/// Surfaces: what stands behind and around controls. All colours come from the option's palette.
namespace drawing
{

constexpr qreal cardRadius = 9;
constexpr qreal controlRadius = 6;

/// The colour that lies at `share` (0 to 1) of the way from one to the other.
QColor between(const QColor &from, const QColor &to, qreal share);

/// A filled rounded rectangle with a sharp one-pixel edge; an invalid edge colour draws none.
void roundedPanel(QPainter &painter, const QRectF &rect, qreal radius, const QColor &fill,
                  const QColor &edge, qreal edgeWidth = 1);

/// Whether the letter of a mnemonic is underlined (Qt::TextShowMnemonic) or merely works
/// (Qt::TextHideMnemonic): Arabic letters fall apart where Qt underlines one of them.
int mnemonicFlag(Qt::LayoutDirection direction);

void field(QPainter &painter, const QStyleOptionFrame &option);
/// The frame of lists and multi-line texts.
void frame(QPainter &painter, const QStyleOption &option);
/// The square edge of a menu.
void edge(QPainter &painter, const QStyleOption &option);
void focusRing(QPainter &painter, const QStyleOption &option);

void card(QPainter &painter, const QStyleOption &option, const QRect &rect);

/// Whether the box is drawn here; one with a check mark in its title is left to Fusion.
bool isCard(const QStyleOptionGroupBox &option);
/// A flat box, or one inside another's card: shows its title alone and has no margins, so that a
/// card never stands in a card. False for what is no group box.
bool isPlainBox(const QWidget *widget);
/// The card below its title. The title's place is `titleRect`, the card's `cardRect`.
void groupBox(QPainter &painter, const QStyleOptionGroupBox &option, bool isPlain);
QRect titleRect(const QStyleOptionGroupBox &option);
QRect cardRect(const QStyleOptionGroupBox &option);

/// A section of a list's header, or the room after its last one.
void headerSection(QPainter &painter, const QStyleOption &option);
void tab(QPainter &painter, const QStyleOption &option);
void toolBar(QPainter &painter, const QStyleOption &option);

} // namespace drawing

#include "ElidedLabel.h"

#include <QPainter>
#include <QStyle>

ElidedLabel::ElidedLabel(const QString &text, QWidget *parent) : QLabel(text, parent)
{
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {fontMetrics().height(), QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    // QLabel keeps its size hint, so that a text that fits is laid out only once.
    const bool fits = QLabel::sizeHint().width() <= width();
    const QString shown = fits ? text() : fontMetrics().elidedText(text(), Qt::ElideRight, width());
    const QString tip = shown == text() ? QString() : text();
    if (toolTip() != tip)
        setToolTip(tip);
    style()->drawItemText(&painter, rect(), Qt::AlignVCenter | Qt::AlignLeading, palette(),
                          isEnabled(), shown, foregroundRole());
}

HintLine::HintLine(QWidget *parent) : ElidedLabel(QString(), parent)
{
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize HintLine::sizeHint() const
{
    return {0, fontMetrics().height()};
}

void HintLine::say(const QString &text, QWidget &control)
{
    if (text == this->text())
        return;
    setText(text);
    control.setAccessibleDescription(text); // which a screen reader is told at once
}

#pragma once

#include <QLabel>

/// One line of plain text. If it does not fit, it ends with "…" and the whole text is its tool tip.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(const QString &text, QWidget *parent = nullptr);

    QSize minimumSizeHint() const override; ///< One character wide.

protected:
    void paintEvent(QPaintEvent *event) override;
};

/// One quiet line about a control: what would go wrong, or surprise. The control's accessible
/// description says the same. Its room is kept while it says nothing. The theme gives this class
/// its colour.
class HintLine : public ElidedLabel
{
    Q_OBJECT

public:
    explicit HintLine(QWidget *parent = nullptr);

    QSize sizeHint() const override; ///< One line high, whatever it says.
    QSize minimumSizeHint() const override { return sizeHint(); }

    /// Empty: nothing to say about the control.
    void say(const QString &text, QWidget &control);
};

#pragma once

#include <QLabel>

/// One line of plain text that shortens itself with "…" where its room ends, and then shows the
/// whole text as its tool tip.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(const QString &text, QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};

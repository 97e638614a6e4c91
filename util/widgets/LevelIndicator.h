#pragma once

#include <QProgressBar>

/// A level gauge: how full something is, 0 to 100, as a bar. A screen reader reports it as a
/// progress bar with this value. From 90 on the bar takes the palette's warning colour and the
/// warning text is beside it, so colour is not the only sign. Interface thread only.
class LevelIndicator : public QProgressBar
{
    Q_OBJECT
    Q_PROPERTY(QString warningText READ warningText WRITE setWarningText)

public:
    explicit LevelIndicator(QWidget *parent = nullptr);

    bool isNearlyFull() const; ///< From 90 on.

    QString warningText() const { return m_warningText; }
    /// Shown when nearly full ("Nearly full"); empty for no text.
    void setWarningText(const QString &text);

    /// What is shown beside the bar: the percentage, with the warning text before it.
    QString text() const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QRect barRect() const;

    QString m_warningText;
};

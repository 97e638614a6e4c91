#pragma once

#include <QProgressBar>

/// The indeterminate progress bar of a page, `progressIndicator` in its interface description. Its
/// room is kept while it is hidden, and a hidden or stopped one costs no processor time.
///
/// An ElapsedLabel beside it follows through a connection, which the interface description can
/// hold: animatingChanged(bool) to setRunning(bool).
class BusyIndicator : public QProgressBar
{
    Q_OBJECT

public:
    explicit BusyIndicator(QWidget *parent = nullptr);

    bool isAnimating() const;
    void startAnimation();
    void stopAnimation();

Q_SIGNALS:
    void animatingChanged(bool animating); ///< Only on a change.
};

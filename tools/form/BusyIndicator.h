#pragma once

#include <QProgressBar>

/// The indeterminate progress bar of a page, `progressIndicator` in its interface description. Its
/// space is kept while it is hidden, and a hidden or stopped one costs no processor time.
///
/// An ElapsedLabel beside it follows through a connection, which the interface description can
/// hold: animatingChanged(bool) to setRunning(bool).
class BusyIndicator : public QProgressBar
{
    Q_OBJECT

public:
    explicit BusyIndicator(QWidget *parent = nullptr);

    bool isAnimating() const; ///< Started; a hidden one animates as well, but is not painted.
    void startAnimation();
    void stopAnimation();

Q_SIGNALS:
    void animatingChanged(bool animating); ///< Only on a change.
};

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

    /// A hidden one can be animating as well, and shows it as soon as it is visible.
    bool isAnimating() const { return maximum() == 0; }
    void setAnimating(bool animating);

Q_SIGNALS:
    void animatingChanged(bool animating); ///< Only on a change.
};

#include "BusyIndicator.h"

BusyIndicator::BusyIndicator(QWidget *parent) : QProgressBar(parent)
{
    setRange(0, 1); // a bar with an empty range is what the style animates
    setTextVisible(false);
    QSizePolicy policy = sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
}

bool BusyIndicator::isAnimating() const
{
    return maximum() == 0;
}

void BusyIndicator::startAnimation()
{
    if (isAnimating())
        return;
    setRange(0, 0);
    Q_EMIT animatingChanged(true);
}

void BusyIndicator::stopAnimation()
{
    if (!isAnimating())
        return;
    setRange(0, 1);
    reset();
    Q_EMIT animatingChanged(false);
}

#include "BusyIndicator.h"

#include "PageStatus.h"

BusyIndicator::BusyIndicator(QWidget *parent) : QProgressBar(parent)
{
    setRange(0, 1); // a bar with an empty range is what the style animates
    setTextVisible(false);
    PageStatus::keepSpaceWhenHidden(*this);
}

void BusyIndicator::setAnimating(bool animating)
{
    if (animating == isAnimating())
        return;
    setRange(0, animating ? 0 : 1);
    if (!animating)
        reset();
    Q_EMIT animatingChanged(animating);
}

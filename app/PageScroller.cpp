#include "PageScroller.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QScrollBar>

PageScroller::PageScroller(QWidget *page, QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus); // would be a stop where nothing can be done
    setWidget(page);
    page->show();
    // Not the Tab key alone brings the keyboard to a control: a mnemonic does, too.
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget *, QWidget *now) {
        if (now && isAncestorOf(now))
            ensureWidgetVisible(now);
    });
}

QSize PageScroller::minimumSizeHint() const
{
    return {0, 0};
}

QSize PageScroller::sizeHint() const
{
    return widget() ? widget()->sizeHint() : QSize();
}

bool PageScroller::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        fit();
    return QScrollArea::eventFilter(watched, event);
}

void PageScroller::resizeEvent(QResizeEvent *event)
{
    fit();
    QScrollArea::resizeEvent(event);
}

QSize PageScroller::neededAt(int width) const
{
    const QSize least = widget()->minimumSizeHint().expandedTo(widget()->minimumSize());
    const QLayout *layout = widget()->layout();
    if (!layout || !layout->hasHeightForWidth())
        return least;
    return {least.width(), layout->minimumHeightForWidth(qMax(width, least.width()))};
}

void PageScroller::chooseMargins(QSize room)
{
    QLayout *layout = widget()->layout();
    const int needed = neededAt(room.width()).height() + (m_isTight ? m_savedByTightness : 0);
    const bool isTight = needed > room.height();
    if (!layout || m_isTight == isTight)
        return;
    m_isTight = isTight;
    QMargins margins = layout->contentsMargins();
    if (isTight)
        m_savedByTightness = margins.top() / 2 + margins.bottom() / 2;
    const int change = isTight ? -m_savedByTightness / 2 : m_savedByTightness / 2;
    layout->setContentsMargins(margins + QMargins(0, change, 0, change));
}

void PageScroller::fit()
{
    if (!widget())
        return;
    QSize room = maximumViewportSize();
    chooseMargins(room);
    if (neededAt(room.width()).height() > room.height())
        room.rwidth() -= verticalScrollBar()->sizeHint().width();
    widget()->resize(room.expandedTo(neededAt(room.width())));
}

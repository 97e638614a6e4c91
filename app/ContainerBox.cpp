#include "ContainerBox.h"

#include "Mnemonics.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QScrollBar>

QWidget *ContainerBox::contentView() const
{
    const auto *scroller = qobject_cast<PageScroller *>(currentWidget());
    return scroller ? scroller->widget() : currentWidget();
}

void ContainerBox::setContentView(QWidget *view)
{
    for (int i = 0; i < count(); ++i) {
        const auto *scroller = qobject_cast<PageScroller *>(widget(i));
        if (scroller && scroller->widget() == view)
            return setCurrentIndex(i);
    }
    Mnemonics::keepUnique(view);
    setCurrentIndex(addWidget(new PageScroller(view, this)));
}

PageScroller::PageScroller(QWidget *page, QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus); // Tab would stop at it, to no purpose
    setWidget(page);
    page->show();
    // A scroll area follows the Tab key by itself, but not a mnemonic.
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

#include "PageStatus.h"

#include "BusyIndicator.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>

namespace
{

// Keys that a control leaves unused arrive at its page.
class ReturnKey : public QObject
{
public:
    ReturnKey(QWidget &page, QPushButton &button) : QObject(&page), m_button(button)
    {
        page.installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const auto *press = static_cast<QKeyEvent *>(event);
        const bool isReturn = press->key() == Qt::Key_Return || press->key() == Qt::Key_Enter;
        if (!isReturn || press->isAutoRepeat() || !m_button.isVisible())
            return false;
        // A button that has the focus is what the user means.
        auto *focused = qobject_cast<QPushButton *>(QApplication::focusWidget());
        (focused ? *focused : m_button).click(); // does nothing when disabled
        return true;
    }

private:
    QPushButton &m_button;
};

} // namespace

void PageStatus::setIdle(BusyIndicator &indicator, bool idle)
{
    indicator.setHidden(idle);
    if (idle)
        indicator.stopAnimation();
    else
        indicator.startAnimation();
}

void PageStatus::pressOnReturn(QWidget &page, QPushButton &button)
{
    new ReturnKey(page, button); // owned by the page
}

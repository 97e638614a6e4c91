#include "PageStatus.h"

#include "BusyIndicator.h"
#include "MiscTool.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>

#include <utility>

namespace
{

class MainButton : public QObject
{
public:
    MainButton(QWidget &page, QPushButton &button) : QObject(&page), m_button(button)
    {
        page.installEventFilter(this);
        button.installEventFilter(this);
        connect(qApp, &QApplication::focusChanged, this, [this](const QWidget *left) {
            if (left == &m_button && !m_button.isEnabled())
                noteLostFocus();
        });
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == &m_button && event->type() == QEvent::EnabledChange && m_button.isEnabled())
            giveFocusBack();
        return watched != &m_button && event->type() == QEvent::KeyPress && takesKey(event);
    }

private:
    // Keys that a control leaves unused arrive at its page.
    bool takesKey(QEvent *event)
    {
        const auto *press = static_cast<QKeyEvent *>(event);
        const bool isReturn = press->key() == Qt::Key_Return || press->key() == Qt::Key_Enter;
        if (!isReturn || press->isAutoRepeat() || !m_button.isVisible())
            return false;
        // A button that has the focus is what the user means.
        auto *focused = qobject_cast<QPushButton *>(QApplication::focusWidget());
        (focused ? *focused : m_button).click(); // does nothing when disabled
        return true;
    }

    void noteLostFocus()
    {
        m_isFocusLost = true;
        // Where it is once everything else is disabled, too.
        QMetaObject::invokeMethod(
            this, [this] { m_instead = m_button.window()->focusWidget(); }, Qt::QueuedConnection);
    }
    void giveFocusBack()
    {
        if (std::exchange(m_isFocusLost, false) && m_button.window()->focusWidget() == m_instead)
            m_button.setFocus();
    }

    QPushButton &m_button;
    const QWidget *m_instead = nullptr; ///< To be compared only.
    bool m_isFocusLost = false;
};

} // namespace

bool PageStatus::refuse(const char *messageKey, const char *informativeKey)
{
    MiscTool::showAlert(qtTrId(messageKey), informativeKey ? qtTrId(informativeKey) : QString());
    return false;
}

void PageStatus::setIdle(BusyIndicator &indicator, bool idle)
{
    indicator.setHidden(idle);
    indicator.setAnimating(!idle);
}

void PageStatus::keepSpaceWhenHidden(QWidget &widget)
{
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
}

void PageStatus::pressOnReturn(QWidget &page, QPushButton &button)
{
    new MainButton(page, button); // owned by the page
}

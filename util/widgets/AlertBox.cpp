#include "AlertBox.h"

#include "WindowActivation.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QWindow> // a complete type for the connection

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr auto quietInterval = 500ms;
constexpr int gap = 48; // leaves room for a title bar: its height is reported some time later

QString &currentSubject()
{
    static QString subject;
    return subject;
}

QString titleOfBox()
{
    return currentSubject().isEmpty() ? QApplication::applicationDisplayName() : currentSubject();
}

// QMessageBox guesses the format of its second text; file names must never be read as markup.
void showAsPlainText(QMessageBox &box)
{
    box.setTextFormat(Qt::PlainText);
    const auto labels = box.findChildren<QLabel *>();
    for (QLabel *label : labels)
        label->setTextFormat(Qt::PlainText);
}

// A box belongs to the window that the user is in, or, while another program is in front, to the
// one that is shown. Never to a dialog: that may close, and take its children along, while the box
// is still shown.
QWidget *windowForBoxes()
{
    for (QWidget *active = QApplication::activeWindow(); active; active = active->parentWidget()) {
        if (active->windowType() == Qt::Window)
            return active;
    }
    const auto windows = QApplication::topLevelWidgets();
    const auto shown = std::ranges::find_if(windows, [](const QWidget *window) {
        return window->isVisible() && window->windowType() == Qt::Window;
    });
    return shown == windows.end() ? nullptr : *shown;
}

bool isFree(const QRect &place, const QList<QRect> &taken, const QRect &screen)
{
    return screen.contains(place)
        && std::ranges::none_of(taken, [&](const QRect &other) { return other.intersects(place); });
}

/// A place below, above or beside one that is taken; the box's own if there is no room.
QPoint freePlace(QRect box, const QList<QRect> &taken, const QRect &screen)
{
    const QPoint home = box.topLeft();
    for (const QRect &other : taken) {
        for (const QPoint place : {QPoint(home.x(), other.bottom() + gap),
                                   QPoint(home.x(), other.top() - gap - box.height()),
                                   QPoint(other.right() + gap, home.y()),
                                   QPoint(other.left() - gap - box.width(), home.y())}) {
            box.moveTopLeft(place);
            if (isFree(box, taken, screen))
                return place;
        }
    }
    return home;
}

} // namespace

AlertBox::AlertBox(const QString &messageText, const QString &informativeText)
    : QMessageBox(Information, titleOfBox(), messageText, Ok, windowForBoxes())
{
    setObjectName(u"messageBox"_s);
    setInformativeText(informativeText);
    showAsPlainText(*this);
    button(Ok)->installEventFilter(this);
}

void AlertBox::setSubject(const QString &subject)
{
    currentSubject() = QString(subject).replace("[*]"_L1, "[*][*]"_L1); // Qt's mark of changes
    QMetaObject::invokeMethod(
        qApp, [] { currentSubject().clear(); }, Qt::QueuedConnection);
}

void AlertBox::setVisible(bool visible)
{
    if (visible && parentWidget() && !QApplication::activeWindow()
        && WindowActivation::isReported())
        return wait();
    m_isWaiting = false;
    m_quiet.start();
    QMessageBox::setVisible(visible);
}

void AlertBox::wait()
{
    m_isWaiting = true;
    // Queued: the window is still becoming active when the signal comes.
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &AlertBox::comeUp,
            Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection));
    QApplication::alert(parentWidget());
}

void AlertBox::comeUp()
{
    if (m_isWaiting)
        show();
}

// A box comes up while somebody types. What was meant for another place must not dismiss it.
bool AlertBox::isTooEarly(const QEvent &event)
{
    const bool isKey = event.type() == QEvent::KeyPress || event.type() == QEvent::Shortcut;
    if (!isKey || m_quiet.hasExpired(quietInterval / 1ms))
        return false;
    m_quiet.start();
    return true;
}

bool AlertBox::eventFilter(QObject *watched, QEvent *event)
{
    return isTooEarly(*event) || QMessageBox::eventFilter(watched, event);
}

bool AlertBox::event(QEvent *event)
{
    return isTooEarly(*event) || QMessageBox::event(event);
}

void AlertBox::showEvent(QShowEvent *event)
{
    QMessageBox::showEvent(event);
    if (!event->spontaneous())
        moveClearOfOthers();
}

// Before it is mapped. A Wayland compositor places windows as it likes.
void AlertBox::moveClearOfOthers()
{
    QList<QRect> taken;
    const auto windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows) {
        if (window != this && window->isVisible() && qobject_cast<const AlertBox *>(window))
            taken += window->frameGeometry();
    }
    if (!taken.isEmpty())
        move(freePlace(geometry(), taken, screen()->availableGeometry()));
}

void AlertBox::closeEvent(QCloseEvent *event)
{
    if (!m_isWaiting)
        return QMessageBox::closeEvent(event);
    event->accept();
    done(Rejected); // Qt has no escape button for a box that was never shown
}

#include "AlertBox.h"
#include "LibrarySymbol.h"
#include "MiscTool.h"
#include "Mnemonics.h"

#include <QApplication>
#include <QGraphicsOpacityEffect>
#include <QPointer>
#include <QPropertyAnimation>

#include <canberra.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace
{

// The desktop's alert sound, by the freedesktop sound theme through libcanberra. The library is
// loaded at the first sound, so starting the program costs nothing for it. A machine without the
// library, a sound server or a device is merely silent.
void playAlert()
{
    QLibrary library(u"canberra"_s, 0);
    decltype(&ca_context_create) create = nullptr;
    decltype(&ca_context_play) play = nullptr;
    decltype(&ca_context_destroy) destroy = nullptr;
    if (!resolveSymbol(library, "ca_context_create", create)
        || !resolveSymbol(library, "ca_context_play", play)
        || !resolveSymbol(library, "ca_context_destroy", destroy))
        return;
    static const auto context = [&] {
        ca_context *made = nullptr;
        const bool isMade = create(&made) == CA_SUCCESS;
        return std::unique_ptr<ca_context, decltype(destroy)>(isMade ? made : nullptr, destroy);
    }();
    if (context)
        play(context.get(), 0, CA_PROP_EVENT_ID, "bell", CA_PROP_MEDIA_ROLE, "event", nullptr);
}

// Swings a window left and right and leaves it where it was. A shake that still runs starts again
// from its own beginning, so that the window never drifts. If the desktop places windows itself
// (Wayland), nothing moves.
void swing(QWidget &window)
{
    constexpr float distance = 0.02F; // of the window's width
    const auto shakes =
        window.findChildren<QAbstractAnimation *>(u"shake"_s, Qt::FindDirectChildrenOnly);
    for (QAbstractAnimation *shake : shakes) {
        if (shake->state() == QAbstractAnimation::Running)
            return shake->setCurrentTime(0);
    }
    const QPoint home = window.pos();
    const QPoint side(qRound(double(distance) * window.width()), 0);
    auto *shake = new QPropertyAnimation(&window, "pos", &window);
    shake->setObjectName(u"shake"_s);
    shake->setStartValue(home - side);
    shake->setEndValue(home + side);
    shake->setDuration(100);
    shake->setLoopCount(4);
    QObject::connect(shake, &QAbstractAnimation::finished, &window,
                     [&window, home] { window.move(home); });
    shake->start(QAbstractAnimation::DeleteWhenStopped);
}

// A white veil over a window that fades within a moment and takes no input.
void flash(QWidget &window)
{
    if (window.findChild<QWidget *>(u"flash"_s, Qt::FindDirectChildrenOnly))
        return; // one flash at a time is enough
    auto *veil = new QWidget(&window);
    veil->setObjectName(u"flash"_s);
    veil->setAttribute(Qt::WA_TransparentForMouseEvents);
    veil->setAutoFillBackground(true);
    veil->setPalette(Qt::white);
    veil->setGeometry(window.rect());
    auto *effect = new QGraphicsOpacityEffect(veil);
    veil->setGraphicsEffect(effect);
    auto *fade = new QPropertyAnimation(effect, "opacity", veil);
    fade->setStartValue(0.7);
    fade->setEndValue(0.0);
    fade->setDuration(180);
    QObject::connect(fade, &QAbstractAnimation::finished, veil, &QObject::deleteLater);
    fade->start();
    veil->show();
    veil->raise();
}

} // namespace

int MiscTool::showAlert(const QString &messageText, const QString &informativeText)
{
    // Not on the stack: its window may go while the box is shown, and takes it along.
    const QPointer<AlertBox> box = new AlertBox(messageText, informativeText);
    Mnemonics::keepUnique(box);
    const int answer = box->exec();
    delete box;
    return answer;
}

void MiscTool::showWindow(QWidget *window)
{
    if (!window)
        return;
    window->show();
    window->raise();
    window->activateWindow();
}

void MiscTool::hideWindow(QWidget *window)
{
    if (window)
        window->hide();
}

void MiscTool::shakeWindow(QWidget *window)
{
    if (window)
        swing(*window);
    playSystemSound();
    flashScreen();
}

void MiscTool::playSystemSound()
{
    playAlert();
}

void MiscTool::flashScreen()
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->isVisible() && window->windowType() != Qt::Popup)
            flash(*window);
    }
}

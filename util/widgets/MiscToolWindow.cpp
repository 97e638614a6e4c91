#include "AlertSound.h"
#include "FlashOverlay.h"
#include "MiscTool.h"
#include "Mnemonics.h"
#include "WindowShake.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>

#include <algorithm>

namespace
{

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

} // namespace

int MiscTool::showAlert(const QString &messageText, const QString &informativeText)
{
    // Not on the stack: its window may go while the box is shown, and takes it along.
    const QPointer<QMessageBox> box =
        new QMessageBox(QMessageBox::Information, QApplication::applicationDisplayName(),
                        messageText, QMessageBox::Ok, windowForBoxes());
    box->setObjectName(QStringLiteral("messageBox"));
    box->setInformativeText(informativeText);
    showAsPlainText(*box);
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
    WindowShake::start(window);
    playSystemSound();
    flashScreen();
}

void MiscTool::playSystemSound()
{
    AlertSound::play();
}

void MiscTool::flashScreen()
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->isVisible() && window->windowType() != Qt::Popup)
            FlashOverlay::flash(window);
    }
}

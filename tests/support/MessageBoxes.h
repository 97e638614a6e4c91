#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QStringList>
#include <QTimer>

#include <functional>

/// Takes the place of the user at message boxes: records the text of each and presses its OK
/// button, so that a test continues. Lives on the interface thread while a test expects boxes.
class MessageBoxes : public QObject
{
public:
    MessageBoxes()
    {
        m_look.setInterval(5);
        connect(&m_look, &QTimer::timeout, this, &MessageBoxes::look);
        m_look.start();
    }

    QStringList texts; ///< Each box's message, in order.
    QStringList informativeTexts;
    /// Called while a box is still shown, so that a test can look at the program behind it.
    std::function<void()> whileShown;

private:
    void look()
    {
        const QPointer box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box || box->objectName() != QLatin1String("messageBox"))
            return;
        m_look.stop();
        texts += box->text();
        informativeTexts += box->informativeText();
        if (whileShown)
            whileShown();
        if (box)
            box->button(QMessageBox::Ok)->click();
        m_look.start();
    }

    QTimer m_look;
};

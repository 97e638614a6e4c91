#pragma once

#include <QElapsedTimer>
#include <QMessageBox>

/// The box of MiscTool::showAlert(). While the user works in another program's window it is not
/// shown, because it would take the keyboard: the desktop is asked for attention, and the box comes
/// up as soon as one of our windows is active. `exec()` lasts until it is dismissed, or closed
/// while it waits. Interface thread only.
class AlertBox : public QMessageBox
{
    Q_OBJECT

public:
    /// Belongs to the window that the user is in, which takes the box along when it goes.
    AlertBox(const QString &messageText, const QString &informativeText);

    /// What the boxes are about that are made before control returns to the event loop: their
    /// window title. Otherwise it is the application's name.
    static void setSubject(const QString &subject);

    void setVisible(bool visible) override; ///< Waits if need be.
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void wait();
    void comeUp();
    bool isTooEarly(const QEvent &event);
    void moveClearOfOthers();

    bool m_isWaiting = false;
    QElapsedTimer m_quiet; ///< Since the last key that came too early.
};

#pragma once

#include <QWidget>

#include <memory>

namespace Ui
{
class LoginWindow;
}

class UserSchema;

/// The login window: the application's name, a user name and a password. It is hidden at start, as
/// the tools need no login. A refused login shakes the window; no message gives the reason.
class LoginDelegate : public QWidget
{
    Q_OBJECT

public:
    explicit LoginDelegate(QWidget *parent = nullptr);
    ~LoginDelegate() override;

    QWidget *mainWindow = nullptr; ///< Its title becomes the user's name; may be null.

    void userAction(); ///< Moves the focus to the password.
    void loginAction();

    static bool applicationShouldTerminateAfterLastWindowClosed() { return true; }

Q_SIGNALS:
    void loggedIn(); ///< The session has a new user.

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void awakeFromNib();
    void initLocalizable();
    void logIn(const UserSchema &user);

    std::unique_ptr<Ui::LoginWindow> ui;
};

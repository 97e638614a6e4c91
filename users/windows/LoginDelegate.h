#pragma once

#include <QWidget>

#include <memory>

namespace Ui
{
class LoginWindow;
}

class UserSchema;

/// The login window: the application's name, a user name and a password. Hidden at start; the tools
/// need no login. A login that is refused shakes the window and says nothing more.
class LoginDelegate : public QWidget
{
    Q_OBJECT

public:
    explicit LoginDelegate(QWidget *parent = nullptr);
    ~LoginDelegate() override;

    QWidget *mainWindow = nullptr; ///< Takes the user's name as its title; may be missing.

    void userAction(); ///< The name is typed: on to the password.
    void loginAction();

    static bool applicationShouldTerminateAfterLastWindowClosed() { return true; }

Q_SIGNALS:
    void loggedIn(); ///< The session's user is another one now.

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void awakeFromNib();
    void initLocalizable();
    void logIn(const UserSchema &user);

    std::unique_ptr<Ui::LoginWindow> ui;
};

#pragma once

#include <QWidget>

#include <memory>

namespace Ui
{
class LoginWindow;
}

/// The login window: the application's name, a user name and a password. Hidden at start; the tools
/// need no login.
class LoginDelegate : public QWidget
{
    Q_OBJECT

public:
    explicit LoginDelegate(QWidget *parent = nullptr);
    ~LoginDelegate() override;

    static bool applicationShouldTerminateAfterLastWindowClosed() { return true; }

private:
    void awakeFromNib();
    void initLocalizable();
    void userAction(); ///< The name is typed: on to the password.

    std::unique_ptr<Ui::LoginWindow> ui;
};

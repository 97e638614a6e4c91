#include "LoginDelegate.h"

#include "Global.h"
#include "Login.h"
#include "MiscTool.h"
#include "Mnemonics.h"
#include "ui_LoginWindow.h"

#include <QHideEvent>
#include <QShortcut>

LoginDelegate::LoginDelegate(QWidget *parent)
    : QWidget(parent, Qt::Window), ui(std::make_unique<Ui::LoginWindow>())
{
    ui->setupUi(this);
    Mnemonics::keepUnique(this);
    connect(ui->userField, &QLineEdit::returnPressed, this, &LoginDelegate::userAction);
    connect(ui->passwordField, &QLineEdit::returnPressed, this, &LoginDelegate::loginAction);
    connect(ui->loginButton, &QPushButton::clicked, this, &LoginDelegate::loginAction);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    awakeFromNib();
}

LoginDelegate::~LoginDelegate() = default;

void LoginDelegate::awakeFromNib()
{
    initLocalizable();
}

void LoginDelegate::initLocalizable()
{
    ui->appNameLabel->setText(qtTrId("AppName"));
    ui->userField->setPlaceholderText(qtTrId("User"));
    ui->passwordField->setPlaceholderText(qtTrId("Password"));
}

void LoginDelegate::userAction()
{
    ui->passwordField->setFocus();
}

void LoginDelegate::loginAction()
{
    const QString user = ui->userField->text();
    const QString password = ui->passwordField->text();
    if (user.isEmpty() || password.isEmpty())
        return MiscTool::shakeWindow(this);
    const QList<UserSchema> found = Login::matchingUsers(user, password);
    if (found.size() == 1)
        return logIn(found.first());
    ui->passwordField->setFocus();
    ui->passwordField->selectAll(); // so that typing replaces it
    MiscTool::shakeWindow(this);
}

void LoginDelegate::logIn(const UserSchema &user)
{
    Global::setLoggedUser(user);
    if (mainWindow)
        mainWindow->setWindowTitle(user.User);
    MiscTool::hideWindow(this);
    MiscTool::showWindow(mainWindow);
    Q_EMIT loggedIn();
}

void LoginDelegate::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (event->spontaneous())
        return;
    ui->userField->setFocus();
    ui->userField->selectAll();
}

void LoginDelegate::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (!event->spontaneous())
        ui->passwordField->clear(); // the next person to open the window must not find it
}

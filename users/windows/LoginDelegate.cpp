#include "LoginDelegate.h"

#include "ui_LoginWindow.h"

LoginDelegate::LoginDelegate(QWidget *parent)
    : QWidget(parent, Qt::Window), ui(std::make_unique<Ui::LoginWindow>())
{
    ui->setupUi(this);
    connect(ui->userField, &QLineEdit::returnPressed, this, &LoginDelegate::userAction);
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

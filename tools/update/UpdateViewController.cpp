#include "UpdateViewController.h"

#include "ui_UpdateViewController.h"

#include <QCoreApplication>

UpdateViewController::UpdateViewController(JobList &, QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui::UpdateViewController>())
{
    ui->setupUi(this);
    ui->versionLabel->setText(
        qtTrId("Update.Installed").arg(QCoreApplication::applicationVersion()));
    awakeFromNib();
}

UpdateViewController::~UpdateViewController() = default;

void UpdateViewController::awakeFromNib()
{
    ui->updateLabel->setText(qtTrId("Update"));
}

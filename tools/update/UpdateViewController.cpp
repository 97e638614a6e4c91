#include "UpdateViewController.h"

#include "ui_UpdateViewController.h"

UpdateViewController::UpdateViewController(JobList &jobs, QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui::UpdateViewController>())
{
    ui->setupUi(this);
    ui->updateCheck->setJobs(jobs, objectName());
    awakeFromNib();
}

UpdateViewController::~UpdateViewController() = default;

void UpdateViewController::awakeFromNib()
{
    ui->updateLabel->setText(qtTrId("Update"));
}

#include "ZIPViewController.h"

#include "Chooser.h"
#include "FileNames.h"
#include "FilePlacement.h"
#include "JobList.h"
#include "MiscTool.h"
#include "PageAction.h"
#include "PageStatus.h"
#include "ZipCommand.h"
#include "ui_ZIPViewController.h"

#include <QPointer>
#include <QtConcurrentRun>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace
{

QCoro::Task<JobOutcome> place(QString archive, QString output, std::stop_token stop)
{
    const QString written = ZipCommand::writtenArchive(archive);
    const int error = co_await QtConcurrent::run(placeFile, written, output, stop);
    if (error == 0)
        co_return JobOutcome::Succeeded;
    co_return error == ECANCELED ? JobOutcome::Stopped : JobOutcome::Failed;
}

} // namespace

ZIPViewController::ZIPViewController(JobList &jobs, QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui::ZIPViewController>()), m_jobs(jobs), m_runner(jobs)
{
    ui->setupUi(this);
    connect(ui->srcSelectButton, &QPushButton::clicked, this, &ZIPViewController::srcSelectAction);
    connect(ui->outputButton, &QPushButton::clicked, this, &ZIPViewController::outputAction);
    connect(ui->clearButton, &QPushButton::clicked, this, &ZIPViewController::clearAction);
    connect(ui->generateButton, &QPushButton::clicked, this,
            [this] { watchPageAction(this, generateAction()); });
    PageStatus::pressOnReturn(*this, *ui->generateButton);
    ui->srcFolderField->takeDropsOf(*this);
    ui->outputField->setSource(*ui->srcFolderField);
    awakeFromNib();
}

ZIPViewController::~ZIPViewController() = default;

void ZIPViewController::awakeFromNib()
{
    ui->titleLabel->setText(qtTrId("Zip"));
    ui->srcBox->setTitle(qtTrId("Source"));
    ui->srcSelectButton->setText(qtTrId("Select"));
    ui->ratioBox->setTitle(qtTrId("CompressRatio"));
    ui->ratioPopUp->setItemText(0, qtTrId("Store"));
    ui->ratioPopUp->setItemText(1, qtTrId("Faster"));
    ui->ratioPopUp->setItemText(2, qtTrId("Better"));
    for (const int tag : {ZipCommand::Store, ZipCommand::Faster, ZipCommand::Better})
        ui->ratioPopUp->setItemData(tag, tag);
    ui->outputBox->setTitle(qtTrId("Output"));
    ui->outputButton->setText(qtTrId("Select"));
    ui->progressBox->setTitle(qtTrId("Progress"));
    ui->clearButton->setText(qtTrId("Clear"));
    ui->generateButton->setText(qtTrId("Zip"));
}

void ZIPViewController::srcSelectAction()
{
    Chooser::chooseFolder(this, [this](const QString &path) { ui->srcFolderField->setText(path); });
}

void ZIPViewController::outputAction()
{
    Chooser::chooseSaveFile(
        this, u"zip"_s, [this](const QString &path) { ui->outputField->setText(path); },
        ui->srcFolderField->text());
}

void ZIPViewController::clearAction()
{
    ui->srcFolderField->clear();
    ui->ratioPopUp->setCurrentIndex(ui->ratioPopUp->findData(ZipCommand::Faster));
    ui->outputField->clear();
    ui->showInFolderButton->withdraw();
}

QString ZIPViewController::getCompressRatio() const
{
    return ZipCommand::compressRatio(ui->ratioPopUp->currentData().toInt());
}

bool ZIPViewController::verify()
{
    if (ui->srcFolderField->text().isEmpty())
        return PageStatus::refuse("SrcFolderNull");
    if (ui->outputField->text().isEmpty())
        return PageStatus::refuse("ZipFileNameNull");
    if (itemExists(ui->outputField->text()))
        return PageStatus::refuse("ZipFileExist");
    return true;
}

QCoro::Task<> ZIPViewController::generateAction()
{
    if (!verify())
        co_return;
    setStatus(false);
    ui->showInFolderButton->withdraw();
    const QPointer<ZIPViewController> self(this);
    const QString source = ui->srcFolderField->text();
    const QString output = ui->outputField->text(); // the field may say something else later
    const QString archive = ZipCommand::temporaryArchive(MiscTool::getAppDocumentFolder(), output);
    const Command command = ZipCommand::pack(source, archive, getCompressRatio());
    Job job = m_jobs.begin(
        {.page = objectName(), .title = qtTrId("Zip"), .subject = source, .output = output});

    const CommandResult packed = co_await m_runner.run(command, job);
    if (!self || !packed.couldStart())
        co_return;
    JobOutcome outcome = packed.outcome();
    if (packed.succeeded()) // a page that closes from here on does not stop it
        outcome = co_await place(archive, output, job.stopToken());
    job.end(outcome);
    if (!self)
        co_return;

    ui->elapsedLabel->hold();
    // A placement that fails, unless it was stopped, is only logged.
    const bool isPacked = packed.succeeded() && outcome != JobOutcome::Stopped;
    MiscTool::showAlert(qtTrId(isPacked ? "ZipSuc" : "ZipFail"), QString());
    if (!self)
        co_return;
    setStatus(true);
    if (outcome == JobOutcome::Succeeded)
        ui->showInFolderButton->offer(output); // where the progress was
}

void ZIPViewController::setStatus(bool idle)
{
    ui->srcSelectButton->setEnabled(idle);
    ui->ratioPopUp->setEnabled(idle);
    ui->outputField->setReadOnly(!idle);
    ui->outputButton->setEnabled(idle);
    ui->clearButton->setEnabled(idle);
    ui->generateButton->setEnabled(idle);
    PageStatus::setIdle(*ui->progressIndicator, idle);
}

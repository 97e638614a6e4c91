#include "ZIPViewController.h"

#include "Chooser.h"
#include "FilePlacement.h"
#include "FileNames.h"
#include "FormCheck.h"
#include "MiscTool.h"
#include "PageAction.h"
#include "PageStatus.h"
#include "ZipCommand.h"
#include "ui_ZIPViewController.h"

#include <QPointer>

using namespace Qt::StringLiterals;

namespace
{

JobOutcome outcomeOf(const FilePlacement &placement)
{
    if (placement.succeeded())
        return JobOutcome::Succeeded;
    return placement.wasStopped() ? JobOutcome::Stopped : JobOutcome::Failed;
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
            [this] { startPageAction(this, generateAction()); });
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
        return FormCheck::refuse("SrcFolderNull");
    if (ui->outputField->text().isEmpty())
        return FormCheck::refuse("ZipFileNameNull");
    if (itemExists(ui->outputField->text()))
        return FormCheck::refuse("ZipFileExist");
    return true;
}

QCoro::Task<> ZIPViewController::generateAction()
{
    if (!verify())
        co_return;
    setStatus(false);
    ui->showInFolderButton->withdraw();
    const QPointer<ZIPViewController> self(this);
    const QString output = ui->outputField->text();
    const QString archive = ZipCommand::temporaryArchive(MiscTool::getAppDocumentFolder(), output);
    const Command command =
        ZipCommand::pack(ui->srcFolderField->text(), archive, getCompressRatio());

    JobDescription whole = job(); // the form may say something else by the time it is placed
    whole.begun.start();
    JobDescription packing = whole;
    packing.successIsNews = false;
    const CommandResult result = co_await m_runner.run(command, packing);
    if (!self || !result.couldStart())
        co_return;
    bool succeeded = result.succeeded();
    bool isPlaced = false;
    if (succeeded) {
        std::stop_source stop; // for the user alone: a page that goes leaves the archive its way
        Job placing = m_jobs.begin(whole, [stop]() mutable { stop.request_stop(); });
        const FilePlacement placement =
            co_await placeFile(ZipCommand::writtenArchive(archive), output, stop.get_token());
        placing.end(outcomeOf(placement));
        if (!self)
            co_return;
        isPlaced = placement.succeeded();
        succeeded = !placement.wasStopped(); // no other failure of the placement is judged
    }
    ui->elapsedLabel->hold();
    MiscTool::showAlert(qtTrId(succeeded ? "ZipSuc" : "ZipFail"), QString());
    if (!self)
        co_return;
    setStatus(true);
    if (isPlaced)
        ui->showInFolderButton->offer(output); // where the progress was
}

JobDescription ZIPViewController::job() const
{
    return {.page = objectName(), .title = qtTrId("Zip"), .subject = ui->srcFolderField->text()};
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

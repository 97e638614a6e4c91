#include "ZIPViewController.h"

#include "ArchivePlacement.h"
#include "Chooser.h"
#include "FileNames.h"
#include "JobList.h"
#include "MiscTool.h"
#include "PageAction.h"
#include "PageStatus.h"
#include "Question.h"
#include "UnplacedArchives.h"
#include "ZipCommand.h"
#include "ui_ZIPViewController.h"

#include <QFileInfo>
#include <QPointer>

using namespace Qt::StringLiterals;

ZIPViewController::ZIPViewController(JobList &jobs, QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui::ZIPViewController>()), m_jobs(jobs), m_runner(jobs)
{
    ui->setupUi(this);
    PageStatus::keepSpaceWhenHidden(*ui->runLine);
    connect(ui->srcSelectButton, &QPushButton::clicked, this, &ZIPViewController::srcSelectAction);
    connect(ui->outputButton, &QPushButton::clicked, this, &ZIPViewController::outputAction);
    connect(ui->clearButton, &QPushButton::clicked, this, &ZIPViewController::clearAction);
    connect(ui->generateButton, &QPushButton::clicked, this,
            [this] { watchPageAction(this, generateAction()); });
    PageStatus::pressOnReturn(*this, *ui->generateButton);
    ui->srcFolderField->takeDropsOf(*this);
    ui->outputField->setSource(*ui->srcFolderField);
    ui->srcHint->watch(*ui->srcFolderField, PathUse::SourceFolder);
    ui->outputHint->watch(*ui->outputField, PathUse::NewFile);
    ui->outputHint->setSource(*ui->srcFolderField);
    ui->runLine->putInTabOrder(ui->showInFolderButton, ui->clearButton);
    connect(ui->runLine, &RunLine::placeWanted, this, &ZIPViewController::choosePlace);
    connect(ui->runLine, &RunLine::discardWanted, this, &ZIPViewController::askToDiscard);
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
    ui->runLine->withdraw();
    offerNewest(); // stays until it is placed or discarded
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
    PathField::expandHomeIn(*this);
    if (!verify())
        co_return;
    setStatus(false);
    const QPointer<ZIPViewController> self(this);
    const QString source = ui->srcFolderField->text();
    const QString output = ui->outputField->text(); // the field may say something else later
    const QString archive = ZipCommand::temporaryArchive(MiscTool::getAppDocumentFolder(), output);
    const Command command = ZipCommand::pack(source, archive, getCompressRatio());
    Job job = m_jobs.begin(
        {.page = objectName(), .title = qtTrId("Zip"), .subject = source, .output = output});

    const CommandResult packed = co_await m_runner.run(command, job);
    if (self && !packed.couldStart())
        sayCouldNotStart();
    if (!self || !packed.couldStart())
        co_return;
    Placement placement;
    JobOutcome outcome = packed.outcome();
    if (packed.succeeded()) {
        placement =
            co_await placeArchive(ZipCommand::writtenArchive(archive), output, job.stopToken());
        outcome = placement.outcome();
    }
    job.end(outcome);
    if (!self)
        co_return;

    ui->elapsedLabel->hold();
    // Where the archive could not be placed, the page says so afterwards.
    if (outcome != JobOutcome::Stopped)
        MiscTool::showAlert(qtTrId(packed.succeeded() ? "ZipSuc" : "ZipFail"), QString());
    if (!self)
        co_return;
    setStatus(true);
    showEnd(outcome, placement.error, placement.kept, output);
}

QCoro::Task<> ZIPViewController::placeKept(QString archive, QString output)
{
    setStatus(false);
    const QPointer<ZIPViewController> self(this);
    Job job = m_jobs.begin({.page = objectName(), .title = qtTrId("Zip"), .subject = output});
    const Placement placement = co_await placeArchive(archive, output, job.stopToken());
    job.end(placement.outcome());
    if (!self)
        co_return;
    setStatus(true);
    showEnd(placement.outcome(), placement.error, placement.kept, output);
}

void ZIPViewController::showEnd(JobOutcome outcome, int error, const QString &kept,
                                const QString &output)
{
    if (!kept.isEmpty())
        return offerPlace(kept, unplacedText(error));
    if (outcome == JobOutcome::Succeeded)
        ui->showInFolderButton->offer(output); // where the progress was
    else if (outcome == JobOutcome::Stopped)
        ui->runLine->say(qtTrId("Run.Stopped"));
    else
        offerNewest();
}

// The page stays as it is until the program is started again.
void ZIPViewController::sayCouldNotStart()
{
    ui->progressIndicator->hide();
    ui->runLine->say(qtTrId("Run.CouldNotStart").arg(u"zip"_s));
}

void ZIPViewController::offerPlace(const QString &archive, const QString &text)
{
    m_unplaced = archive;
    ui->showInFolderButton->withdraw();
    ui->runLine->offerPlace(text, archive);
}

void ZIPViewController::offerNewest()
{
    if (const QString kept = UnplacedArchives::newest(); !kept.isEmpty())
        offerPlace(kept, unplacedText(0));
}

void ZIPViewController::choosePlace()
{
    Chooser::chooseSaveFile(
        this, u"zip"_s,
        [this](const QString &path) { watchPageAction(this, placeKept(m_unplaced, path)); },
        m_unplaced);
}

void ZIPViewController::askToDiscard()
{
    ask(window(),
        {.name = "discardQuestion",
         .text = qtTrId("Zip.Discard.Question"),
         .consequence = QFileInfo(m_unplaced).fileName(),
         .agree = qtTrId("Zip.Discard"),
         .decline = qtTrId("Zip.Keep")},
        [page = QPointer(this)] {
            if (page)
                page->discard();
        });
}

void ZIPViewController::discard()
{
    UnplacedArchives::remove(m_unplaced);
    ui->runLine->withdraw();
    offerNewest(); // the one before
}

void ZIPViewController::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    const bool isQuiet = ui->generateButton->isEnabled() && ui->runLine->isHidden()
        && ui->showInFolderButton->isHidden();
    if (isQuiet)
        offerNewest();
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
    if (!idle) { // what was said about the last run
        ui->showInFolderButton->withdraw();
        ui->runLine->withdraw();
    }
}

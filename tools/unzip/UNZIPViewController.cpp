#include "UNZIPViewController.h"

#include "Chooser.h"
#include "FileNames.h"
#include "JobList.h"
#include "MiscTool.h"
#include "PageAction.h"
#include "PageStatus.h"
#include "UnzipCommand.h"
#include "ui_UNZIPViewController.h"

#include <QDir>
#include <QPointer>

using namespace Qt::StringLiterals;

UNZIPViewController::UNZIPViewController(JobList &jobs, QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui::UNZIPViewController>()), m_jobs(jobs), m_runner(jobs)
{
    ui->setupUi(this);
    PageStatus::keepSpaceWhenHidden(*ui->runLine);
    connectButtons();
    awakeFromNib();
}

UNZIPViewController::~UNZIPViewController() = default;

void UNZIPViewController::connectButtons()
{
    connect(ui->srcSelectButton, &QPushButton::clicked, this,
            &UNZIPViewController::srcSelectAction);
    connect(ui->outputSelectButton, &QPushButton::clicked, this,
            &UNZIPViewController::outputSelectAction);
    connect(ui->openButton, &QPushButton::clicked, this, &UNZIPViewController::openAction);
    connect(ui->clearButton, &QPushButton::clicked, this, &UNZIPViewController::clearAction);
    connect(ui->generateButton, &QPushButton::clicked, this,
            [this] { watchPageAction(this, generateAction()); });
    PageStatus::pressOnReturn(*this, *ui->generateButton);
    ui->srcFolderField->takeDropsOf(*this);
    ui->srcHint->watch(*ui->srcFolderField, PathUse::SourceFile);
    ui->outputHint->watch(*ui->outputField, PathUse::OutputFolder);
    ui->outputHint->setSource(*ui->srcFolderField, [this] {
        const bool hasSource = !ui->srcFolderField->text().isEmpty();
        return hasSource ? destination().value_or(QString()) : QString();
    });
}

void UNZIPViewController::awakeFromNib()
{
    ui->titleLabel->setText(qtTrId("Unzip"));
    ui->srcBox->setTitle(qtTrId("Source"));
    ui->srcSelectButton->setText(qtTrId("Select"));
    ui->outputBox->setTitle(qtTrId("Output"));
    ui->outputSelectButton->setText(qtTrId("Select"));
    ui->progressBox->setTitle(qtTrId("Progress"));
    ui->clearButton->setText(qtTrId("Clear"));
    ui->generateButton->setText(qtTrId("Unzip"));
}

void UNZIPViewController::srcSelectAction()
{
    Chooser::chooseFile(this, {u"zip"_s},
                        [this](const QString &path) { ui->srcFolderField->setText(path); });
}

void UNZIPViewController::outputSelectAction()
{
    Chooser::chooseFolder(this, [this](const QString &path) { ui->outputField->setText(path); });
}

void UNZIPViewController::openAction()
{
    m_fileManager.showFolder(ui->outputField->text());
}

void UNZIPViewController::clearAction()
{
    ui->srcFolderField->clear();
    ui->outputField->clear();
    ui->runLine->withdraw();
}

std::optional<QString> UNZIPViewController::destination() const
{
    return UnzipCommand::destination(ui->srcFolderField->text(), ui->outputField->text());
}

bool UNZIPViewController::verify()
{
    if (ui->srcFolderField->text().isEmpty())
        return PageStatus::refuse("SrcFolderNull");
    const std::optional<QString> folder = destination();
    if (!folder)
        return false;
    if (itemExists(*folder))
        return PageStatus::refuse("OutputFolderExists");
    return true;
}

QCoro::Task<> UNZIPViewController::generateAction()
{
    PathField::expandHomeIn(*this);
    if (!verify())
        co_return;
    setStatus(false);
    const QPointer<UNZIPViewController> self(this);
    const QString archive = ui->srcFolderField->text();
    const QString folder = destination().value_or(QString());
    QDir().mkpath(folder); // what cannot be made here makes unzip fail
    const Command command = UnzipCommand::extract(archive, folder);
    Job job = m_jobs.begin({.page = objectName(), .title = qtTrId("Unzip"), .subject = archive});

    const CommandResult result = co_await m_runner.run(command, job);
    if (self && !result.couldStart()) { // the page stays as it is until the next start
        ui->progressIndicator->hide();
        ui->runLine->say(qtTrId("Run.CouldNotStart").arg(u"unzip"_s));
    }
    if (!self || !result.couldStart())
        co_return;
    job.end(result.outcome());
    ui->elapsedLabel->hold();
    const bool isStopped = result.outcome() == JobOutcome::Stopped;
    if (!isStopped)
        MiscTool::showAlert(qtTrId(result.succeeded() ? "UnzipSuc" : "UnzipFail"), QString());
    if (!self)
        co_return;
    setStatus(true);
    if (isStopped)
        ui->runLine->say(qtTrId("Unzip.Stopped"));
}

void UNZIPViewController::setStatus(bool idle)
{
    ui->srcSelectButton->setEnabled(idle);
    ui->outputSelectButton->setEnabled(idle);
    ui->clearButton->setEnabled(idle);
    ui->generateButton->setEnabled(idle);
    PageStatus::setIdle(*ui->progressIndicator, idle);
    if (!idle)
        ui->runLine->withdraw();
}

#include "ImageViewController.h"

#include "Chooser.h"
#include "JobList.h"
#include "MiscTool.h"
#include "PageAction.h"
#include "PageStatus.h"
#include "PathText.h"
#include "ui_ImageForm.h"

#include <QPointer>

using namespace Qt::StringLiterals;

ImageViewController::ImageViewController(JobList &jobs, const Kind &kind, QWidget *parent)
    : QWidget(parent), m_kind(kind), ui(std::make_unique<Ui::ImageForm>()), m_jobs(jobs),
      m_runner(jobs)
{
}

ImageViewController::~ImageViewController() = default;

void ImageViewController::awakeFromNib(QWidget &formPlace)
{
    ui->setupUi(&formPlace);
    PageStatus::keepSpaceWhenHidden(*ui->runLine);
    connectForm();
    ui->srcBox->setTitle(qtTrId("Source"));
    ui->srcSelectButton->setText(qtTrId("Select"));
    ui->volumnBox->setTitle(qtTrId("Volume"));
    ui->outputBox->setTitle(qtTrId("Output"));
    ui->outputSelectButton->setText(qtTrId("Select"));
    ui->progressBox->setTitle(qtTrId("Progress"));
    ui->clearButton->setText(qtTrId("Clear"));
    ui->generateButton->setText(qtTrId("Generate"));
    ui->outputField->setPlaceholderText(qtTrId("Image.Output.Placeholder").arg(m_kind.suffix));
    ui->outputField->setSuffixes({m_kind.suffix});
}

void ImageViewController::connectForm()
{
    connect(ui->srcSelectButton, &QPushButton::clicked, this,
            &ImageViewController::srcSelectAction);
    connect(ui->srcFolderField, &PathField::pathDropped, this,
            &ImageViewController::setSourceFolder);
    connect(ui->outputSelectButton, &QPushButton::clicked, this,
            &ImageViewController::outputSelectAction);
    connect(ui->clearButton, &QPushButton::clicked, this, &ImageViewController::clearAction);
    connect(ui->generateButton, &QPushButton::clicked, this,
            [this] { watchPageAction(this, generateAction()); });
    PageStatus::pressOnReturn(*this, *ui->generateButton);
    ui->srcFolderField->takeDropsOf(*this);
    ui->srcFolderField->takeDropsOf(*ui->volumnNameField); // would take an address as its text
    ui->outputField->setSource(*ui->srcFolderField);
    ui->srcHint->watch(*ui->srcFolderField, PathUse::SourceFolder);
    ui->outputHint->watch(*ui->outputField, PathUse::ReplacedFile);
    ui->outputHint->setSource(*ui->srcFolderField);
}

void ImageViewController::setSourceFolder(const QString &path)
{
    ui->srcFolderField->setText(path);
    ui->volumnNameField->setText(lastPathComponent(path));
}

void ImageViewController::srcSelectAction()
{
    Chooser::chooseFolder(this, [this](const QString &path) { setSourceFolder(path); });
}

void ImageViewController::outputSelectAction()
{
    Chooser::chooseSaveFile(this, m_kind.suffix,
                            [this](const QString &path) { ui->outputField->setText(path); });
}

void ImageViewController::clearAction()
{
    ui->srcFolderField->clear();
    ui->volumnNameField->clear();
    ui->outputField->clear();
    ui->showInFolderButton->withdraw();
    ui->runLine->withdraw();
}

bool ImageViewController::verify()
{
    if (ui->srcFolderField->text().isEmpty())
        return PageStatus::refuse("SrcFolderNull");
    if (ui->volumnNameField->text().isEmpty())
        return PageStatus::refuse("VolumeNameNull");
    if (ui->outputField->text().isEmpty())
        return PageStatus::refuse("OutputNull");
    return true;
}

// A file at the output path is replaced.
Command ImageViewController::makeHybrid(const QString &output) const
{
    QStringList arguments{u"makehybrid"_s};
    if (m_kind.fileSystem == FileSystem::Hfs)
        arguments << u"-hfs"_s;
    arguments << u"-o"_s << output << u"-default-volume-name"_s << ui->volumnNameField->text()
              << u"-ov"_s << u"-quiet"_s << ui->srcFolderField->text();
    return {.launchPath = u"/usr/bin/hdiutil"_s, .arguments = arguments};
}

QCoro::Task<> ImageViewController::generateAction()
{
    PathField::expandHomeIn(*this);
    if (!verify())
        co_return;
    setStatus(false);
    const QPointer<ImageViewController> self(this);
    const QString output = ui->outputField->text();
    Job job = m_jobs.begin({.page = objectName(),
                            .title = qtTrId(m_kind.nameKey),
                            .subject = ui->srcFolderField->text(),
                            .output = output});

    const CommandResult result = co_await m_runner.run(makeHybrid(output), job);
    if (!self)
        co_return;
    job.end(result.outcome());
    setStatus(true);
    if (result.outcome() == JobOutcome::Stopped)
        co_return ui->runLine->say(qtTrId("Run.Stopped"));
    if (result.succeeded())
        ui->showInFolderButton->offer(output);
    // On purpose these two are shown as they are, not looked up in the table of texts.
    MiscTool::showAlert(result.succeeded() ? u"GenerateImageSuc"_s : u"GenerateImageFail"_s,
                        QString());
}

void ImageViewController::setStatus(bool idle)
{
    ui->srcSelectButton->setEnabled(idle);
    ui->volumnNameField->setReadOnly(!idle);
    ui->outputSelectButton->setEnabled(idle);
    ui->clearButton->setEnabled(idle);
    ui->generateButton->setEnabled(idle);
    PageStatus::setIdle(*ui->progressIndicator, idle);
    if (!idle) { // what was said about the last run
        ui->showInFolderButton->withdraw();
        ui->runLine->withdraw();
    }
}

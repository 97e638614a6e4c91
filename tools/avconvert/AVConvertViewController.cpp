#include "AVConvertViewController.h"

#include "Chooser.h"
#include "JobList.h"
#include "MiscTool.h"
#include "PageAction.h"
#include "PageStatus.h"
#include "PropertyList.h"
#include "ui_AVConvertViewController.h"

#include <QFile>
#include <QPointer>

using namespace Qt::StringLiterals;

AVConvertViewController::AVConvertViewController(JobList &jobs, QWidget *parent,
                                                 const QString &presetList)
    : QWidget(parent), ui(std::make_unique<Ui::AVConvertViewController>()), m_jobs(jobs),
      m_runner(jobs)
{
    ui->setupUi(this);
    PageStatus::keepSpaceWhenHidden(*ui->runLine);
    PageStatus::keepSpaceWhenHidden(*ui->progressBox);
    connectButtons();
    awakeFromNib(presetList);
}

AVConvertViewController::~AVConvertViewController() = default;

QString AVConvertViewController::presetListOfLanguage()
{
    const QString list = u":/presets/"_s + qtTrId("AVConvert.Presets");
    return QFile::exists(list) ? list : u":/presets/avconvert.plist"_s;
}

void AVConvertViewController::connectButtons()
{
    connect(ui->sourceSelectButton, &QPushButton::clicked, this,
            &AVConvertViewController::sourceSelectAction);
    connect(ui->outputSelectButton, &QPushButton::clicked, this,
            &AVConvertViewController::outputSelectAction);
    connect(ui->convertButton, &QPushButton::clicked, this,
            [this] { watchPageAction(this, convertAction()); });
    PageStatus::pressOnReturn(*this, *ui->convertButton);
    ui->sourceField->takeDropsOf(*this);
    ui->outputField->setSource(*ui->sourceField);
    ui->sourceHint->watch(*ui->sourceField, PathUse::SourceFile);
    ui->outputHint->watch(*ui->outputField, PathUse::ReplacedFile);
    ui->outputHint->setSource(*ui->sourceField);
}

void AVConvertViewController::awakeFromNib(const QString &presetList)
{
    initLocalizables();
    avconvertDict = PropertyList::readDictionaryFile(presetList);
    // The dictionary keeps its keys in plain ascending order.
    ui->outputFormatPopUp->addItems(avconvertDict.value_or(QVariantMap()).keys());
}

void AVConvertViewController::initLocalizables()
{
    ui->moduleBox->setTitle(qtTrId("AV Convert"));
    ui->tabView->setTabText(ui->tabView->indexOf(ui->generalTabViewItem), qtTrId("General"));
    ui->sourceBox->setTitle(qtTrId("Source"));
    ui->sourceSelectButton->setText(qtTrId("Select"));
    ui->outputOptionsBox->setTitle(qtTrId("Output Options"));
    ui->outputBox->setTitle(qtTrId("Output"));
    ui->outputSelectButton->setText(qtTrId("Select"));
    ui->operationBox->setTitle(qtTrId("Operation"));
    ui->convertButton->setText(qtTrId("Convert"));
    ui->progressBox->setTitle(qtTrId("Progress"));
}

void AVConvertViewController::sourceSelectAction()
{
    Chooser::chooseFile(this, {u"m4v"_s, u"mp4"_s, u"mpg"_s, u"mpeg"_s, u"avi"_s},
                        [this](const QString &path) { ui->sourceField->setText(path); });
}

void AVConvertViewController::outputSelectAction()
{
    Chooser::chooseSaveFile(this, u"m4v"_s,
                            [this](const QString &path) { ui->outputField->setText(path); });
}

bool AVConvertViewController::verify()
{
    if (ui->sourceField->text().isEmpty())
        return PageStatus::refuse("Source file cannot be null.",
                                  "Please select m4v,mp4,mpg,mpeg or avi video file.");
    if (ui->outputField->text().isEmpty())
        return PageStatus::refuse("Output file cannot be null.", "Please specify the output file.");
    return true;
}

void AVConvertViewController::clear()
{
    ui->sourceField->clear();
    ui->outputField->clear();
}

// A title without a preset's name leaves nothing to put after "--preset": the list of arguments
// ends there and the converter refuses it.
Command AVConvertViewController::convert(const QString &output) const
{
    QStringList arguments{u"--preset"_s};
    const QVariant preset =
        avconvertDict.value_or(QVariantMap()).value(ui->outputFormatPopUp->currentText());
    if (preset.typeId() == QMetaType::QString)
        arguments << preset.toString() << u"--source"_s << ui->sourceField->text() << u"--output"_s
                  << output << u"-q"_s;
    return {.launchPath = u"/usr/bin/avconvert"_s, .arguments = arguments};
}

QCoro::Task<> AVConvertViewController::convertAction()
{
    PathField::expandHomeIn(*this);
    if (!verify())
        co_return;
    setStatus(false);
    showProgress(true);
    ui->showInFolderButton->withdraw();
    ui->runLine->withdraw();
    const QPointer<AVConvertViewController> self(this);
    const QString output = ui->outputField->text();
    Job job = m_jobs.begin({.page = objectName(),
                            .title = qtTrId("AV Convert"),
                            .subject = ui->sourceField->text(),
                            .output = output});

    const CommandResult result = co_await m_runner.run(convert(output), job);
    if (!self)
        co_return;
    job.end(result.outcome());
    if (result.succeeded())
        clear();
    ui->elapsedLabel->hold();
    const bool isStopped = result.outcome() == JobOutcome::Stopped;
    if (!isStopped)
        MiscTool::showAlert(
            qtTrId(result.succeeded() ? "Convert is completed." : "Convert is failed."), QString());
    if (!self)
        co_return;
    setStatus(true);
    showProgress(false);
    if (isStopped)
        ui->runLine->say(qtTrId("Run.Stopped"));
    if (result.succeeded())
        ui->showInFolderButton->offer(output); // where the progress was
}

void AVConvertViewController::showProgress(bool shown)
{
    ui->progressBox->setVisible(shown);
    ui->progressIndicator->setAnimating(shown);
}

void AVConvertViewController::setStatus(bool idle)
{
    ui->sourceSelectButton->setEnabled(idle);
    ui->outputFormatPopUp->setEnabled(idle);
    ui->outputSelectButton->setEnabled(idle);
    ui->convertButton->setEnabled(idle);
}

#include "SynthesisViewController.h"

#include "Chooser.h"
#include "JobList.h"
#include "MiscTool.h"
#include "NamedImage.h"
#include "PageAction.h"
#include "PageStatus.h"
#include "ui_SynthesisViewController.h"

#include <QFileInfo>
#include <QPointer>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace
{

constexpr int usualRate = 175;
constexpr qsizetype maxSubjectLength = 60;
constexpr qsizetype maxTextBytes = 131'071; // of one argument, its end not counted
constexpr auto speechCommand = "/usr/bin/say"_L1;

// Our own program of that name speaks through another one.
bool canSpeak()
{
    const QString program = programPath(speechCommand);
    const bool isOwn = program != speechCommand;
    return QFileInfo(program).isExecutable()
        && (!isOwn
            || !QStandardPaths::findExecutable(u"espeak-ng"_s, {u"/usr/bin"_s, u"/bin"_s})
                    .isEmpty());
}

} // namespace

SynthesisViewController::SynthesisViewController(JobList &jobs, QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui::SynthesisViewController>()), m_jobs(jobs),
      m_runner(jobs)
{
    ui->setupUi(this);
    PageStatus::keepSpaceWhenHidden(*ui->runLine);
    ui->testButton->setIcon(namedImage(u"play"_s));
    ui->resetButton->setIcon(namedImage(u"reset"_s));
    connectButtons();
    awakeFromNib();
}

SynthesisViewController::~SynthesisViewController() = default;

void SynthesisViewController::connectButtons()
{
    connect(ui->testButton, &QPushButton::clicked, this, &SynthesisViewController::testAction);
    connect(ui->resetButton, &QPushButton::clicked, this, &SynthesisViewController::resetAction);
    connect(ui->readButton, &QPushButton::clicked, this, &SynthesisViewController::readAction);
    connect(ui->saveButton, &QPushButton::clicked, this, &SynthesisViewController::saveAction);
    connect(ui->rateSlider, &QSlider::valueChanged, ui->rateValueLabel,
            qOverload<int>(&QLabel::setNum));
    connect(ui->textField, &QPlainTextEdit::textChanged, this,
            &SynthesisViewController::sayWhatWillFail);
    PageStatus::pressOnReturn(*this, *ui->readButton);
}

// Reading aloud says nothing when it fails, so what is known to fail is said before.
void SynthesisViewController::sayWhatWillFail()
{
    const QTextDocument &text = *ui->textField->document();
    const bool mayBeLong = text.characterCount() > maxTextBytes / 4; // no character has more bytes
    const qsizetype bytes = mayBeLong ? ui->textField->toPlainText().toUtf8().size() : 0;
    if (!m_canSpeak)
        ui->textHint->say(qtTrId("Speech.NoProgram"), *ui->textField);
    else if (bytes > maxTextBytes)
        ui->textHint->say(qtTrId("Speech.TooLong"), *ui->textField);
    else
        ui->textHint->say({}, *ui->textField);
}

void SynthesisViewController::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_canSpeak = canSpeak(); // it may have been installed meanwhile
    sayWhatWillFail();
}

void SynthesisViewController::awakeFromNib()
{
    ui->textBox->setTitle(qtTrId("Text"));
    ui->settingsBox->setTitle(qtTrId("Setting"));
    ui->voiceLabel->setText(qtTrId("Voice"));
    ui->testButton->setToolTip(qtTrId("Sample"));
    ui->rateLabel->setText(qtTrId("Rate"));
    ui->resetButton->setToolTip(qtTrId("Reset"));
    ui->readButton->setText(qtTrId("Read"));
    ui->saveButton->setText(qtTrId("Save"));
}

void SynthesisViewController::testAction()
{
    watchPageAction(this, read(u"I love you"_s));
}

void SynthesisViewController::readAction()
{
    if (verify())
        watchPageAction(this, read(ui->textField->toPlainText()));
}

void SynthesisViewController::resetAction()
{
    ui->rateSlider->setValue(usualRate);
}

void SynthesisViewController::saveAction()
{
    Chooser::chooseSaveFile(this, u"aiff"_s,
                            [this](const QString &path) { watchPageAction(this, save(path)); });
}

bool SynthesisViewController::verify()
{
    if (!ui->textField->document()->isEmpty())
        return true;
    const QPointer<SynthesisViewController> self(this);
    PageStatus::refuse("TextNullAlert");
    if (self)
        ui->textField->clearFocus();
    return false;
}

// The text always comes first, whatever it begins with.
Command SynthesisViewController::speak(const QString &text) const
{
    return {.launchPath = speechCommand,
            .arguments = {text, u"--voice="_s + ui->voicePopUp->currentText(),
                          u"--rate="_s + QString::number(ui->rateSlider->value())}};
}

// The first words name the text well enough, which may be a whole book.
Job SynthesisViewController::beginJob(const QString &text, const QString &output)
{
    return m_jobs.begin({.page = objectName(),
                         .title = qtTrId("Speech Synthesis"),
                         .subject = text.left(maxSubjectLength).simplified(),
                         .output = output});
}

QCoro::Task<> SynthesisViewController::read(QString text)
{
    setStatus(false);
    const QPointer<SynthesisViewController> self(this);
    Job job = beginJob(text);

    const CommandResult result = co_await m_runner.run(speak(text), job);
    if (!self)
        co_return;
    job.end(result.outcome());
    setStatus(true);
    if (result.outcome() == JobOutcome::Stopped)
        ui->runLine->say(qtTrId("Run.Stopped"));
}

QCoro::Task<> SynthesisViewController::save(QString file)
{
    setStatus(false);
    const QPointer<SynthesisViewController> self(this);
    const QString text = ui->textField->toPlainText();
    Command command = speak(text);
    command.arguments << u"--output-file="_s + file;
    Job job = beginJob(text, file);

    const CommandResult result = co_await m_runner.run(command, job);
    if (!self)
        co_return;
    job.end(result.outcome());
    if (result.succeeded())
        ui->showInFolderButton->offer(file);
    const bool isStopped = result.outcome() == JobOutcome::Stopped;
    if (!isStopped)
        MiscTool::showAlert(qtTrId(result.succeeded() ? "SaveSuc" : "SaveFail"), QString());
    if (!self)
        co_return;
    setStatus(true);
    if (isStopped)
        ui->runLine->say(qtTrId("Run.Stopped"));
}

void SynthesisViewController::setStatus(bool idle)
{
    ui->textField->setReadOnly(!idle);
    ui->voicePopUp->setEnabled(idle);
    ui->testButton->setEnabled(idle);
    ui->rateSlider->setEnabled(idle);
    ui->resetButton->setEnabled(idle);
    ui->readButton->setEnabled(idle);
    ui->saveButton->setEnabled(idle);
    if (!idle) { // what was said about the last run
        ui->showInFolderButton->withdraw();
        ui->runLine->withdraw();
    }
}

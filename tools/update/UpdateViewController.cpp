#include "UpdateViewController.h"

#include "DesktopOpener.h"
#include "MiscTool.h"
#include "PageAction.h"
#include "PageStatus.h"
#include "ui_UpdateCheckView.h"
#include "ui_UpdateViewController.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QLocale>
#include <QSettings>

using Phase = UpdateChecker::Phase;

namespace
{

constexpr int progressSteps = 1000;

QString shownTime(const QDateTime &time)
{
    return QLocale().toString(time.toLocalTime(), QLocale::ShortFormat);
}

// What else there is to know or do about the state; may be empty.
QString detailOf(const UpdateChecker &checker)
{
    switch (checker.phase()) {
    case Phase::Unasked:
        return checker.hasFeedAddress()
            ? QString()
            : qtTrId("Update.NoFeed.Help").arg(QDir::toNativeSeparators(QSettings().fileName()));
    case Phase::UpToDate:
    case Phase::Available:
    case Phase::Skipped:
        return checker.isFeedExpired()
            ? qtTrId("Update.Expired").arg(shownTime(checker.feedExpiry()))
            : QString();
    case Phase::NotChecked:
    case Phase::NotDownloaded:
    case Phase::NotOpened:
        return checker.problem().sentence();
    case Phase::Downloaded:
        return qtTrId("Update.Downloaded.Where");
    default:
        return {};
    }
}

// When the last check was, and of when what it read is.
QString lastCheckOf(const UpdateChecker &checker)
{
    const QString last = UpdateMemory::lastCheck().sentence(checker.phase() == Phase::Unasked);
    return checker.feedDate().isValid()
        ? last + u' ' + qtTrId("Update.FeedDate").arg(shownTime(checker.feedDate()))
        : last;
}

// How far the download is: "3.1 MB of 12.4 MB".
QString progressOf(const UpdateChecker &checker)
{
    if (checker.phase() != Phase::Downloading || !checker.offer())
        return {};
    const auto size = [](qint64 bytes) { return MiscTool::convertBytes(std::uint64_t(bytes)); };
    return qtTrId("Update.Progress").arg(size(checker.received()), size(checker.offer()->length));
}

void showText(QLabel &label, const QString &text)
{
    label.setText(text);
    label.setHidden(text.isEmpty());
}

} // namespace

UpdateCheckView::UpdateCheckView(QWidget *parent)
    : UpdateCheckView(UpdateSource::compiledInKey(), parent)
{
}

UpdateCheckView::UpdateCheckView(const QByteArray &publicKey, QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui::UpdateCheckView>()), m_checker(publicKey)
{
    ui->setupUi(this);
    ui->installedLabel->setText(
        qtTrId("Update.Installed").arg(QCoreApplication::applicationVersion()));
    // It shares its row with buttons that hide when it comes: no room is kept for it.
    ui->showInFolderButton->setSizePolicy(ui->openButton->sizePolicy());
    ui->keyLabel->setHidden(m_checker.hasKey());
    connectButtons();
    connect(&m_checker, &UpdateChecker::changed, this, &UpdateCheckView::showState);
    connect(&m_checker, &UpdateChecker::progressed, this, &UpdateCheckView::showProgress);
    connect(&m_checker, &UpdateChecker::downloaded, this, &UpdateCheckView::openFile);
    connect(&m_checker, &UpdateChecker::readyToOpen, this, [this](const QString &path) {
        openWithDesktop(path, *this, [this] { m_checker.noteNothingOpens(); });
    });
    showState();
}

UpdateCheckView::~UpdateCheckView() = default;

void UpdateCheckView::connectButtons()
{
    connect(ui->checkButton, &QPushButton::clicked, this,
            [this] { watchPageAction(this, m_checker.check()); });
    connect(ui->downloadButton, &QPushButton::clicked, this,
            [this] { watchPageAction(this, m_checker.download()); });
    connect(ui->stopButton, &QPushButton::clicked, &m_checker, &UpdateChecker::stop);
    connect(ui->skipButton, &QPushButton::clicked, this, [this] { m_checker.setSkipped(true); });
    connect(ui->unskipButton, &QPushButton::clicked, this, [this] { m_checker.setSkipped(false); });
    connect(ui->openButton, &QPushButton::clicked, this, &UpdateCheckView::openFile);
    PageStatus::pressOnReturn(*this, *ui->checkButton);
    // The last one comes first: while a download is offered, that is what Return starts.
    PageStatus::pressOnReturn(*this, *ui->downloadButton);
}

void UpdateCheckView::showState()
{
    ui->headlineLabel->setText(m_checker.headline());
    showText(*ui->detailLabel, detailOf(m_checker));
    showText(*ui->lastCheckLabel, lastCheckOf(m_checker));
    ui->checkButton->setEnabled(!m_checker.isBusy() && m_checker.hasFeedAddress());
    ui->stopButton->setEnabled(m_checker.isBusy());
    showOffer();
    showFile();
    showProgress();
}

bool UpdateCheckView::event(QEvent *event)
{
    const bool isLookedAt =
        event->type() == QEvent::Show || event->type() == QEvent::WindowActivate;
    if (isLookedAt && m_checker.phase() == Phase::Unasked)
        showState();
    return QWidget::event(event);
}

void UpdateCheckView::showOffer()
{
    const Phase phase = m_checker.phase();
    const bool isOffered = phase == Phase::Available || phase == Phase::NotDownloaded;
    const bool canDownload = m_checker.canDownload();
    const std::optional<UpdateItem> &offer = m_checker.offer();
    if (offer) {
        const QString notes = offer->notes.isEmpty() ? qtTrId("Update.NoNotes") : offer->notes;
        if (ui->notesText->toPlainText() != notes) // else it would lose its place
            ui->notesText->setPlainText(notes);
    }
    ui->offerBox->setVisible(offer.has_value());
    ui->downloadButton->setVisible(canDownload);
    ui->skipButton->setVisible(isOffered);
    ui->unskipButton->setVisible(phase == Phase::Skipped);
    ui->downloadButton->setDefault(canDownload);
    ui->checkButton->setDefault(!canDownload);
    // The button that had the focus was disabled meanwhile: the focus must not stay where Qt moved
    // it, which may be Skip.
    if (canDownload && isAncestorOf(QApplication::focusWidget()))
        ui->downloadButton->setFocus(Qt::OtherFocusReason);
}

void UpdateCheckView::showFile()
{
    const Phase phase = m_checker.phase();
    const bool isThere =
        !m_checker.file().isEmpty() && (phase == Phase::Downloaded || phase == Phase::NotOpened);
    ui->openButton->setVisible(isThere);
    ui->fileField->setVisible(isThere);
    ui->fileField->setText(isThere ? QDir::toNativeSeparators(m_checker.file()) : QString());
    if (isThere)
        ui->showInFolderButton->offer(m_checker.file());
    else
        ui->showInFolderButton->withdraw();
}

void UpdateCheckView::showProgress()
{
    BusyIndicator &bar = *ui->progressIndicator;
    if (m_checker.phase() == Phase::Downloading) {
        bar.setAnimating(false);
        bar.setRange(0, progressSteps);
        const qint64 done = m_checker.received() * progressSteps / m_checker.offer()->length;
        bar.setValue(static_cast<int>(done));
        bar.show();
    } else {
        PageStatus::setIdle(bar, m_checker.phase() != Phase::Checking);
    }
    ui->progressLabel->setText(progressOf(m_checker));
}

void UpdateCheckView::openFile()
{
    watchPageAction(this, m_checker.open());
}

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

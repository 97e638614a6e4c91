#include "UpdateCheckView.h"

#include "PageAction.h"
#include "PageStatus.h"
#include "UpdateTexts.h"
#include "ui_UpdateCheckView.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QUrl>

using Phase = UpdateChecker::Phase;

namespace
{

constexpr int progressSteps = 1000;

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
    connectButtons();
    connect(&m_checker, &UpdateChecker::changed, this, &UpdateCheckView::showState);
    connect(&m_checker, &UpdateChecker::progressed, this, &UpdateCheckView::showProgress);
    connect(&m_checker, &UpdateChecker::downloaded, this, &UpdateCheckView::openFile);
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
    connect(ui->skipButton, &QPushButton::clicked, &m_checker, &UpdateChecker::skip);
    connect(ui->unskipButton, &QPushButton::clicked, &m_checker, &UpdateChecker::unskip);
    connect(ui->openButton, &QPushButton::clicked, this, &UpdateCheckView::openFile);
    PageStatus::pressOnReturn(*this, *ui->checkButton);
    // The last one is asked first: while a download is offered, that is what Return starts.
    PageStatus::pressOnReturn(*this, *ui->downloadButton);
}

void UpdateCheckView::showState()
{
    ui->headlineLabel->setText(UpdateTexts::headline(m_checker));
    const QString detail = UpdateTexts::detail(m_checker);
    ui->detailLabel->setText(detail);
    ui->detailLabel->setHidden(detail.isEmpty());
    const QString lastCheck = UpdateTexts::lastCheck(m_checker);
    ui->lastCheckLabel->setText(lastCheck);
    ui->lastCheckLabel->setHidden(lastCheck.isEmpty());
    ui->checkButton->setEnabled(!m_checker.isBusy());
    ui->stopButton->setEnabled(m_checker.isBusy());
    showOffer();
    showProgress();
}

void UpdateCheckView::showOffer()
{
    const Phase phase = m_checker.phase();
    const bool isOffered = phase == Phase::Available || phase == Phase::NotDownloaded;
    const bool canDownload = isOffered && m_checker.hasKey();
    const std::optional<UpdateItem> &offer = m_checker.offer();
    if (offer) {
        const QString notes = UpdateTexts::notes(*offer);
        ui->notesText->setPlainText(notes.isEmpty() ? qtTrId("Update.NoNotes") : notes);
    }
    ui->offerBox->setVisible(offer.has_value());
    ui->downloadButton->setVisible(canDownload);
    ui->skipButton->setVisible(isOffered);
    ui->unskipButton->setVisible(phase == Phase::Skipped);
    ui->openButton->setVisible(phase == Phase::Downloaded);
    ui->downloadButton->setDefault(canDownload);
    ui->checkButton->setDefault(!canDownload);
    // The button that had the keyboard was disabled meanwhile: it is not to stay where chance put
    // it, on Skip for one.
    if (canDownload && isAncestorOf(QApplication::focusWidget()))
        ui->downloadButton->setFocus(Qt::OtherFocusReason);
}

void UpdateCheckView::showProgress()
{
    BusyIndicator &bar = *ui->progressIndicator;
    const Phase phase = m_checker.phase();
    if (phase == Phase::Downloading) {
        bar.setAnimating(false);
        bar.setRange(0, progressSteps);
        const qint64 done = m_checker.received() * progressSteps / m_checker.offer()->length;
        bar.setValue(static_cast<int>(done));
        bar.show();
    } else {
        PageStatus::setIdle(bar, phase != Phase::Checking);
    }
    ui->progressLabel->setText(UpdateTexts::progress(m_checker));
}

void UpdateCheckView::openFile()
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(m_checker.file()));
}

#include "UpdateChecker.h"

#include "JobList.h"

#include <QCoroFuture>
#include <QMap>
#include <QPointer>
#include <QStandardPaths>
#include <QtConcurrentRun>

#include <chrono>

using namespace std::chrono_literals;
using Kind = UpdateProblem::Kind;

namespace
{

constexpr auto progressInterval = 100ms;

bool isDistrust(Kind kind)
{
    return kind == Kind::Unsigned || kind == Kind::WrongSignature || kind == Kind::NoDate
        || kind == Kind::Older || kind == Kind::Certificate;
}

const char *resultOf(Kind problem)
{
    if (isDistrust(problem))
        return QT_TRID_NOOP("Update.Result.NotTrusted");
    return problem == Kind::Unreachable ? QT_TRID_NOOP("Update.Result.NotReached")
                                        : QT_TRID_NOOP("Update.Result.NotChecked");
}

} // namespace

UpdateChecker::UpdateChecker(const QByteArray &publicKey, QObject *parent)
    : QObject(parent), m_publicKey(publicKey), m_memory(publicKey)
{
    m_worker.setMaxThreadCount(1);
    m_progressTimer.setInterval(progressInterval);
    connect(&m_progressTimer, &QTimer::timeout, this, &UpdateChecker::progressed);
}

UpdateChecker::~UpdateChecker()
{
    m_stop.request_stop();
}

QString UpdateChecker::headline() const
{
    static const QMap<Phase, const char *> keys{
        {Phase::Checking, QT_TRID_NOOP("Update.Checking")},
        {Phase::Downloading, QT_TRID_NOOP("Update.Downloading")},
        {Phase::Downloaded, QT_TRID_NOOP("Update.Downloaded")},
        {Phase::NotDownloaded, QT_TRID_NOOP("Update.NotDownloaded")},
        {Phase::NotOpened, QT_TRID_NOOP("Update.NotOpened")},
    };
    if (m_phase == Phase::Unasked)
        return hasFeedAddress() ? qtTrId("Update.Unasked") : qtTrId("Update.NoFeed");
    if (m_phase == Phase::NotChecked)
        return qtTrId(resultOf(m_problem.kind));
    const QString text = qtTrId(keys.value(m_phase, resultOfCheck()));
    return m_offer && m_phase != Phase::Checking ? text.arg(m_offer->shortVersion) : text;
}

const char *UpdateChecker::resultOfCheck() const
{
    if (m_phase == Phase::Skipped)
        return QT_TRID_NOOP("Update.Result.Skipped");
    if (m_offer)
        return QT_TRID_NOOP("Update.Result.Available");
    return isFeedExpired() ? QT_TRID_NOOP("Update.Result.Expired")
                           : QT_TRID_NOOP("Update.Result.UpToDate");
}

bool UpdateChecker::isFeedExpired() const
{
    return m_feedExpiry.isValid() && m_feedExpiry < QDateTime::currentDateTimeUtc();
}

bool UpdateChecker::canDownload() const
{
    return hasKey() && m_offer
        && (m_phase == Phase::Available || m_phase == Phase::NotDownloaded
            || (m_phase == Phase::NotOpened && m_file.path.isEmpty()));
}

void UpdateChecker::setJobs(JobList &jobs, const QString &page)
{
    m_jobs = &jobs;
    m_page = page;
}

UpdateSource UpdateChecker::source() const
{
    return {.feedAddress = UpdateSource::configuredFeedAddress(), .publicKey = m_publicKey};
}

QCoro::Task<> UpdateChecker::check()
{
    if (isBusy() || !hasFeedAddress()) {
        Q_EMIT changed();
        co_return;
    }
    const QPointer<UpdateChecker> self(this);
    const std::stop_token stop = begin(Phase::Checking);
    const FetchedFeed fetched =
        co_await QtConcurrent::run(&m_worker, fetchFeed, source(), m_memory.newestFeed(), stop);
    if (self)
        conclude(fetched);
}

QCoro::Task<> UpdateChecker::download()
{
    if (!canDownload())
        co_return;
    const QPointer<UpdateChecker> self(this);
    const std::stop_token stop = begin(Phase::Downloading);
    Job job = beginJob();
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
    // May use this object: its destructor waits for the thread.
    const auto work = [this, item = *m_offer, folder, stop] {
        return fetchFile(item, m_publicKey, folder, m_received, stop);
    };
    const FetchedFile fetched = co_await QtConcurrent::run(&m_worker, work);
    if (!fetched.problem)
        job.end(JobOutcome::Succeeded);
    else
        job.end(fetched.problem.kind == Kind::Stopped ? JobOutcome::Stopped : JobOutcome::Failed);
    if (self)
        conclude(fetched);
}

QCoro::Task<> UpdateChecker::open()
{
    if (isBusy() || m_file.path.isEmpty())
        co_return;
    const QPointer<UpdateChecker> self(this);
    const CheckedFile file = m_file;
    m_stop = std::stop_source(); // the last one may have been used
    const bool isSame =
        co_await QtConcurrent::run(&m_worker, &CheckedFile::isUnchanged, file, m_stop.get_token());
    if (!self || isBusy() || m_file.path != file.path)
        co_return;
    if (!isSame)
        m_file = {};
    m_problem = {isSame ? Kind::None : Kind::Changed};
    enter(isSame ? Phase::Downloaded : Phase::NotOpened);
    if (isSame)
        Q_EMIT readyToOpen(file.path);
}

void UpdateChecker::noteNothingOpens()
{
    if (m_phase != Phase::Downloaded)
        return;
    m_problem = {Kind::NothingOpens};
    enter(Phase::NotOpened);
}

std::stop_token UpdateChecker::begin(Phase phase)
{
    m_stop = std::stop_source();
    m_problem = {};
    m_received = 0;
    if (phase == Phase::Downloading)
        m_progressTimer.start();
    m_phaseBefore = m_phase;
    enter(phase);
    return m_stop.get_token();
}

void UpdateChecker::enter(Phase phase)
{
    m_phase = phase;
    Q_EMIT changed();
}

void UpdateChecker::enter(Phase phase, const char *checkResult)
{
    UpdateMemory::setLastCheck({.time = QDateTime::currentDateTimeUtc(),
                                .result = QString::fromLatin1(checkResult),
                                .argument = m_offer ? m_offer->shortVersion : QString()});
    enter(phase);
}

void UpdateChecker::conclude(const FetchedFeed &fetched)
{
    m_problem = fetched.problem;
    if (m_problem.kind == Kind::Stopped) {
        enter(m_phaseBefore);
        return;
    }
    m_offer.reset();
    m_feedDate = fetched.feed.date;
    m_feedExpiry = fetched.feed.expiry;
    if (!m_problem && hasKey() && !m_memory.remember(fetched.feed))
        m_problem = {Kind::Older};
    if (m_problem) {
        enter(Phase::NotChecked, resultOf(m_problem.kind));
        return;
    }
    UpdateRules rules = UpdateRules::current();
    rules.withdrawn = m_memory.withdrawn();
    m_offer = chooseOffer(fetched.feed, rules);
    m_phase = phaseOfOffer();
    enter(m_phase, resultOfCheck());
}

UpdateChecker::Phase UpdateChecker::phaseOfOffer() const
{
    if (!m_offer)
        return Phase::UpToDate;
    if (m_offer->version == UpdateMemory::skipped())
        return Phase::Skipped;
    return isDownloaded(*m_offer) ? Phase::Downloaded : Phase::Available;
}

bool UpdateChecker::isDownloaded(const UpdateItem &item) const
{
    return !m_file.path.isEmpty() && m_fileSignature == item.signature;
}

void UpdateChecker::conclude(const FetchedFile &fetched)
{
    m_progressTimer.stop();
    m_problem = fetched.problem;
    m_file = fetched.file;
    m_fileSignature = m_offer->signature;
    if (m_problem.kind == Kind::Stopped) {
        enter(Phase::Available);
    } else if (m_problem) {
        enter(Phase::NotDownloaded);
    } else {
        enter(Phase::Downloaded);
        Q_EMIT downloaded();
    }
}

Job UpdateChecker::beginJob() const
{
    if (!m_jobs)
        return {};
    return m_jobs->begin(
        {.page = m_page, .title = qtTrId("Update.Job"), .subject = fileNameOf(*m_offer)}, m_stop);
}

void UpdateChecker::stop()
{
    m_stop.request_stop();
}

void UpdateChecker::setSkipped(bool skipped)
{
    if (isBusy() || !m_offer)
        return;
    UpdateMemory::setSkipped(skipped ? m_offer->version : QVersionNumber());
    enter(skipped ? Phase::Skipped : Phase::Available);
}

#include "UpdateChecker.h"

#include "JobList.h"
#include "MiscTool.h"

#include <QCoroFuture>
#include <QMap>
#include <QPointer>
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
        || kind == Kind::Older;
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
        {Phase::UpToDate, QT_TRID_NOOP("Update.Result.UpToDate")},
        {Phase::Available, QT_TRID_NOOP("Update.Result.Available")},
        {Phase::Skipped, QT_TRID_NOOP("Update.Result.Skipped")},
        {Phase::Downloading, QT_TRID_NOOP("Update.Downloading")},
        {Phase::Downloaded, QT_TRID_NOOP("Update.Downloaded")},
        {Phase::NotDownloaded, QT_TRID_NOOP("Update.NotDownloaded")},
    };
    if (m_phase == Phase::Unasked)
        return hasFeedAddress() ? qtTrId("Update.Unasked") : qtTrId("Update.NoFeed");
    if (m_phase == Phase::NotChecked)
        return qtTrId(UpdateMemory::lastCheck().result.toLatin1().constData());
    const QString text = qtTrId(keys.value(m_phase));
    return m_offer && m_phase != Phase::Checking ? text.arg(m_offer->shortVersion) : text;
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
    if (isBusy() || !m_offer || !hasKey())
        co_return;
    const QPointer<UpdateChecker> self(this);
    const std::stop_token stop = begin(Phase::Downloading);
    Job job = beginJob();
    // May use this object: its destructor waits for the thread.
    const auto work = [this, item = *m_offer, stop] {
        return fetchFile(item, m_publicKey, MiscTool::getDownloadFolder(), m_received, stop);
    };
    const FetchedFile fetched = co_await QtConcurrent::run(&m_worker, work);
    if (!fetched.problem)
        job.end(JobOutcome::Succeeded);
    else
        job.end(fetched.problem.kind == Kind::Stopped ? JobOutcome::Stopped : JobOutcome::Failed);
    if (self)
        conclude(fetched);
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
    if (m_problem) {
        enter(Phase::NotChecked,
              isDistrust(m_problem.kind) ? QT_TRID_NOOP("Update.Result.NotTrusted")
                                         : QT_TRID_NOOP("Update.Result.NotReached"));
        return;
    }
    if (hasKey())
        m_memory.remember(fetched.feed);
    UpdateRules rules = UpdateRules::current();
    rules.withdrawn = m_memory.withdrawn();
    m_offer = chooseOffer(fetched.feed, rules);
    if (!m_offer)
        enter(Phase::UpToDate, "Update.Result.UpToDate");
    else if (m_offer->version == UpdateMemory::skipped())
        enter(Phase::Skipped, "Update.Result.Skipped");
    else
        enter(Phase::Available, "Update.Result.Available");
}

void UpdateChecker::conclude(const FetchedFile &fetched)
{
    m_progressTimer.stop();
    m_problem = fetched.problem;
    m_file = fetched.path;
    if (m_problem.kind == Kind::Stopped) {
        enter(Phase::Available);
    } else if (m_problem) {
        enter(Phase::NotDownloaded);
    } else {
        enter(Phase::Downloaded);
        Q_EMIT downloaded(m_file);
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

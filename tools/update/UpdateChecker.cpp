#include "UpdateChecker.h"

#include "JobList.h"
#include "MiscTool.h"
#include "ServerAddress.h"
#include "UpdateOffer.h"
#include "UpdateTransfer.h"

#include <QCoroFuture>
#include <QPointer>
#include <QtConcurrentRun>

#include <chrono>

using namespace std::chrono_literals;
using Kind = UpdateProblem::Kind;

namespace
{

constexpr auto watchInterval = 100ms;
constexpr std::chrono::milliseconds longestSilence = 60s;

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
    m_watch.setInterval(watchInterval);
    connect(&m_watch, &QTimer::timeout, this, &UpdateChecker::watchProgress);
}

UpdateChecker::~UpdateChecker()
{
    m_stop.request_stop();
}

void UpdateChecker::setJobs(JobList &jobs, const QString &page)
{
    m_jobs = &jobs;
    m_page = page;
}

UpdateSource UpdateChecker::source() const
{
    return {.feedAddress = serverAddress(Server::UpdateFeed).toUtf8(), .publicKey = m_publicKey};
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
    const auto work = [item = *m_offer, key = m_publicKey, received = m_received, stop] {
        return fetchFile(item, key, MiscTool::getDownloadFolder(), *received, stop);
    };
    const FetchedFile fetched = co_await QtConcurrent::run(&m_worker, work);
    const bool isUsersStop = fetched.problem.kind == Kind::Stopped && !(self && m_isStalled);
    if (!fetched.problem)
        job.end(JobOutcome::Succeeded);
    else
        job.end(isUsersStop ? JobOutcome::Stopped : JobOutcome::Failed);
    if (self)
        conclude(fetched);
}

std::stop_token UpdateChecker::begin(Phase phase)
{
    m_stop = std::stop_source();
    m_problem = {};
    *m_received = 0;
    m_receivedBefore = 0;
    m_isStalled = false;
    m_lastByte.start();
    if (phase == Phase::Downloading)
        m_watch.start();
    m_phaseBefore = m_phase;
    enter(phase);
    return m_stop.get_token();
}

void UpdateChecker::enter(Phase phase)
{
    m_phase = phase;
    Q_EMIT changed();
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
        record(isDistrust(m_problem.kind) ? QT_TRID_NOOP("Update.Result.NotTrusted")
                                          : QT_TRID_NOOP("Update.Result.NotReached"));
        enter(Phase::NotChecked);
        return;
    }
    if (hasKey())
        m_memory.remember(fetched.feed);
    UpdateRules rules = UpdateRules::current();
    rules.withdrawn = m_memory.withdrawn();
    m_offer = chooseOffer(fetched.feed, rules);
    if (!m_offer) {
        record("Update.Result.UpToDate");
        enter(Phase::UpToDate);
    } else if (m_offer->version == UpdateMemory::skipped()) {
        record("Update.Result.Skipped");
        enter(Phase::Skipped);
    } else {
        record("Update.Result.Available");
        enter(Phase::Available);
    }
}

void UpdateChecker::conclude(const FetchedFile &fetched)
{
    m_watch.stop();
    m_problem = fetched.problem;
    m_file = fetched.path;
    if (m_problem.kind == Kind::Stopped && m_isStalled)
        m_problem = {Kind::TimedOut};
    if (m_problem.kind == Kind::Stopped) {
        enter(Phase::Available);
    } else if (m_problem) {
        enter(Phase::NotDownloaded);
    } else {
        enter(Phase::Downloaded);
        Q_EMIT downloaded(m_file);
    }
}

void UpdateChecker::record(const char *result) const
{
    UpdateMemory::setLastCheck({.time = QDateTime::currentDateTimeUtc(),
                                .result = QString::fromLatin1(result),
                                .argument = m_offer ? m_offer->shortVersion : QString()});
}

Job UpdateChecker::beginJob() const
{
    if (!m_jobs)
        return {};
    return m_jobs->begin(
        {.page = m_page, .title = qtTrId("Update.Job"), .subject = fileNameOf(*m_offer)}, m_stop);
}

// A server that goes silent in the middle would hold the download for hours.
void UpdateChecker::watchProgress()
{
    const qint64 now = received();
    if (now != m_receivedBefore) {
        m_receivedBefore = now;
        m_lastByte.start();
    } else if (m_lastByte.hasExpired(longestSilence.count())) {
        m_isStalled = true;
        m_stop.request_stop();
    }
    Q_EMIT progressed();
}

void UpdateChecker::stop()
{
    m_stop.request_stop();
}

void UpdateChecker::skip()
{
    if (isBusy() || !m_offer)
        return;
    UpdateMemory::setSkipped(m_offer->version);
    enter(Phase::Skipped);
}

void UpdateChecker::unskip()
{
    if (isBusy() || !m_offer)
        return;
    UpdateMemory::setSkipped({});
    enter(Phase::Available);
}

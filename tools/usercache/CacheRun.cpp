#include "CacheRun.h"

#include "JobList.h"

#include <utility>

CacheRun::CacheRun(const Request &request, JobList &jobs, const JobDescription &description,
                   std::shared_ptr<std::mutex> turn)
    : QObject(&jobs)
{
    m_worker = std::jthread([this, request, turn = std::move(turn)](const std::stop_token &stop) {
        {
            const std::lock_guard lock(*turn);
            work(request, stop);
        }
        QMetaObject::invokeMethod(this, &CacheRun::end, Qt::QueuedConnection);
    });
    m_job = jobs.begin(description, m_worker.get_stop_source());
}

void CacheRun::work(const Request &request, const std::stop_token &stop)
{
    const auto post = [this](const CacheUpdate &update) {
        QMetaObject::invokeMethod(
            this, [this, update] { Q_EMIT updated(update); }, Qt::QueuedConnection);
    };
    CacheCleaner cleaner(request.bookmarkURL, request.ticked, post, stop);
    switch (request.work) {
    case Work::Check:
        cleaner.checkDisk();
        break;
    case Work::Clean:
        cleaner.cleanDisk();
        break;
    }
}

void CacheRun::end()
{
    m_worker.join(); // posted as the thread's last act
    m_job.end(m_job.stopToken().stop_requested() ? JobOutcome::Stopped : JobOutcome::Succeeded);
    deleteLater();
}

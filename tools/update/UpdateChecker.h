#pragma once

#include "UpdateFeed.h"
#include "UpdateMemory.h"
#include "UpdateProblem.h"
#include "UpdateSource.h"

#include <QCoroTask>
#include <QElapsedTimer>
#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include <atomic>
#include <memory>
#include <optional>
#include <stop_token>

class Job;
class JobList;
struct FetchedFeed;
struct FetchedFile;

/// Looks for a newer version, remembers what came of it, and fetches the version that the user
/// wants: what the update page does, without its widgets. Nothing is asked of any server before
/// check() is called. Interface thread only; the waiting is done on a thread of its own.
class UpdateChecker : public QObject
{
    Q_OBJECT

public:
    enum class Phase {
        Unasked, ///< No check yet since the start.
        Checking,
        UpToDate,
        Available, ///< offer() says what.
        Skipped, ///< The newest is one that the user does not want; offer() says which.
        NotChecked, ///< problem() says why.
        Downloading,
        Downloaded, ///< file() says where.
        NotDownloaded, ///< problem() says why; the offer stands.
    };

    explicit UpdateChecker(const QByteArray &publicKey, QObject *parent = nullptr);
    ~UpdateChecker() override; ///< Ends what runs; a part of a file leaves no trace.

    /// A download is listed there as a job of this page.
    void setJobs(JobList &jobs, const QString &page);

    Phase phase() const { return m_phase; }
    bool isBusy() const { return m_phase == Phase::Checking || m_phase == Phase::Downloading; }
    const std::optional<UpdateItem> &offer() const { return m_offer; }
    const UpdateProblem &problem() const { return m_problem; }
    const QString &file() const { return m_file; }
    qint64 received() const { return m_received->load(); } ///< Bytes of the running download.

    bool hasFeedAddress() const { return !source().feedAddress.isEmpty(); }
    bool hasKey() const { return !m_publicKey.isEmpty(); }

    QCoro::Task<> check();
    /// Fetches the offer into the user's Downloads folder.
    QCoro::Task<> download();
    void stop(); ///< Ends the running check or download, within about a second.
    void skip(); ///< This version is not offered any more, a newer one is.
    void unskip();

Q_SIGNALS:
    void changed();
    void progressed(); ///< While a download runs, several times a second.
    void downloaded(const QString &path);

private:
    UpdateSource source() const;
    std::stop_token begin(Phase phase);
    void enter(Phase phase);
    void conclude(const FetchedFeed &fetched);
    void conclude(const FetchedFile &fetched);
    void record(const char *result) const;
    Job beginJob() const;
    void watchProgress();

    QByteArray m_publicKey;
    UpdateMemory m_memory;
    JobList *m_jobs = nullptr;
    QString m_page;
    Phase m_phase = Phase::Unasked;
    Phase m_phaseBefore = Phase::Unasked; ///< To which a stopped check returns.
    std::optional<UpdateItem> m_offer;
    UpdateProblem m_problem;
    QString m_file;
    std::stop_source m_stop;
    std::shared_ptr<std::atomic<qint64>> m_received = std::make_shared<std::atomic<qint64>>(0);
    qint64 m_receivedBefore = 0;
    bool m_isStalled = false;
    QElapsedTimer m_lastByte;
    QTimer m_watch;
    QThreadPool m_worker; // last: its destructor waits for the thread
};

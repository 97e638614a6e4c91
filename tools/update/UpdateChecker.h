#pragma once

#include "UpdateMemory.h"
#include "UpdateTransfer.h"

#include <QCoroTask>
#include <QDateTime>
#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include <atomic>
#include <optional>
#include <stop_token>

class Job;
class JobList;

/// Looks for a newer version, remembers what came of it, and fetches the version that the user
/// wants: what the update page does, without its widgets. No server is contacted before check() is
/// called. Interface thread only; requests run on a thread of the checker's own.
class UpdateChecker : public QObject
{
    Q_OBJECT

public:
    /// Which of the members below mean something depends on the phase.
    enum class Phase {
        Unasked, ///< No check yet since the start.
        Checking,
        UpToDate,
        Available, ///< offer() says what.
        Skipped, ///< The newest is one that the user does not want; offer() says which.
        NotChecked, ///< problem() says why.
        Downloading,
        Downloaded, ///< file() says where.
        NotDownloaded, ///< problem() says why; there still is an offer.
        NotOpened, ///< problem() says why; without a file() it is offered again.
    };

    explicit UpdateChecker(const QByteArray &publicKey, QObject *parent = nullptr);
    /// Ends what runs, which may take a second; a part of a file leaves no trace.
    ~UpdateChecker() override;

    /// A download is listed in `jobs` as a job of the page with this object name.
    void setJobs(JobList &jobs, const QString &page);

    Phase phase() const { return m_phase; }
    bool isBusy() const { return m_phase == Phase::Checking || m_phase == Phase::Downloading; }
    /// The phase in one sentence for the user; plain text, although a server wrote the version in
    /// it.
    QString headline() const;
    const std::optional<UpdateItem> &offer() const { return m_offer; }
    const UpdateProblem &problem() const { return m_problem; }
    const QString &file() const { return m_file.path; } ///< Path of the last download, or empty.
    /// The date of the feed that the last check has read, and until when the maker meant it to be
    /// the newest; both invalid if unknown.
    const QDateTime &feedDate() const { return m_feedDate; }
    const QDateTime &feedExpiry() const { return m_feedExpiry; }
    bool isFeedExpired() const;
    qint64 received() const { return m_received; } ///< Bytes of the running download.

    bool hasFeedAddress() const { return !source().feedAddress.isEmpty(); }
    /// Whether there is something that download() would fetch.
    bool canDownload() const;
    /// Without a key versions are shown, but nothing is downloaded.
    bool hasKey() const { return !m_publicKey.isEmpty(); }

    /// Reads the feed. Does nothing while busy or without a feed address. A check that is stopped
    /// leaves everything as it was.
    QCoro::Task<> check();
    /// Fetches the offer into the desktop's download folder. Does nothing if !canDownload().
    QCoro::Task<> download();
    /// Emits readyToOpen() if the last download is still the very file that was checked.
    QCoro::Task<> open();
    void noteNothingOpens(); ///< No program could open it.
    /// Ends the running check or download, within about a second.
    void stop();
    /// A skipped version is not offered any more, also after a restart; a newer one is.
    void setSkipped(bool skipped);

Q_SIGNALS:
    void changed();
    void progressed(); ///< While a download runs, several times a second.
    void downloaded();
    void readyToOpen(const QString &path);

private:
    UpdateSource source() const;
    std::stop_token begin(Phase phase);
    void enter(Phase phase);
    void enter(Phase phase, const char *checkResult); ///< And remembers the result for next time.
    void conclude(const FetchedFeed &fetched);
    void conclude(const FetchedFile &fetched);
    bool isDownloaded(const UpdateItem &item) const;
    Phase phaseOfOffer() const;
    const char *resultOfCheck() const;
    Job beginJob() const;

    QByteArray m_publicKey;
    UpdateMemory m_memory;
    JobList *m_jobs = nullptr;
    QString m_page;
    Phase m_phase = Phase::Unasked;
    Phase m_phaseBefore = Phase::Unasked; ///< To which a stopped check returns.
    std::optional<UpdateItem> m_offer;
    UpdateProblem m_problem;
    QDateTime m_feedDate;
    QDateTime m_feedExpiry;
    CheckedFile m_file;
    QByteArray m_fileSignature; ///< Of the version that the file is.
    std::stop_source m_stop;
    std::atomic<qint64> m_received = 0;
    QTimer m_progressTimer;
    QThreadPool m_worker; // last: its destructor waits for the thread
};

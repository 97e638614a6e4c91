// Proves that whatever writes a file may be ended at any moment: an older file is whole, nothing
// half-written stands there, nothing runs on, and the next run works.

#include "StandinRun.h"
#include "Subjects.h"
#include "TrialDisk.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <thread>

using namespace Qt::StringLiterals;

namespace
{

constexpr int moments = 30;
constexpr qint64 ample = 200LL * 1024 * 1024;

} // namespace

class TrialKills : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void leavesWhatStoodThere_data();
    void leavesWhatStoodThere();

private:
    static std::chrono::microseconds complete(const Subject &subject);
    static int endAfter(std::chrono::microseconds moment, int signal, const Subject &subject);

    QTemporaryDir m_own;
    QDir m_folder{m_own.filePath(u"disk"_s)};
    std::unique_ptr<TrialDisk> m_disk; // so that a placement has to copy
    std::unique_ptr<Subjects> m_subjects;
    QRandomGenerator m_random;
};

void TrialKills::initTestCase()
{
    QVERIFY(QDir().mkpath(m_folder.path()));
    if (TrialDisk::isPermitted())
        m_disk = std::make_unique<TrialDisk>(m_folder.path(), ample);
    m_subjects = std::make_unique<Subjects>(QDir(m_own.filePath(u"samples"_s)), m_folder);
    bool isGiven = false;
    const int given = qEnvironmentVariableIntValue("TOOLVANE_TRIAL_SEED", &isGiven);
    const quint32 seed = isGiven ? quint32(given) : QRandomGenerator::global()->bounded(1U << 31U);
    qInfo("TOOLVANE_TRIAL_SEED=%u brings the same moments again", seed);
    m_random.seed(seed);
}

void TrialKills::leavesWhatStoodThere_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : m_subjects->names())
        QTest::newRow(qPrintable(name)) << name;
}

/// How long the work takes when nobody disturbs it.
std::chrono::microseconds TrialKills::complete(const Subject &subject)
{
    TrialRun run(subject.command, subject.variables);
    if (subject.saysBegin)
        run.awaitOutput();
    QElapsedTimer time;
    time.start();
    const int status = run.awaitEnd();
    const std::chrono::microseconds taken(time.nsecsElapsed() / 1000);
    if (status != subject.success)
        qWarning().noquote() << status << run.words();
    return status == subject.success ? taken : std::chrono::microseconds(0);
}

int TrialKills::endAfter(std::chrono::microseconds moment, int signal, const Subject &subject)
{
    TrialRun run(subject.command, subject.variables);
    if (subject.saysBegin)
        run.awaitOutput();
    std::this_thread::sleep_for(moment);
    run.send(signal);
    const int status = run.awaitEnd();
    return TrialRun::isAlone() ? status : -1;
}

void TrialKills::leavesWhatStoodThere()
{
    QFETCH(QString, name);
    const Subject subject = m_subjects->make(name);
    subject.restore(m_folder);
    complete(subject); // warms the caches
    subject.restore(m_folder);
    const auto duration = complete(subject);
    QVERIFY(duration.count() > 0);
    const QByteArray whole = contentOf(m_folder.filePath(subject.result));

    int interrupted = 0;
    for (int i = 0; i < moments; ++i) {
        subject.restore(m_folder);
        const Contents before = contentsOf(m_folder);
        const std::chrono::microseconds moment(m_random.bounded(qint64(duration.count())));
        const int signal = i % 2 == 0 ? SIGKILL : SIGTERM;
        const int status = endAfter(moment, signal, subject);
        const QString when = u" (signal %1 after %2 µs of %3, status %4)"_s.arg(signal)
                                 .arg(moment.count())
                                 .arg(duration.count())
                                 .arg(status);
        const bool isCutShort = status == 128 + signal // also before it could listen
            || (signal == SIGTERM && status == subject.terminated);
        QVERIFY2(status == subject.success || isCutShort, qPrintable(u"ended otherwise"_s + when));
        const QString fault = subject.fault(before, contentsOf(m_folder), whole);
        QVERIFY2(fault.isEmpty(), qPrintable(fault + when));
        interrupted += status == subject.success ? 0 : 1;
    }
    qInfo("%d of %d runs of %lld ms were cut short", interrupted, moments,
          qint64(duration.count() / 1000));
    QVERIFY(interrupted >= moments / 5);

    subject.restore(m_folder);
    QVERIFY(complete(subject).count() > 0);
}

QTEST_GUILESS_MAIN(TrialKills)
#include "trial_kills.moc"

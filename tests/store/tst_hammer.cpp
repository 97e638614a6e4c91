// Proves that no record is lost or doubled when several processes share the file and when they are
// killed while they write.

#include "DB.h"
#include "SampleRecords.h"

#include <QFile>
#include <QProcess>
#include <QTest>
#include <QThread>

#include <signal.h>

#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace
{

constexpr int childTimeout = 60'000; // milliseconds

std::unique_ptr<QProcess> hammer(const QString &name, int seconds, const QString &form)
{
    auto child = std::make_unique<QProcess>();
    child->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child->start(QStringLiteral(TOOLVANE_BUILD_DIR "/tests/hammer_child"),
                 {name, QString::number(seconds), form});
    return child;
}

/// The rows that the child has reported as stored, without a line that the kill cut short.
QStringList stored(QProcess &child)
{
    const QString output = QString::fromUtf8(child.readAllStandardOutput());
    return output.left(output.lastIndexOf(u'\n') + 1).split(u'\n', Qt::SkipEmptyParts);
}

} // namespace

class TestHammer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QVERIFY(qEnvironmentVariableIsSet("TOOLVANE_TEST_SANDBOX"));
        DB::reset();
        QFile::remove(DB::dbFilePath());
        DBSession::openDB();
    }
    void cleanup() { DB::reset(); }

    void severalProcessesShareTheFile()
    {
        DBSession::closeDB();
        std::vector<std::unique_ptr<QProcess>> children;
        children.push_back(hammer(u"a"_s, 4, u"held"_s));
        children.push_back(hammer(u"b"_s, 4, u"each"_s));
        QStringList expected;
        for (const auto &child : children) {
            QVERIFY(child->waitForFinished(childTimeout));
            QCOMPARE(child->exitStatus(), QProcess::NormalExit);
            QCOMPARE(child->exitCode(), 0);
            const QStringList rows = stored(*child);
            QVERIFY(!rows.isEmpty());
            QVERIFY(!rows.contains("LOST"_L1));
            expected += rows;
        }
        DBSession::openDB();
        expectRows(expected, 0);
    }

    void killedProcessesLoseNothing()
    {
        constexpr int kills = 100;
        DBSession::closeDB();
        QStringList expected;
        for (int i = 0; i < kills; ++i) {
            const auto child =
                hammer("k"_L1 + QString::number(i), 60, i % 2 ? u"held"_s : u"each"_s);
            for (int reports = 0; reports <= i % 4; ++reports)
                QVERIFY(child->waitForReadyRead(childTimeout));
            // This waits for nothing: it spreads the kills over the steps of a write.
            QThread::usleep(ulong(i * 137 % 8000));
            ::kill(pid_t(child->processId()), SIGKILL);
            QVERIFY(child->waitForFinished(childTimeout));
            QCOMPARE(child->exitStatus(), QProcess::CrashExit);
            expected += stored(*child);
        }
        QVERIFY(!expected.contains("LOST"_L1));
        DBSession::openDB();
        expectRows(expected, kills);
    }

private:
    /// Every expected row once, and at most `maxUnreported` others: a kill may come between the end
    /// of a write and its report.
    static void expectRows(const QStringList &expected, int maxUnreported)
    {
        const auto check =
            DB::select(u"SELECT 0,integrity_check FROM pragma_integrity_check"_s, PriceSchema{});
        QCOMPARE(check->size(), 1);
        QCOMPARE(check->at(0).Name, u"ok"_s);
        QSet<QString> names;
        const auto rows = DB::select(u"SELECT * FROM Price"_s, PriceSchema{});
        for (const PriceSchema &row : *rows)
            names.insert(row.Name);
        QCOMPARE(names.size(), rows->size());
        QVERIFY(names.contains(QSet<QString>(expected.begin(), expected.end())));
        QVERIFY(names.size() - expected.size() <= maxUnreported);
        qInfo("%lld rows, %lld of them reported", qint64(names.size()), qint64(expected.size()));
    }
};

QTEST_GUILESS_MAIN(TestHammer)
#include "tst_hammer.moc"

// Proves that whatever writes a file, and runs out of room at any point of it, says so, leaves an
// older file as it was and nothing half-written, and works again once there is room.

#include "StandinRun.h"
#include "Subjects.h"
#include "TrialDisk.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace
{

constexpr qint64 page = 4096;
constexpr qint64 ample = 100LL * 1024 * 1024;

} // namespace

class TrialFullDisk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void leavesWhatStoodThere_data();
    void leavesWhatStoodThere();
    void keepsStoredRecords();

private:
    struct End {
        int status;
        QByteArray words;
    };
    static End run(const Subject &subject)
    {
        TrialRun run(subject.command, subject.variables);
        const int status = run.awaitEnd();
        return {status, run.words()};
    }
    QStringList hammer(const QString &name, QByteArray &errors) const;

    QTemporaryDir m_own;
    QDir m_folder{m_own.filePath(u"disk"_s)};
    std::unique_ptr<Subjects> m_subjects;
};

void TrialFullDisk::initTestCase()
{
    if (!TrialDisk::isPermitted())
        QSKIP("mounting a small file system is not permitted here");
    m_subjects = std::make_unique<Subjects>(QDir(m_own.filePath(u"samples"_s)), m_folder);
}

void TrialFullDisk::leavesWhatStoodThere_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : m_subjects->names())
        QTest::newRow(qPrintable(name)) << name;
}

void TrialFullDisk::leavesWhatStoodThere()
{
    QFETCH(QString, name);
    const Subject subject = m_subjects->make(name);
    const TrialDisk disk(m_folder.path(), ample);
    QVERIFY(disk.isMounted());
    subject.restore(m_folder);
    const End free = run(subject);
    QVERIFY2(free.status == subject.success, free.words.constData());
    const QByteArray whole = contentOf(m_folder.filePath(subject.result));
    QVERIFY(!whole.isEmpty());

    for (const qint64 room : {qint64(0), whole.size() / 4, whole.size() / 2, whole.size() * 3 / 4,
                              whole.size() - page}) {
        subject.restore(m_folder);
        const Contents before = contentsOf(m_folder);
        QVERIFY(disk.resize(before.size() * page + qMax(room, 0) / page * page));
        const End end = run(subject);
        const QByteArray shown = QByteArray::number(room) + ": " + end.words;
        QVERIFY2(end.status != subject.success, shown.constData());
        QVERIFY2(end.words.contains(subject.noRoom), shown.constData());
        const QString fault = subject.fault(before, contentsOf(m_folder), whole);
        QVERIFY2(fault.isEmpty(), qPrintable(fault));

        QVERIFY(disk.resize(ample));
        subject.restore(m_folder);
        QCOMPARE(run(subject).status, subject.success);
        QCOMPARE(contentOf(m_folder.filePath(subject.result)).size(), whole.size());
    }
}

/// The rows that a writer of records says are stored, while it has as much room as there is.
QStringList TrialFullDisk::hammer(const QString &name, QByteArray &errors) const
{
    TrialRun run({u"" TOOLVANE_BUILD_DIR "/tests/hammer_child"_s, name, u"3"_s, u"each"_s},
                 {{u"HOME"_s, m_folder.path()}});
    const int status = run.awaitEnd();
    const QByteArray words = run.words();
    if (status != 0)
        qFatal("%s", words.constData());
    QStringList rows = QString::fromUtf8(words).split(u'\n', Qt::SkipEmptyParts);
    errors = rows.filter(u"[DB]"_s).join(u'\n').toUtf8();
    rows.removeIf([&name](const QString &row) { return !row.startsWith(name + u'-'); });
    return rows;
}

void TrialFullDisk::keepsStoredRecords()
{
    const TrialDisk disk(m_folder.path(), 20 * page);
    QVERIFY(disk.isMounted());
    QByteArray errors;
    QStringList rows = hammer(u"first"_s, errors);
    QVERIFY(rows.size() > 100);
    QVERIFY2(errors.contains("database or disk is full"), errors.constData());
    QVERIFY(disk.resize(ample));
    const QStringList more = hammer(u"second"_s, errors);
    QVERIFY2(errors.isEmpty(), errors.constData());
    rows += more;

    const RunResult read =
        runProgram(u"sqlite3"_s,
                   {m_folder.filePath(u"Documents/DB.sqlite3"_s),
                    u"PRAGMA integrity_check; SELECT Name FROM Price ORDER BY ID"_s});
    const QStringList expected = QStringList{u"ok"_s} + rows;
    QCOMPARE(QString::fromUtf8(read.output).split(u'\n', Qt::SkipEmptyParts), expected);
}

QTEST_GUILESS_MAIN(TrialFullDisk)
#include "trial_full_disk.moc"

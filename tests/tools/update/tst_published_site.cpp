// Proves that what the publishing scripts build is what this program believes: keys, signatures,
// dates and files.

#include "UpdateOffer.h"
#include "UpdateTransfer.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class TestPublishedSite : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QByteArray output;
        QCOMPARE(publish({u"key"_s, key()}, &output), 0);
        m_publicKey = QByteArray::fromBase64(output.trimmed());
        QCOMPARE(m_publicKey.size(), 32);
        QFile file(m_folder.filePath(u"toolvane-0.2.0.txt"_s));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(QByteArray(100'000, 't')) > 0);
        file.close();
        QCOMPARE(build("https://updates.example"), 0);
    }

    void buildsAndServesWhatIsBelieved()
    {
        QProcess server;
        start(server, {u"serve"_s, u"--port"_s, u"0"_s, site()});
        QByteArray line;
        QTRY_VERIFY((line += server.readAllStandardOutput()).contains('\n'));
        const QByteArray address = line.split(' ').first();
        QVERIFY2(address.startsWith("http://127.0.0.1:"), line.constData());
        QCOMPARE(build(address), 0);
        const UpdateSource source{address + "feed.xml", m_publicKey};
        const FetchedFeed fetched = fetchFeed(source, {}, {});
        QCOMPARE(fetched.problem.kind, UpdateProblem::Kind::None);
        const auto offer = chooseOffer(
            fetched.feed, {.installed = {0, 1}, .system = {6, 1}, .systemName = u"linux"_s});
        QVERIFY(offer && offer->notes.startsWith(u'•'));
        QCOMPARE(offer->address, address + "files/toolvane-0.2.0.txt");
        std::atomic<qint64> received = 0;
        const FetchedFile file =
            fetchFile(*offer, m_publicKey, m_folder.filePath(u"Downloads"_s), received, {});
        QCOMPARE(file.problem.kind, UpdateProblem::Kind::None);
        QCOMPARE(QFileInfo(file.path).size(), 100'000);
        QCOMPARE(build(address), 0); // each feed is dated later than the last
        QVERIFY(fetchFeed(source, {}, {}).feed.date > fetched.feed.date);
        server.terminate();
        QVERIFY(server.waitForFinished());
    }

    void replacesNoKey()
    {
        QFile file(key());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.permissions() & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
        const QByteArray before = file.readAll();
        QVERIFY(publish({u"key"_s, key()}) != 0);
        QVERIFY(file.seek(0));
        QCOMPARE(file.readAll(), before);
    }

private:
    // Without the sanitizers' runtime, which this test's own environment forces upon children.
    static void start(QProcess &process, const QStringList &arguments)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(u"LD_PRELOAD"_s);
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QStringLiteral(TOOLVANE_SOURCE_DIR "/packaging/publish/publish"), arguments);
    }
    int publish(const QStringList &arguments, QByteArray *output = nullptr)
    {
        QProcess process;
        start(process, arguments);
        process.waitForFinished();
        if (output)
            *output = process.readAllStandardOutput();
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }
    QString key() const { return m_folder.filePath(u"key.pem"_s); }
    QString site() const { return m_folder.filePath(u"site"_s); }
    int build(const QByteArray &address)
    {
        return publish({u"build"_s, u"--key"_s, key(), u"--address"_s, QString::fromLatin1(address),
                        u"--files"_s, m_folder.path(), site()});
    }

    QTemporaryDir m_folder;
    QByteArray m_publicKey;
};

QTEST_GUILESS_MAIN(TestPublishedSite)
#include "tst_published_site.moc"

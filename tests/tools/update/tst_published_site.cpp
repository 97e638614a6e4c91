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
        qunsetenv("LD_PRELOAD"); // the sanitizers have no business in the scripts
        QProcess maker;
        maker.start(program, {u"key"_s, key()});
        QVERIFY(maker.waitForFinished());
        m_publicKey = QByteArray::fromBase64(maker.readAllStandardOutput().trimmed());
        QCOMPARE(m_publicKey.size(), 32);
        QFile file(m_folder.filePath(u"toolvane-0.2.0.txt"_s));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(QByteArray(100'000, 't')) > 0);
        file.close();
        QCOMPARE(build("https://updates.example"), 0);
    }

    void buildsAndServesWhatIsBelieved()
    {
        QProcess server;
        server.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        server.start(program, {u"serve"_s, u"--port"_s, u"0"_s, site()});
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
        QVERIFY(QProcess::execute(program, {u"key"_s, key()}) != 0);
        QVERIFY(file.seek(0));
        QCOMPARE(file.readAll(), before);
    }

private:
    QString key() const { return m_folder.filePath(u"key.pem"_s); }
    QString site() const { return m_folder.filePath(u"site"_s); }
    int build(const QByteArray &address)
    {
        return QProcess::execute(program,
                                 {u"build"_s, u"--key"_s, key(), u"--address"_s,
                                  QString::fromLatin1(address), u"--files"_s, m_folder.path(),
                                  site()});
    }

    const QString program = QStringLiteral(TOOLVANE_SOURCE_DIR "/packaging/publish/publish");
    QTemporaryDir m_folder;
    QByteArray m_publicKey;
};

QTEST_GUILESS_MAIN(TestPublishedSite)
#include "tst_published_site.moc"

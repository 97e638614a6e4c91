// Proves that what the publishing scripts build is what this program believes: keys, signatures,
// dates and files.

#include "SignatureCheck.h"
#include "UpdateOffer.h"
#include "UpdateTransfer.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class TestPublishedSite : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void buildsAFeedThatIsBelieved();
    void datesEachFeedLaterThanTheLast();
    void servesItsFiles();
    void replacesNoKey();

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
    QByteArray read(const QString &name) const
    {
        QFile file(QDir(site()).filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_folder;
    QByteArray m_publicKey;
};

void TestPublishedSite::initTestCase()
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

void TestPublishedSite::buildsAFeedThatIsBelieved()
{
    const QByteArray bytes = read(u"feed.xml"_s);
    const SignedFeed sealed = SignedFeed::split(bytes);
    QVERIFY(SignatureCheck::isValid(sealed.feed, m_publicKey, sealed.signature));
    const auto feed = UpdateFeed::read(sealed.feed);
    QVERIFY(feed);
    QVERIFY(feed->date.isValid());
    const auto offer =
        chooseOffer(*feed, {.installed = {0, 1}, .system = {6, 1}, .systemName = u"linux"_s});
    QVERIFY(offer);
    QCOMPARE(offer->address, "https://updates.example/files/toolvane-0.2.0.txt");
    QVERIFY(offer->notes.startsWith(u'•'));
    QFile file(QDir(site()).filePath(u"files/toolvane-0.2.0.txt"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.size(), offer->length);
    QVERIFY(SignatureCheck::isValid(file, m_publicKey, offer->signature));
}

void TestPublishedSite::datesEachFeedLaterThanTheLast()
{
    const auto first = UpdateFeed::read(SignedFeed::split(read(u"feed.xml"_s)).feed);
    QCOMPARE(build("https://updates.example/"), 0);
    const auto second = UpdateFeed::read(SignedFeed::split(read(u"feed.xml"_s)).feed);
    QVERIFY(first && second && second->date > first->date);
}

void TestPublishedSite::servesItsFiles()
{
    QProcess server;
    start(server, {u"serve"_s, u"--port"_s, u"0"_s, site()});
    QByteArray line;
    QTRY_VERIFY((line += server.readAllStandardOutput()).contains('\n'));
    const QByteArray address = line.split(' ').first();
    QVERIFY2(address.startsWith("http://127.0.0.1:"), line.constData());
    QCOMPARE(build(address), 0);
    const FetchedFeed feed = fetchFeed({address + "feed.xml", m_publicKey}, {}, {});
    QCOMPARE(feed.problem.kind, UpdateProblem::Kind::None);
    std::atomic<qint64> received = 0;
    const FetchedFile file = fetchFile(feed.feed.items.first(), m_publicKey,
                                       m_folder.filePath(u"Downloads"_s), received, {});
    QCOMPARE(file.problem.kind, UpdateProblem::Kind::None);
    QVERIFY(QFile::exists(file.path));
    server.terminate();
    QVERIFY(server.waitForFinished());
}

void TestPublishedSite::replacesNoKey()
{
    QFile file(key());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.permissions() & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    const QByteArray before = file.readAll();
    QVERIFY(publish({u"key"_s, key()}) != 0);
    QVERIFY(file.seek(0));
    QCOMPARE(file.readAll(), before);
}

QTEST_GUILESS_MAIN(TestPublishedSite)
#include "tst_published_site.moc"

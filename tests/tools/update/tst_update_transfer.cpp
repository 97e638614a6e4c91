// Proves that a feed is believed and a file kept only when they are wholly as the maker signed
// them, whatever the server does, and that nothing else is ever left behind.

#include "Maker.h"
#include "MakersServer.h"
#include "UpdateTransfer.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Kind = UpdateProblem::Kind;

Q_DECLARE_METATYPE(MakersServer::Answer)

namespace
{

const QDateTime feedDate(QDate(2026, 3, 2), QTime(10, 0), Qt::UTC);

/// Kilobytes of memory that this process has held at most since resetPeak().
qint64 peakMemory()
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    const QByteArray text = status.readAll();
    return text.mid(text.indexOf("VmHWM:") + 6).trimmed().split(' ').first().toLongLong();
}

void resetPeak()
{
    QFile file(u"/proc/self/clear_refs"_s);
    if (!file.open(QIODevice::WriteOnly) || file.write("5") != 1)
        qFatal("the peak of memory cannot be reset");
}

} // namespace

class TestUpdateTransfer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void believesFeedsByTheirSignatureAndDate_data();
    void believesFeedsByTheirSignatureAndDate();
    void asksNoUnsafeServer();
    void readsAnyFeedWithoutAKey();
    void keepsAFileThatIsTheMakers();
    void keepsNothingElse_data();
    void keepsNothingElse();
    void replacesNothing();
    void saysWhenItCannotWrite();
    void stopsOnRequest();
    void needsNoMemoryForLargeFiles();
    void takesDecentNamesOnly_data();
    void takesDecentNamesOnly();

private:
    UpdateItem item(const QByteArray &file, const QByteArray &path = "/files/toolvane-1.4.tar.gz")
    {
        return {.version = {1, 4},
                .address = m_server.address(path),
                .length = file.size(),
                .signature = m_maker.sign(file)};
    }
    FetchedFile fetch(const UpdateItem &item, const QString &folder)
    {
        return fetchFile(item, m_maker.publicKey, folder, m_received, {});
    }

    Maker m_maker;
    MakersServer m_server;
    std::atomic<qint64> m_received = 0;
};

void TestUpdateTransfer::believesFeedsByTheirSignatureAndDate_data()
{
    QTest::addColumn<MakersServer::Answer>("answer");
    QTest::addColumn<Kind>("problem");
    const auto row = [](const char *name, const MakersServer::Answer &answer, Kind problem) {
        QTest::newRow(name) << answer << problem;
    };
    const auto sealed = [this](const QByteArray &feed) {
        return MakersServer::raw(HttpPeer::reply(m_maker.sealed(feed)));
    };
    const QByteArray feed = Maker::feed(Maker::withdrawn("1.1"));
    const QByteArray good = m_maker.sealed(feed);
    row("the maker's", sealed(feed), Kind::None);
    row("a newer one", sealed(Maker::feed("", "Tue, 03 Mar 2026 10:00:00 +0000")), Kind::None);
    row("an older one", sealed(Maker::feed("", "Sun, 01 Mar 2026 10:00:00 +0000")), Kind::Older);
    row("without a date", sealed(Maker::feed("", "some day")), Kind::NoDate);
    row("no feed", sealed("hello\n"), Kind::NotAFeed);
    row("a document type", sealed("<!DOCTYPE rss [<!ENTITY a 'b'>]>" + feed), Kind::NotAFeed);
    row("unsigned", MakersServer::raw(HttpPeer::reply(feed)), Kind::Unsigned);
    row("signed by another key", MakersServer::raw(HttpPeer::reply(Maker().sealed(feed))),
        Kind::WrongSignature);
    row("changed afterwards",
        MakersServer::raw(HttpPeer::reply(QByteArray(good).replace("1.1", "1.9"))),
        Kind::WrongSignature);
    row("404", MakersServer::status("404 Not Found"), Kind::Status);
    row("500", MakersServer::status("500 Oh"), Kind::Status);
    row("no content", MakersServer::raw(HttpPeer::reply(good, "201 Created")), Kind::Status);
    row("redirects to a file", MakersServer::redirect("file:///etc/passwd"), Kind::Status);
    row("redirects to plain http", MakersServer::redirect("http://example.invalid/"), Kind::Status);
    row("drops", MakersServer::dropping(good), Kind::Unreachable);
    row("endless", MakersServer::endless(feed), Kind::TooLarge);
}

void TestUpdateTransfer::believesFeedsByTheirSignatureAndDate()
{
    QFETCH(MakersServer::Answer, answer);
    m_server.set("/feed.xml", answer);
    const FetchedFeed fetched =
        fetchFeed({m_server.address("/feed.xml"), m_maker.publicKey}, feedDate, {});
    QTEST(fetched.problem.kind, "problem");
    QCOMPARE(fetched.feed.date.isValid(), !fetched.problem);
}

void TestUpdateTransfer::asksNoUnsafeServer()
{
    for (const char *address : {"http://example.invalid/", "file:///etc/passwd", "", "/feed.xml"})
        QCOMPARE(fetchFeed({address, m_maker.publicKey}, {}, {}).problem.kind, Kind::UnsafeAddress);
    UpdateItem unsafe = item("x");
    unsafe.address = "file:///etc/hostname";
    const QTemporaryDir folder;
    QCOMPARE(fetch(unsafe, folder.path()).problem.kind, Kind::UnsafeAddress);
}

void TestUpdateTransfer::readsAnyFeedWithoutAKey()
{
    m_server.set("/feed.xml", Maker::feed(Maker::withdrawn("1.1"), "some day"));
    const FetchedFeed fetched = fetchFeed({m_server.address("/feed.xml"), {}}, feedDate, {});
    QCOMPARE(fetched.problem.kind, Kind::None);
    QCOMPARE(fetched.feed.items.size(), 1);
}

void TestUpdateTransfer::keepsAFileThatIsTheMakers()
{
    const QTemporaryDir folder;
    const QByteArray file(300'000, 'f');
    m_server.set("/files/toolvane-1.4.tar.gz", file);
    const FetchedFile fetched = fetch(item(file), folder.filePath(u"new/Downloads"_s));
    QCOMPARE(fetched.problem.kind, Kind::None);
    QCOMPARE(fetched.path, folder.filePath(u"new/Downloads/toolvane-1.4.tar.gz"_s));
    QFile written(fetched.path);
    QVERIFY(written.open(QIODevice::ReadOnly));
    QCOMPARE(written.readAll(), file);
    QCOMPARE(m_received, file.size());
}

void TestUpdateTransfer::keepsNothingElse_data()
{
    QTest::addColumn<MakersServer::Answer>("answer");
    QTest::addColumn<Kind>("problem");
    const QByteArray file(300'000, 'f');
    const auto row = [](const char *name, const MakersServer::Answer &answer, Kind problem) {
        QTest::newRow(name) << answer << problem;
    };
    QByteArray swapped = file;
    swapped[1000] = 'g';
    row("swapped", MakersServer::raw(HttpPeer::reply(swapped)), Kind::WrongSignature);
    row("shorter", MakersServer::raw(HttpPeer::reply(file.chopped(1))), Kind::Incomplete);
    row("longer", MakersServer::raw(HttpPeer::reply(file + 'f')), Kind::TooLarge);
    row("endless", MakersServer::endless(file), Kind::TooLarge);
    row("dropping", MakersServer::dropping(file.chopped(1000)), Kind::Unreachable);
    row("error page", MakersServer::status("404 Not Found"), Kind::Status);
    row("redirects to a file", MakersServer::redirect("file:///etc/passwd"), Kind::Status);
}

void TestUpdateTransfer::keepsNothingElse()
{
    QFETCH(MakersServer::Answer, answer);
    const QTemporaryDir folder;
    m_server.set("/files/toolvane-1.4.tar.gz", answer);
    const FetchedFile fetched = fetch(item(QByteArray(300'000, 'f')), folder.path());
    QTEST(fetched.problem.kind, "problem");
    QVERIFY(fetched.path.isEmpty());
    QVERIFY(QDir(folder.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

void TestUpdateTransfer::replacesNothing()
{
    const QTemporaryDir folder;
    m_server.set("/files/toolvane-1.4.tar.gz", QByteArray("new"));
    QFile old(folder.filePath(u"toolvane-1.4.tar.gz"_s));
    QVERIFY(old.open(QIODevice::WriteOnly) && old.write("the user's") > 0);
    old.close();
    QVERIFY(QFile::link(u"/nowhere"_s, folder.filePath(u"toolvane-1.4 2.tar.gz"_s)));
    QCOMPARE(fetch(item("new"), folder.path()).path, folder.filePath(u"toolvane-1.4 3.tar.gz"_s));
    QVERIFY(old.open(QIODevice::ReadOnly));
    QCOMPARE(old.readAll(), "the user's");
}

void TestUpdateTransfer::saysWhenItCannotWrite()
{
    const QTemporaryDir folder;
    QFile inTheWay(folder.filePath(u"Downloads"_s));
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    const FetchedFile fetched = fetch(item("new"), inTheWay.fileName());
    QCOMPARE(fetched.problem.kind, Kind::NotWritten);
    QVERIFY(!fetched.problem.detail.isEmpty());
}

void TestUpdateTransfer::stopsOnRequest()
{
    const QTemporaryDir folder;
    const QByteArray file(300'000, 'f');
    const QByteArray part = HttpPeer::reply(file).first(1000);
    m_server.set("/files/toolvane-1.4.tar.gz", MakersServer::silent(part));
    std::stop_source source;
    m_received = 0;
    const std::jthread stopper([&source, this] {
        while (m_received == 0)
            std::this_thread::sleep_for(1ms);
        source.request_stop();
    });
    const FetchedFile fetched =
        fetchFile(item(file), m_maker.publicKey, folder.path(), m_received, source.get_token());
    QCOMPARE(fetched.problem.kind, Kind::Stopped);
    QVERIFY(QDir(folder.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

void TestUpdateTransfer::needsNoMemoryForLargeFiles()
{
    constexpr qint64 pieces = 96;
    const QByteArray piece(1024 * 1024, 'p');
    UpdateItem large = item(piece.repeated(pieces));
    m_server.set("/files/toolvane-1.4.tar.gz", [&piece](HttpPeer::Connection &connection) {
        connection.send("HTTP/1.1 200 OK\r\n\r\n");
        for (qint64 i = 0; i < pieces && connection.send(piece); ++i) { }
    });
    const QTemporaryDir folder;
    QVERIFY(fetch(item("x", "/none"), folder.path()).problem); // loads the libraries
    resetPeak();
    const qint64 before = peakMemory();
    const FetchedFile fetched = fetch(large, folder.path());
    QCOMPARE(fetched.problem.kind, Kind::None);
    const qint64 growth = peakMemory() - before;
    QVERIFY2(growth < 24 * 1024, qPrintable(u"%1 KB"_s.arg(growth)));
}

void TestUpdateTransfer::takesDecentNamesOnly_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QString>("name");
    QTest::newRow("decent") << QByteArray("/a/b/Toolvane_1.4~rc1+2.deb?x=/y#/z")
                            << u"Toolvane_1.4~rc1+2.deb"_s;
    const QString plain = u"Toolvane-1.4"_s;
    for (const char *path :
         {"/", "/..", "/.bashrc", "/-rf", "/a%00b", "/%E2%80%AEgpj.exe", "/a b", "/a%0ab"})
        QTest::newRow(path) << QByteArray(path) << plain;
    QTest::newRow("hidden slash") << QByteArray("/a/%2e%2e%2fb") << u"b"_s;
    QTest::newRow("long") << '/' + QByteArray(300, 'n') << plain;
}

void TestUpdateTransfer::takesDecentNamesOnly()
{
    QFETCH(QByteArray, path);
    QTEST(fileNameOf(item("x", path)), "name");
}

QTEST_GUILESS_MAIN(TestUpdateTransfer)
#include "tst_update_transfer.moc"

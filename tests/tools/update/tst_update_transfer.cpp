// Proves that a feed is believed and a file kept only when they are wholly as the maker signed
// them, whatever the server does, and that nothing else is ever left behind.

#include "Maker.h"
#include "MakersServer.h"
#include "UpdateTransfer.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>

using namespace Qt::StringLiterals;
using Kind = UpdateProblem::Kind;

Q_DECLARE_METATYPE(MakersServer::Answer)

namespace
{

constexpr const char *filePath = "/files/toolvane-1.4.tar.gz";
const QDateTime feedDate(QDate(2026, 3, 2), QTime(10, 0), Qt::UTC);

void addRow(const char *name, const MakersServer::Answer &answer, Kind problem)
{
    QTest::newRow(name) << answer << problem;
}

void addRow(const char *name, const QByteArray &body, Kind problem)
{
    addRow(name, MakersServer::raw(HttpPeer::reply(body)), problem);
}

bool isEmpty(const QTemporaryDir &folder)
{
    return QDir(folder.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

} // namespace

class TestUpdateTransfer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void believesFeedsByTheirSignatureAndDate_data()
    {
        QTest::addColumn<MakersServer::Answer>("answer");
        QTest::addColumn<Kind>("problem");
        const QByteArray feed = Maker::feed(Maker::withdrawn("1.1"));
        const QByteArray good = m_maker.sealed(feed);
        const auto dated = [this](const QByteArray &date) {
            return m_maker.sealed(Maker::feed("", date));
        };
        addRow("the maker's", good, Kind::None);
        addRow("a newer one", dated("Tue, 03 Mar 2026 10:00:00 GMT"), Kind::None);
        addRow("an older one", dated("Sun, 01 Mar 2026 10:00:00 +0000"), Kind::Older);
        addRow("without a date", dated("some day"), Kind::NoDate);
        addRow("no feed", m_maker.sealed("hello\n"), Kind::NotAFeed);
        addRow("unsigned", feed, Kind::Unsigned);
        addRow("signed by another key", Maker().sealed(feed), Kind::WrongSignature);
        addRow("changed afterwards", QByteArray(good).replace("1.1", "1.9"), Kind::WrongSignature);
        addRow("error", MakersServer::status("500 Oh"), Kind::Status);
        addRow("redirects to a file", MakersServer::redirect("file:///etc/passwd"), Kind::Status);
        addRow("endless", MakersServer::endless(feed), Kind::TooLarge);
    }
    void believesFeedsByTheirSignatureAndDate()
    {
        QFETCH(MakersServer::Answer, answer);
        m_server.set("/feed.xml", answer);
        const FetchedFeed fetched =
            fetchFeed({m_server.address("/feed.xml"), m_maker.publicKey}, feedDate, {});
        QTEST(fetched.problem.kind, "problem");
        QCOMPARE(fetched.feed.date.isValid(), !fetched.problem);
    }

    void asksNoUnsafeServer()
    {
        for (const char *address :
             {"http://example.invalid/", "file:///etc/passwd", "", "/feed.xml"})
            QCOMPARE(fetchFeed({address, m_maker.publicKey}, {}, {}).problem.kind,
                     Kind::UnsafeAddress);
        UpdateItem unsafe = item("x");
        unsafe.address = "file:///etc/hostname";
        const QTemporaryDir folder;
        QCOMPARE(fetch(unsafe, folder.path()).problem.kind, Kind::UnsafeAddress);
    }

    void keepsAFileThatIsTheMakersAndReplacesNothing()
    {
        const QTemporaryDir base;
        const QDir folder(base.filePath(u"new/Downloads"_s));
        const QByteArray file(300'000, 'f');
        m_server.set(filePath, file);
        const FetchedFile fetched = fetch(item(file), folder.path());
        QCOMPARE(fetched.problem.kind, Kind::None);
        QCOMPARE(fetched.path, folder.filePath(u"toolvane-1.4.tar.gz"_s));
        QCOMPARE(m_received, file.size());
        QVERIFY(QFile::link(u"/nowhere"_s, folder.filePath(u"toolvane-1.4 2.tar.gz"_s)));
        m_server.set(filePath, QByteArray("new"));
        QCOMPARE(fetch(item("new"), folder.path()).path,
                 folder.filePath(u"toolvane-1.4 3.tar.gz"_s));
        QCOMPARE(fetch(item("new"), fetched.path).problem.kind, Kind::NotWritten); // no folder
        QFile written(fetched.path);
        QVERIFY(written.open(QIODevice::ReadOnly));
        QVERIFY(written.permissions() & QFile::ReadOther); // who installs it may be another user
        QCOMPARE(written.readAll(), file);
    }

    void keepsNothingElse_data()
    {
        QTest::addColumn<MakersServer::Answer>("answer");
        QTest::addColumn<Kind>("problem");
        const QByteArray file(300'000, 'f');
        QByteArray swapped = file;
        swapped[1000] = 'g';
        addRow("swapped", swapped, Kind::WrongSignature);
        addRow("shorter", file.chopped(1), Kind::Incomplete);
        addRow("longer", file + 'f', Kind::TooLarge);
        addRow("endless", MakersServer::endless(file), Kind::TooLarge);
        addRow("dropping", MakersServer::dropping(file.chopped(1000)), Kind::Unreachable);
        addRow("error page", MakersServer::status("404 Not Found"), Kind::Status);
        addRow("redirects to a file", MakersServer::redirect("file:///etc/passwd"), Kind::Status);
    }
    void keepsNothingElse()
    {
        QFETCH(MakersServer::Answer, answer);
        const QTemporaryDir folder;
        m_server.set(filePath, answer);
        const FetchedFile fetched = fetch(item(QByteArray(300'000, 'f')), folder.path());
        QTEST(fetched.problem.kind, "problem");
        QVERIFY(fetched.path.isEmpty());
        QVERIFY(isEmpty(folder));
    }

    void takesDecentNamesOnly()
    {
        const auto name = [this](const QByteArray &path) { return fileNameOf(item("x", path)); };
        QCOMPARE(name("/a/b/Toolvane_1.4~rc1+2.deb?x=/y#/z"), u"Toolvane_1.4~rc1+2.deb"_s);
        QCOMPARE(name("/a/%2e%2e%2fb"), u"b"_s);
        for (const char *path :
             {"/", "/..", "/.bashrc", "/-rf", "/a%00b", "/%E2%80%AEgpj.exe", "/a b", "/a%0ab"})
            QCOMPARE(name(path), u"Toolvane-1.4"_s);
        QCOMPARE(name('/' + QByteArray(300, 'n')), u"Toolvane-1.4"_s);
    }

private:
    UpdateItem item(const QByteArray &file, const QByteArray &path = filePath)
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

QTEST_GUILESS_MAIN(TestUpdateTransfer)
#include "tst_update_transfer.moc"

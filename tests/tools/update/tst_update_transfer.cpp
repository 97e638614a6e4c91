// Proves that a feed is accepted and a file kept only when they are wholly as the maker signed
// them, whatever the server does, that nothing else is ever left behind, and that what the
// publishing scripts build is accepted.

#include "Files.h"
#include "Maker.h"
#include "MakersServer.h"
#include "UpdateTransfer.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>

using namespace Qt::StringLiterals;
using Kind = UpdateProblem::Kind;
using Answers = QList<std::pair<MakersServer::Answer, Kind>>;

namespace
{

constexpr const char *filePath = "/files/toolvane-1.4.tar.gz";
const QDateTime feedDate(QDate(2026, 3, 2), QTime(10, 0), Qt::UTC);

QByteArray flipped(QByteArray bytes, qsizetype bit)
{
    bytes[bit / 8] = static_cast<char>(bytes[bit / 8] ^ (1 << (bit % 8)));
    return bytes;
}

// The same number modulo the group's order, written in another way.
QByteArray unreduced(QByteArray signature)
{
    const QByteArray order =
        QByteArray::fromHex("edd3f55c1a631258d69cf7a2def9de1400000000000000000000000000000010");
    int carry = 0;
    for (qsizetype i = 0; i < order.size(); ++i) {
        carry += uchar(signature[32 + i]) + uchar(order[i]);
        signature[32 + i] = static_cast<char>(carry & 0xff);
        carry >>= 8;
    }
    return signature;
}

} // namespace

class TestUpdateTransfer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The sanitizers have no business in the scripts.
    void initTestCase() { qunsetenv("LD_PRELOAD"); }

    void refusesEveryFlippedBitAndMadeUpKeys()
    {
        const QByteArray message("what the maker made");
        const QByteArray signature = m_maker.sign(message);
        QVERIFY(UpdateSignature::isValid(message, m_maker.publicKey, signature));
        int accepted = 0;
        const auto check = [&](const QByteArray &m, const QByteArray &k, const QByteArray &s) {
            accepted += UpdateSignature::isValid(m, k, s) ? 1 : 0;
        };
        for (qsizetype bit = 0; bit < message.size() * 8; ++bit)
            check(flipped(message, bit), m_maker.publicKey, signature);
        for (qsizetype bit = 0; bit < signature.size() * 8; ++bit)
            check(message, m_maker.publicKey, flipped(signature, bit));
        for (qsizetype bit = 0; bit < m_maker.publicKey.size() * 8; ++bit)
            check(message, flipped(m_maker.publicKey, bit), signature);
        check(message, m_maker.publicKey, unreduced(signature));
        check(message, QByteArray(32, '\0'), QByteArray(64, '\0'));
        check(message, {}, signature);
        check(message, m_maker.publicKey + 'x', signature);
        check(message, m_maker.publicKey, {});
        check(message, m_maker.publicKey, signature.chopped(1));
        QCOMPARE(accepted, 0);
    }

    // A file without a name is mapped, one with a name is read: the answers are the same.
    void checksWholeFiles()
    {
        const QTemporaryDir folder;
        const QByteArray message(1'000'000, 'm');
        for (const bool isNamed : {true, false}) {
            QFile file(folder.filePath(u"download"_s));
            QVERIFY(file.open(QIODevice::ReadWrite | QIODevice::Truncate | QIODevice::Unbuffered));
            QVERIFY(isNamed || QFile::remove(file.fileName()));
            const QByteArray ofNothing = m_maker.sign({});
            QVERIFY(!UpdateSignature::hashIfValid(file, m_maker.publicKey, ofNothing).isEmpty());
            QCOMPARE(file.write(message), message.size()); // and is checked from its begin
            const QByteArray signature = m_maker.sign(message);
            const auto hash = [&](const QByteArray &given) {
                return UpdateSignature::hashIfValid(file, m_maker.publicKey, given);
            };
            QCOMPARE(hash(signature), UpdateSignature::hash(file, {}));
            QCOMPARE(hash(signature).size(), 32);
            QVERIFY(hash(ofNothing).isEmpty());
            QVERIFY(file.seek(message.size()));
            QCOMPARE(file.write("m"), 1);
            QVERIFY(hash(signature).isEmpty());
        }
    }

    void acceptsFeedsByTheirSignatureAndDate()
    {
        const QByteArray feed = Maker::feed(Maker::withdrawn("1.1"));
        const QByteArray good = m_maker.sealed(feed);
        const auto dated = [this](const QByteArray &date) {
            return MakersServer::serving(m_maker.sealed(Maker::feed("", date)));
        };
        const Answers answers{
            {MakersServer::serving(good), Kind::None},
            {dated("Tue, 03 Mar 2026 10:00:00 GMT"), Kind::None},
            {dated("Sun, 01 Mar 2026 10:00:00 +0000"), Kind::Older},
            {dated("some day"), Kind::NoDate},
            {MakersServer::serving(m_maker.sealed("hello\n")), Kind::NotAFeed},
            {MakersServer::serving(feed), Kind::Unsigned},
            {MakersServer::serving("<html>Sign in to the network</html>"), Kind::NotAFeed},
            {MakersServer::raw("220 mail.example ready\r\n"), Kind::Garbled},
            {MakersServer::dropping(feed), Kind::BrokenOff},
            {[](HttpPeer::Connection &) {}, Kind::Unreachable},
            {MakersServer::serving(Maker().sealed(feed)), Kind::WrongSignature},
            {MakersServer::serving(QByteArray(good).replace("1.1", "1.9")), Kind::WrongSignature},
            {MakersServer::status("500 Oh"), Kind::Status},
            {MakersServer::redirect("file:///etc/passwd"), Kind::Status},
            {MakersServer::endless(feed), Kind::TooLarge}};
        for (const auto &[answer, problem] : answers) {
            m_server.set("/feed.xml", answer);
            const FetchedFeed fetched =
                fetchFeed({m_server.address("/feed.xml"), m_maker.publicKey}, feedDate, {});
            QCOMPARE(fetched.problem.kind, problem);
            QCOMPARE(fetched.feed.date.isValid(), !fetched.problem);
        }
    }

    void contactsNoUnsafeServer()
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
        QCOMPARE(fetched.file.path, folder.filePath(u"toolvane-1.4.tar.gz"_s));
        QCOMPARE(m_received, file.size());
        QVERIFY(QFile::link(u"/nowhere"_s, folder.filePath(u"toolvane-1.4 2.tar.gz"_s)));
        m_server.set(filePath, QByteArray("new"));
        QCOMPARE(fetch(item("new"), folder.path()).file.path,
                 folder.filePath(u"toolvane-1.4 3.tar.gz"_s));
        QCOMPARE(fetch(item("new"), fetched.file.path).problem.kind, Kind::NotWritten); // no folder
        QCOMPARE(Files::read(fetched.file.path), file);
        // Who installs it may be another user.
        QVERIFY(QFile::permissions(fetched.file.path) & QFile::ReadOther);
    }

    void recognisesTheFileThatItChecked()
    {
        const QTemporaryDir base;
        const QDir folder(base.filePath(u"Downloads"_s));
        const QByteArray content(3'000'000, 'f');
        m_server.set(filePath, content);
        const CheckedFile file = fetch(item(content), folder.path()).file;
        QVERIFY(file.isUnchanged({}));
        const QString aside = base.filePath(u"aside"_s);
        QVERIFY(QDir().rename(folder.path(), aside) && QDir().mkdir(folder.path()));
        QVERIFY(!file.isUnchanged({})); // gone
        Files::write(file.path, content);
        QVERIFY(!file.isUnchanged({})); // alike, but another one
        QVERIFY(QFile::remove(file.path));
        QVERIFY(QFile::link(aside + u"/toolvane-1.4.tar.gz"_s, file.path));
        QVERIFY(!file.isUnchanged({}));
        QVERIFY(QDir(folder).removeRecursively() && QDir().rename(aside, folder.path()));
        QVERIFY(file.isUnchanged({}));
        QFile same(file.path);
        QVERIFY(same.open(QIODevice::ReadWrite) && same.seek(2'000'000) && same.putChar('g'));
        same.close();
        QVERIFY(!file.isUnchanged({}));
    }

    void keepsNothingElse()
    {
        const QByteArray file(300'000, 'f');
        const Answers answers{{MakersServer::serving(file.chopped(1) + 'g'), Kind::WrongSignature},
                              {MakersServer::serving(file.chopped(1)), Kind::Incomplete},
                              {MakersServer::serving(file + 'f'), Kind::TooLarge},
                              {MakersServer::endless(file), Kind::TooLarge},
                              {MakersServer::dropping(file.chopped(1000)), Kind::BrokenOff},
                              {MakersServer::status("404 Not Found"), Kind::Status},
                              {MakersServer::redirect("file:///etc/passwd"), Kind::Status}};
        const QTemporaryDir folder;
        for (const auto &[answer, problem] : answers) {
            m_server.set(filePath, answer);
            const FetchedFile fetched = fetch(item(file), folder.path());
            QCOMPARE(fetched.problem.kind, problem);
            QVERIFY(fetched.file.path.isEmpty());
            QVERIFY(QDir(folder.path())
                        .isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
        }
    }

    void usesPlainNamesOnly()
    {
        const auto name = [this](const QByteArray &path) { return fileNameOf(item("x", path)); };
        QCOMPARE(name("/a/b/Toolvane_1.4~rc1+2.deb?x=/y#/z"), u"Toolvane_1.4~rc1+2.deb"_s);
        QCOMPARE(name("/a/%2e%2e%2fb"), u"b"_s);
        for (const char *path :
             {"/", "/..", "/.bashrc", "/-rf", "/a%00b", "/%E2%80%AEgpj.exe", "/a b", "/a%0ab"})
            QCOMPARE(name(path), u"Toolvane-1.4"_s);
        QCOMPARE(name('/' + QByteArray(300, 'n')), u"Toolvane-1.4"_s);
    }

    void acceptsWhatTheScriptsPublish()
    {
        const QTemporaryDir own;
        const QString key = own.filePath(u"key.pem"_s);
        QProcess maker;
        maker.start(publish, {u"key"_s, key});
        QVERIFY(maker.waitForFinished());
        const QByteArray publicKey =
            QByteArray::fromBase64(maker.readAllStandardOutput().trimmed());
        const QByteArray privateKey = Files::read(key);
        QCOMPARE(QFile::permissions(key) & (QFile::ReadGroup | QFile::ReadOther),
                 QFile::Permissions());
        QVERIFY(QProcess::execute(publish, {u"key"_s, key}) != 0); // replaces none
        QCOMPARE(Files::read(key), privateKey);

        const QByteArray file(100'000, 't');
        Files::write(own.filePath(u"toolvane-0.2.0.txt"_s), file);
        const QString site = own.filePath(u"site"_s);
        const auto build = [&](const QByteArray &address) {
            return QProcess::execute(publish,
                                     {u"build"_s, u"--key"_s, key, u"--address"_s,
                                      QString::fromLatin1(address), u"--files"_s, own.path(),
                                      site});
        };
        QCOMPARE(build("https://updates.example"), 0);
        QProcess server;
        server.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        server.start(publish, {u"serve"_s, u"--port"_s, u"0"_s, site});
        QByteArray line;
        QTRY_VERIFY((line += server.readAllStandardOutput()).contains('\n'));
        const QByteArray address = line.split(' ').first();
        QVERIFY2(address.startsWith("http://127.0.0.1:"), line.constData());
        QCOMPARE(build(address), 0);
        const UpdateSource source{address + "feed.xml", publicKey};
        const FetchedFeed fetched = fetchFeed(source, {}, {});
        QCOMPARE(fetched.problem.kind, Kind::None);
        QCOMPARE(fetched.feed.date.daysTo(fetched.feed.expiry), 180);
        const auto offer = chooseOffer(
            fetched.feed, {.installed = {0, 1}, .system = {6, 1}, .systemName = u"linux"_s});
        QVERIFY(offer && offer->notes.startsWith(u'•'));
        QCOMPARE(offer->address, address + "files/toolvane-0.2.0.txt");
        const FetchedFile got =
            fetchFile(*offer, publicKey, own.filePath(u"Downloads"_s), m_received, {});
        QCOMPARE(got.problem.kind, Kind::None);
        QCOMPARE(Files::read(got.file.path), file);
        QCOMPARE(build(address), 0); // each feed is dated later than the last
        QVERIFY(fetchFeed(source, {}, {}).feed.date > fetched.feed.date);
        server.terminate();
        QVERIFY(server.waitForFinished());
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

    const QString publish = QStringLiteral(TOOLVANE_SOURCE_DIR "/packaging/publish/publish");
    Maker m_maker;
    MakersServer m_server;
    std::atomic<qint64> m_received = 0;
};

QTEST_GUILESS_MAIN(TestUpdateTransfer)
#include "tst_update_transfer.moc"

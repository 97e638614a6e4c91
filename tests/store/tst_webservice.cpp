// Proves that the web-service form sends the exact requests and reads whatever comes back as the
// callers expect.

#include "BLGeneral.h"
#include "DB.h"
#include "Http.h"
#include "HttpPeer.h"
#include "LogLines.h"
#include "SampleRecords.h"
#include "SchemaReflect.h"
#include "UserSchema.h"
#include "WebService.h"

#include <QFile>
#include <QSettings>
#include <QTest>

#include <atomic>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

void use(const HttpPeer &peer)
{
    DB::open(QString::fromLatin1(peer.address("/api/")));
    DB::webServiceLimits() = {.time = 1s, .bytes = 100'000};
}

/// The four requests of the protocol.
void sendAll()
{
    BLGeneral gateway(u"T"_s);
    gateway.insert(PriceSchema{});
    gateway.delete_("ID=1");
    gateway.select("1=1", PriceSchema{});
    gateway.select("1=1", PriceSchema{}, 0, 10);
}

/// "<method> <path>" of each request.
QList<QByteArray> requestLines(const HttpPeer &peer)
{
    QList<QByteArray> lines;
    for (const QByteArray &request : peer.requests())
        lines.append(request.first(request.indexOf(" HTTP/1.1\r\n")));
    return lines;
}

} // namespace

class TestWebService : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        DB::reset();
        LogLines::keepFromNow();
    }
    void cleanup() { QVERIFY2(LogLines::take().isEmpty(), "the web-service form logs nothing"); }

    void aMissingReplyReadsAsSuccessInTime()
    {
        const HttpPeer peer(
            [](HttpPeer::Connection &connection) { connection.hasGoneWithin(10s); });
        use(peer);
        QVERIFY(BLGeneral(u"T"_s).delete_("1=1"));
    }

    void writesSendTheRecord()
    {
        const HttpPeer peer(HttpPeer::reply("0"));
        use(peer);
        BLGeneral gateway(u"User"_s);
        QVERIFY(gateway.insert(UserSchema{0, 1, 2, u"alice"_s, u"pw"_s, u"x"_s}));
        const QByteArray json =
            R"({"ID":"0","ShopID":"1","UserGroupID":"2","User":"alice","Password":"pw","Memo":"x"})";
        QCOMPARE(peer.requests(),
                 QList<QByteArray>{"POST /api/User?OPERATION=INSERT HTTP/1.1\r\nHost: "
                                   + peer.address({}).mid(7)
                                   + "\r\nUser-Agent: Toolvane\r\nAccept: application/json\r\n"
                                     "Content-Type: application/json\r\nContent-Length: "
                                   + QByteArray::number(json.size()) + "\r\n\r\n" + json});
        // The key chooses the operation, not the call.
        gateway.insert(PriceSchema{5, {}, 0});
        gateway.update(PriceSchema{0, {}, 0});
        QCOMPARE(requestLines(peer).sliced(1),
                 (QList<QByteArray>{"POST /api/User?OPERATION=UPDATE",
                                    "POST /api/User?OPERATION=INSERT"}));
    }

    void bodiesAreCutToTheLengthOfTheText()
    {
        const HttpPeer peer(HttpPeer::reply("0"));
        use(peer);
        QVERIFY(BLGeneral(u"T"_s).insert(PriceSchema{0, u"é\U0001F600"_s, 0}));
        // 39 UTF-16 units; UTF-8 takes three bytes more.
        QVERIFY(peer.requests().value(0).endsWith(
            "\r\nContent-Length: 39\r\n\r\n{\"ID\":\"0\",\"Name\":\"é😀\",\"Amount\":\"0.0"));
    }

    void clausesAreEscapedAndDelimitersAreNot()
    {
        const HttpPeer peer(HttpPeer::reply(R"({"RESULT":[{"ID":"1","Name":"a"}]})"));
        use(peer);
        BLGeneral gateway(u"T"_s);
        QCOMPARE(gateway.select("Name='a b'&x=\"%é?/:+<>\"", PriceSchema{})->at(0).Name, u"a"_s);
        gateway.delete_("Name='a b'&x=\"%é?/:+<>\"");
        gateway.select("ID=7", PriceSchema{}, -1, 10);
        const QByteArray clause = "CLAUSE=Name='a%20b'&x=%22%25%C3%A9?/:+%3C%3E%22";
        QCOMPARE(requestLines(peer),
                 (QList<QByteArray>{"POST /api/T?OPERATION=SELECT&" + clause,
                                    "POST /api/T?OPERATION=DELETE&" + clause,
                                    "POST /api/T?OPERATION=SELECT&CLAUSE=ID=7&FROM=-1&STEP=10"}));
        gateway.delete_("ID=1#%23"); // what follows the mark is not sent
        QCOMPARE(requestLines(peer).last(), "POST /api/T?OPERATION=DELETE&CLAUSE=ID=1");
        QVERIFY(peer.requests().at(0).endsWith(
            "\r\nUser-Agent: Toolvane\r\nContent-Length: 0\r\n\r\n"));
    }

    void repliesRead()
    {
        const std::pair<QByteArray, int> cases[] = {
            {HttpPeer::reply(" 17 rows"), 17},
            {HttpPeer::reply(""), 0},
            {HttpPeer::reply("\xff\xfe\x01"), 0},
            {HttpPeer::reply("5", "500 Internal Server Error"), 5},
            {"HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n7", 0}, // half of it
        };
        for (const auto &[reply, status] : cases) {
            const HttpPeer peer(reply);
            use(peer);
            BLGeneral gateway(u"T"_s);
            QCOMPARE(gateway.execHTTP(PriceSchema{}), status);
            QCOMPARE(gateway.deleteHTTP("1=1"), status);
            QCOMPARE(peer.requests().size(), 2);
            const auto records = gateway.select("1=1", PriceSchema{});
            QVERIFY(records && records->isEmpty());
        }
    }

    void longRepliesReadUpToALimit()
    {
        const QByteArray row = "{\"ID\":1,\"Name\":\"" + QByteArray(100, 'n') + "\"},";
        const QByteArray rows = row.repeated(20'000); // 2.5 MB
        const HttpPeer peer(HttpPeer::reply("{\"RESULT\":[" + rows.chopped(1) + "]}"));
        DB::open(QString::fromLatin1(peer.address("/api/")));
        BLGeneral gateway(u"T"_s);
        QCOMPARE(gateway.select("1=1", PriceSchema{})->size(), 20'000);
        QCOMPARE(DB::webServiceLimits().bytes, 64 * 1024 * 1024);
        QVERIFY(LogLines::take().isEmpty());
        use(peer);
        QVERIFY(gateway.select("1=1", PriceSchema{})->isEmpty());
        QVERIFY(gateway.delete_("1=1"));
        QCOMPARE(LogLines::take(), QStringList(2, u"[BLGeneral]->(post):the reply is too large"_s));
    }

    void aMissingAddressReadsAsSuccess()
    {
        BLGeneral gateway(PriceSchema{});
        QVERIFY(gateway.insert(PriceSchema{}));
        QVERIFY(gateway.select("1=1", PriceSchema{})->isEmpty());
        QVERIFY(!QFile::exists(DB::dbFilePath()));
    }

    void aConfiguredAddressIsUsedByEverySession()
    {
        const HttpPeer peer(HttpPeer::reply(R"({"RESULT":[{"ID":"7"}]})"));
        const QString address = QString::fromLatin1(peer.address("/records/"));
        QSettings settings;
        settings.setValue(u"Addresses/WebService"_s, address);
        settings.setValue(u"WebService/TimeoutSeconds"_s, 5);
        DBSession::openDB();
        QCOMPARE(DB::getWebServiceURL(), address);
        QCOMPARE(DB::webServiceLimits().time, 5s);
        BLGeneral gateway(u"User"_s);
        settings.clear(); // the records do not move while the program runs
        DBSession::closeDB();
        QVERIFY(!DB::getWebServiceURL());
        QCOMPARE(gateway.select("1=1", UserSchema{})->at(0).ID, 7); // a session of its own
        QVERIFY(!DB::getWebServiceURL());
        gateway.insert(UserSchema{});
        gateway.delete_("ID=7");
        QCOMPARE(requestLines(peer),
                 (QList<QByteArray>{"POST /records/User?OPERATION=SELECT&CLAUSE=1=1",
                                    "POST /records/User?OPERATION=INSERT",
                                    "POST /records/User?OPERATION=DELETE&CLAUSE=ID=7"}));
        QVERIFY(!QFile::exists(DB::dbFilePath()));

        DB::reset();
        settings.setValue(u"WebService/TimeoutSeconds"_s, 0);
        QVERIFY(DB::configuredWebService().isEmpty());
        QCOMPARE(DB::webServiceLimits().time, 10s);
        settings.clear();
    }

    void allRequestsCarryTheSameCredentials()
    {
        const std::tuple<QByteArray, QByteArray, QByteArray> cases[] = {
            {"till:secret@", "till:secret", "/records/"},
            {"till:@", "till:", "/records/"},
            {"t%3cll:%22%25%2F%3F%23%40%20%c3%A9:@", "t<ll:\"%/?#@ é:", "/records/"},
            {"till:a@b%c100%é'\"<+&@", "till:a@b%c100%é'\"<+&", "/records/"},
            {"", "", "/~till@home/a:b@"}, // all of it the path
        };
        for (const auto &[userInfo, sent, path] : cases) {
            const HttpPeer peer(HttpPeer::reply("0"));
            const QString plain = QString::fromLatin1(peer.address(path));
            const QString address = QString(plain).insert(7, QString::fromUtf8(userInfo));
            DB::open(address);
            sendAll();
            QVERIFY(httpGet(WebService(address).healthRequest()).succeeded());
            QCOMPARE(WebService(address).place(), plain);
            QCOMPARE(peer.requests().size(), 5);
            const QByteArray header = "\r\nAuthorization: Basic " + sent.toBase64() + "\r\n";
            for (const QByteArray &request : peer.requests()) {
                QCOMPARE(request.count(header), sent.isEmpty() ? 0 : 1);
                QCOMPARE(request.count("\r\nAuthorization: "), sent.isEmpty() ? 0 : 1);
            }
            QVERIFY(requestLines(peer).constLast() == "GET " + path + "healthz");
        }
    }

    void noRedirectTurnsAWriteIntoARead()
    {
        const HttpPeer other(HttpPeer::reply("4 exists"));
        for (const char *status : {"301", "302", "303", "307", "308"}) {
            const bool keepsMethod = QByteArray(status) >= "307";
            const HttpPeer peer(HttpPeer::reply(
                "3", status + (" Elsewhere\r\nLocation: " + other.address("/there"))));
            DB::open(QString::fromLatin1(peer.address("/api/")).insert(7, u"till:secret@"_s));
            const auto before = other.requests().size();
            QCOMPARE(BLGeneral(u"T"_s).execHTTP(PriceSchema{}), keepsMethod ? 4 : 3);
            QCOMPARE(other.requests().size() - before, keepsMethod ? 1 : 0);
            QCOMPARE(peer.requests().size(), 1);
        }
        QCOMPARE(requestLines(other), QList<QByteArray>(2, "POST /there"));
        QVERIFY(
            other.requests().constLast().endsWith(SchemaReflect::toJSON(PriceSchema{}).toUtf8()));
        QVERIFY(!other.requests().constLast().contains("Authorization")); // another server
    }

    void requestsShareOneConnectionWhileItLasts()
    {
        std::atomic<int> connections = 0;
        const HttpPeer peer([&connections](HttpPeer::Connection &connection) {
            ++connections;
            const QByteArray reply = HttpPeer::reply("7").replace("Connection: close\r\n", "");
            for (int left = 4; connection.send(reply) && --left > 0 && connection.readNext();) { }
        });
        use(peer);
        sendAll();
        QCOMPARE(connections, 1);
        QCOMPARE(BLGeneral(u"T"_s).execHTTP(PriceSchema{}), 7); // the peer has closed it meanwhile
        QCOMPARE(connections, 2);
    }
};

QTEST_GUILESS_MAIN(TestWebService)
#include "tst_webservice.moc"

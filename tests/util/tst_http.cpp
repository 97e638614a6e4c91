// Proves that a request carries exactly the caller's bytes and ends within its limits, whatever the
// server does.

#include "Http.h"
#include "HttpPeer.h"

#include <QBuffer>
#include <QTest>

using namespace std::chrono_literals;
using Connection = HttpPeer::Connection;
using End = HttpReply::End;

namespace
{

/// Short limits, so that a request which does not end fails the test instead of stalling it.
constexpr HttpLimits shortLimits{.time = 1500ms, .bytes = 64 * 1024, .redirects = 2};

void sendEndlessly(Connection &connection, const QByteArray &head, const QByteArray &piece)
{
    connection.send(head);
    while (connection.send(piece)) { }
}

} // namespace

Q_DECLARE_METATYPE(HttpReply::End)
Q_DECLARE_METATYPE(HttpPeer::Answer)

class TestHttp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (const char *variable : {"http_proxy", "https_proxy", "all_proxy", "ALL_PROXY"})
            qunsetenv(variable);
    }

    void sendsTheAddressByteForByte()
    {
        const HttpPeer peer(HttpPeer::reply("hello"));
        const QByteArray path = "/a/../b/./c?x='y'&z=%C3%A9%20+{}|^";
        const HttpReply reply = httpGet({peer.address(path + "#fragment"), {}, shortLimits});
        QVERIFY(reply.succeeded());
        QCOMPARE(reply.body, "hello");
        const QByteArray host = peer.address({}).mid(int(sizeof "http://") - 1);
        QCOMPARE(peer.requests(),
                 QList<QByteArray>{"GET " + path + " HTTP/1.1\r\nHost: " + host
                                   + "\r\nUser-Agent: Toolvane\r\n\r\n"});
    }

    void acceptsOneSlashBehindTheScheme()
    {
        const HttpPeer peer(HttpPeer::reply("hello"));
        const QByteArray address = peer.address("/conf/images/a.png").replace("://", ":/");
        QCOMPARE(httpGet({address, {}, shortLimits}).body, "hello");
        QVERIFY(peer.requests().value(0).startsWith("GET /conf/images/a.png HTTP/1.1\r\n"));
    }

    void postsBodyAndHeadersAndNothingElse()
    {
        const HttpPeer peer(HttpPeer::reply("0"));
        const QByteArray body("{\"a\":\"\0\"}", 9);
        QVERIFY(
            httpPost({peer.address("/t"), {"Content-Type: application/json"}, shortLimits}, body)
                .succeeded());
        QVERIFY(httpPost({peer.address("/t"), {}, shortLimits}, {}).succeeded());
        const QByteArray head =
            "POST /t HTTP/1.1\r\nHost: " + peer.address({}).mid(7) + "\r\nUser-Agent: Toolvane\r\n";
        QCOMPARE(peer.requests().value(0),
                 head + "Content-Type: application/json\r\nContent-Length: 9\r\n\r\n" + body);
        QCOMPARE(peer.requests().value(1), head + "Content-Length: 0\r\n\r\n");
    }

    void refusesOtherAddresses()
    {
        for (const char *address :
             {"", "file:///etc/passwd", "ftp://127.0.0.1/", "127.0.0.1/", "//127.0.0.1/",
              "http:127.0.0.1/", "http://127.0.0.1/a b", "http://127.0.0.1/\r\nX: y",
              "http://127.0.0.1/\xc3\xa9", "http://", "httpx://127.0.0.1/"})
            QVERIFY2(httpGet({address, {}, shortLimits}).end == End::Refused, address);
        const HttpPeer peer(HttpPeer::reply("plain"));
        HttpLimits limits = shortLimits;
        limits.schemes = HttpSchemes::SecureOnly;
        QCOMPARE(httpGet({peer.address(), {}, limits}).end, End::Refused);
        QVERIFY(peer.requests().isEmpty());
    }

    void endsWithinItsLimits_data()
    {
        QTest::addColumn<HttpPeer::Answer>("answer");
        QTest::addColumn<HttpReply::End>("end");
        const auto row = [](const char *name, End end, HttpPeer::Answer answer) {
            QTest::newRow(name) << std::move(answer) << end;
        };
        row("a byte now and then", End::TimedOut, [](Connection &connection) {
            connection.send("HTTP/1.1 200 OK\r\n\r\n");
            while (connection.send("x") && !connection.hasGoneWithin(50ms)) { }
        });
        row("endless body", End::TooLarge, [](Connection &connection) {
            sendEndlessly(connection, "HTTP/1.1 200 OK\r\n\r\n", QByteArray(4096, 'x'));
        });
        row("announced too large", End::TooLarge, [](Connection &connection) {
            connection.send("HTTP/1.1 200 OK\r\nContent-Length: 99999999999\r\n\r\n");
        });
        row("endless headers", End::TooLarge, [](Connection &connection) {
            sendEndlessly(connection, "HTTP/1.1 200 OK\r\n",
                          "X-Y: " + QByteArray(1000, 'x') + "\r\n");
        });
        row("half a body", End::Failed, [](Connection &connection) {
            connection.send("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nhalf");
        });
        row("garbage", End::Refused,
            [](Connection &connection) { connection.send("\x01\x02 no http \xff\r\n\r\n"); });
        row("redirects in circles", End::Refused,
            [](Connection &connection) { connection.send(HttpPeer::redirect("/again")); });
        row("redirects to a file", End::Refused, [](Connection &connection) {
            connection.send(HttpPeer::redirect("file:///etc/passwd"));
        });
    }

    void endsWithinItsLimits()
    {
        QFETCH(HttpPeer::Answer, answer);
        QFETCH(HttpReply::End, end);
        const HttpPeer peer(answer);
        const HttpReply reply = httpGet({peer.address(), {}, shortLimits});
        QCOMPARE(reply.end, end);
        QVERIFY(reply.body.isEmpty());
        QVERIFY(!reply.message.isEmpty());
    }

    void givesTheBodyOfAnErrorStatus()
    {
        const HttpPeer peer(HttpPeer::reply("5", "500 Internal Server Error"));
        const HttpReply reply = httpGet({peer.address(), {}, shortLimits});
        QVERIFY(reply.answered() && !reply.succeeded());
        QCOMPARE(reply.status, 500);
        QCOMPARE(reply.body, "5");
    }

    void followsARedirectAndPutsTheBodyIntoTheTarget()
    {
        const QByteArray body(50'000, 'b');
        const HttpPeer peer([&body](Connection &connection) {
            const bool isFirst = connection.request().startsWith("GET /first ");
            connection.send(isFirst ? HttpPeer::redirect("/second") : HttpPeer::reply(body));
        });
        qint64 received = 0;
        std::optional<qint64> announced;
        HttpRequest request{peer.address("/first"), {}, shortLimits};
        request.progress = [&](qint64 now, std::optional<qint64> all) {
            received = now;
            announced = all;
        };
        QBuffer target;
        QVERIFY(target.open(QIODevice::WriteOnly));
        QVERIFY(httpGet(request, target).succeeded());
        QCOMPARE(target.data(), body);
        QCOMPARE(received, body.size());
        QCOMPARE(announced, body.size());
    }

    void saysThatTheTargetTookNothing()
    {
        const HttpPeer peer(HttpPeer::reply("body"));
        QBuffer target;
        QVERIFY(target.open(QIODevice::ReadOnly));
        QTest::ignoreMessage(QtWarningMsg, "QIODevice::write (QBuffer): ReadOnly device");
        QCOMPARE(httpGet({peer.address(), {}, shortLimits}, target).end, End::NotWritten);
    }

    void endsWhenAskedTo()
    {
        std::stop_source stop;
        const HttpPeer peer([&stop](Connection &connection) {
            connection.send("HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\nx");
            stop.request_stop();
            connection.hasGoneWithin(10s);
        });
        HttpRequest request{peer.address(), {}, HttpLimits{.time = 20s}};
        request.stop = stop.get_token();
        QCOMPARE(httpGet(request).end, End::Cancelled);
    }
};

QTEST_GUILESS_MAIN(TestHttp)
#include "tst_http.moc"

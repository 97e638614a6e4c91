// Proves that a request carries exactly the caller's bytes, ends within its limits whatever the
// server does, and sends nothing to a server without a trusted certificate.

#include "Http.h"
#include "HttpPeer.h"

#include <QBuffer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
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

class TestHttp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sendsTheAddressByteForByte()
    {
        const HttpPeer peer(HttpPeer::reply("hello"));
        const QByteArray path = "/a/../b/./c?x='y'&z=%C3%A9%20+{}|^";
        // One slash after the scheme is enough.
        const QByteArray address = peer.address(path + "#fragment").replace("://", ":/");
        const HttpReply reply = httpGet({address, {}, shortLimits});
        QVERIFY(reply.succeeded());
        QCOMPARE(reply.body, "hello");
        const QByteArray host = peer.address({}).mid(int(sizeof "http://") - 1);
        QCOMPARE(peer.requests(),
                 QList<QByteArray>{"GET " + path + " HTTP/1.1\r\nHost: " + host
                                   + "\r\nUser-Agent: Toolvane\r\n\r\n"});
    }

    void refusesOtherAddresses()
    {
        for (const char *address :
             {"", "file:///etc/passwd", "127.0.0.1/", "http:127.0.0.1/", "http://127.0.0.1/a b",
              "http://127.0.0.1/\r\nX: y", "http://127.0.0.1/\xc3\xa9", "http://"})
            QVERIFY2(httpGet({address, {}, shortLimits}).end == End::Refused, address);
        const HttpPeer peer(HttpPeer::reply("plain"));
        HttpLimits limits = shortLimits;
        limits.schemes = HttpSchemes::SecureOnly;
        QCOMPARE(httpGet({peer.address(), {}, limits}).end, End::Refused);
        QVERIFY(peer.requests().isEmpty());
    }

    void endsWithinItsLimits()
    {
        const std::tuple<const char *, End, HttpPeer::Answer> cases[] = {
            {"a byte now and then", End::TimedOut,
             [](Connection &connection) {
                 connection.send("HTTP/1.1 200 OK\r\n\r\n");
                 while (connection.send("x") && !connection.hasGoneWithin(50ms)) { }
             }},
            {"endless body", End::TooLarge,
             [](Connection &connection) {
                 sendEndlessly(connection, "HTTP/1.1 200 OK\r\n\r\n", QByteArray(4096, 'x'));
             }},
            {"endless headers", End::TooLarge,
             [](Connection &connection) {
                 sendEndlessly(connection, "HTTP/1.1 200 OK\r\n",
                               "X-Y: " + QByteArray(1000, 'x') + "\r\n");
             }},
            {"garbage", End::Garbled,
             [](Connection &connection) { connection.send("\x01\x02 no http \xff\r\n\r\n"); }},
            {"compressed on its way", End::Garbled,
             [](Connection &connection) {
                 connection.send("HTTP/1.1 200 OK\r\ntransfer-encoding: gzip, chunked\r\n\r\n");
             }},
            {"redirects in circles", End::Garbled,
             [](Connection &connection) { connection.send(HttpPeer::redirect("/again")); }},
            {"redirects to a file", End::Refused,
             [](Connection &connection) {
                 connection.send(HttpPeer::redirect("file:///etc/passwd"));
             }},
        };
        for (const auto &[name, end, answer] : cases) {
            const HttpPeer peer(answer);
            const HttpReply reply = httpGet({peer.address(), {}, shortLimits});
            QVERIFY2(reply.end == end, name);
            QVERIFY2(reply.body.isEmpty() && !reply.message.isEmpty(), name);
        }
    }

    void tellsNoAnswerFromABrokenOne()
    {
        const HttpPeer cut(
            [](Connection &connection) { connection.send(HttpPeer::reply("whole").chopped(1)); });
        const HttpReply broken = httpGet({cut.address(), {}, shortLimits});
        QVERIFY(broken.end == End::Failed && broken.isHeard);
        const HttpPeer mute([](Connection &) {});
        const HttpReply none = httpGet({mute.address(), {}, shortLimits});
        QVERIFY(none.end == End::Failed && !none.isHeard);
    }

    // An address of this machine is where a maker tries things out: no proxy sees it.
    void leadsNoAddressOfThisMachineOutside()
    {
        const HttpPeer proxy(HttpPeer::reply("outside"));
        const HttpPeer peer(HttpPeer::reply("inside"));
        qputenv("http_proxy", proxy.address());
        for (const char *hosts : {"", "elsewhere.example", "*"}) {
            qputenv("no_proxy", hosts);
            const HttpReply reply = httpGet({peer.address(), {}, shortLimits});
            QCOMPARE(reply.body, "inside");
        }
        qunsetenv("no_proxy");
        const HttpReply other = httpGet({"http://elsewhere.example/", {}, shortLimits});
        qunsetenv("http_proxy");
        QCOMPARE(other.body, "outside");
        QCOMPARE(proxy.requests().size(), 1);
    }

    void doesNotWaitForASilentServer()
    {
        const HttpPeer peer([](Connection &connection) {
            connection.send("HTTP/1.1 200 OK\r\n\r\nbegin");
            connection.hasGoneWithin(30s); // whoever waits for that has an answer
        });
        const HttpLimits limits{.time = 1h, .silenceTimeout = 1s};
        QCOMPARE(httpGet({peer.address(), {}, limits}).end, End::TimedOut);
    }

    void followsARedirectAndPutsTheBodyIntoTheTarget()
    {
        const QByteArray body(50'000, 'b');
        const HttpPeer peer([&body](Connection &connection) {
            const bool isFirst = connection.request().startsWith("GET /first ");
            connection.send(isFirst ? HttpPeer::redirect("/second") : HttpPeer::reply(body));
        });
        QBuffer target;
        QVERIFY(target.open(QIODevice::WriteOnly));
        QVERIFY(httpGet({peer.address("/first"), {}, shortLimits}, target).succeeded());
        QCOMPARE(target.data(), body);
    }

    void refusesACertificateThatIsNotTrusted()
    {
        const QTemporaryDir folder;
        const QString key = folder.filePath(u"key.pem"_s);
        const QString certificate = folder.filePath(u"certificate.pem"_s);
        const QString request =
            u"req -x509 -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -nodes -keyout %1 -out %2 "
            "-subj /CN=127.0.0.1 -addext subjectAltName=IP:127.0.0.1"_s.arg(key, certificate);
        QCOMPARE(QProcess::execute(u"openssl"_s, QProcess::splitCommand(request)), 0);
        QProcess server;
        server.startCommand(
            u"openssl s_server -www -accept 127.0.0.1:0 -cert %1 -key %2"_s.arg(certificate, key));
        QByteArray output;
        while (!output.contains("ACCEPT ") || !output.endsWith('\n')) {
            QVERIFY(server.waitForReadyRead());
            output += server.readAllStandardOutput();
        }
        const QByteArray host = output.mid(output.indexOf("ACCEPT ") + 7).trimmed();
        const HttpReply reply = httpGet({"https://" + host + "/", {}, {.time = 5s}});
        server.kill();
        server.waitForFinished();
        QCOMPARE(reply.end, HttpReply::End::Untrusted);
        QVERIFY2(reply.message.contains("certificate"), reply.message.constData());
        QVERIFY(reply.body.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestHttp)
#include "tst_http.moc"

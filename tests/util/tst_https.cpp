// Proves that a server whose certificate nobody vouches for gets no request.

#include "Http.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class TestHttps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusesACertificateOfNobodys()
    {
        const QTemporaryDir folder;
        const QString key = folder.filePath(u"key.pem"_s);
        const QString certificate = folder.filePath(u"certificate.pem"_s);
        QCOMPARE(QProcess::execute(u"openssl"_s,
                                   {u"req"_s, u"-x509"_s, u"-newkey"_s, u"ec"_s, u"-pkeyopt"_s,
                                    u"ec_paramgen_curve:prime256v1"_s, u"-nodes"_s, u"-keyout"_s,
                                    key, u"-out"_s, certificate, u"-subj"_s, u"/CN=127.0.0.1"_s,
                                    u"-addext"_s, u"subjectAltName=IP:127.0.0.1"_s}),
                 0);
        QProcess server;
        server.start(u"openssl"_s,
                     {u"s_server"_s, u"-www"_s, u"-accept"_s, u"127.0.0.1:0"_s, u"-cert"_s,
                      certificate, u"-key"_s, key});
        QByteArray output;
        while (!output.contains("ACCEPT ") || !output.endsWith('\n')) {
            QVERIFY(server.waitForReadyRead());
            output += server.readAllStandardOutput();
        }
        const QByteArray host = output.mid(output.indexOf("ACCEPT ") + 7).trimmed();
        const HttpReply reply = httpGet({"https://" + host + "/", {}, {.time = 5s}});
        server.kill();
        server.waitForFinished();
        QCOMPARE(reply.end, HttpReply::End::Failed);
        QVERIFY2(reply.message.contains("certificate"), reply.message.constData());
        QVERIFY(reply.body.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestHttps)
#include "tst_https.moc"

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
        QCOMPARE(reply.end, HttpReply::End::Failed);
        QVERIFY2(reply.message.contains("certificate"), reply.message.constData());
        QVERIFY(reply.body.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestHttps)
#include "tst_https.moc"

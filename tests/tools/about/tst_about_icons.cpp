// Proves where the page takes its icons from, what it keeps of them, and that waiting for one keeps
// no other away.

#include "AboutPage.h"
#include "NamedImage.h"
#include "Pictures.h"

#include <QElapsedTimer>

using namespace Qt::StringLiterals;

class TestAboutIcons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::setOrganizationName(u"Toolvane"_s);
        QCoreApplication::setApplicationName(u"AboutIconsTest"_s);
    }
    void init()
    {
        m_about = std::make_unique<AboutPage>();
        for (const QString &file : AboutPage::files())
            QFile::remove(AboutPage::documents().filePath(file));
    }
    void cleanup() { m_about.reset(); }

    void takesIconsFromTheProgramThenTheFolderThenTheServer();
    void asksForEachMissingIconOnce();
    void showsKeptIconsWhileTheServerIsSilent();

private:
    void serve(const QByteArray &list) { m_about->server.set("/conf/Apps.plist", list); }

    std::unique_ptr<AboutPage> m_about;
};

void TestAboutIcons::takesIconsFromTheProgramThenTheFolderThenTheServer()
{
    const QByteArray red = Pictures::png(48, 48);
    const QByteArray large = Pictures::png(96, 96, Qt::blue);
    AboutPage::write(u"kept"_s, Pictures::png(64, 64, Qt::green));
    m_about->server.set("/conf/images/crane.png", red);
    m_about->server.set("/conf/images/crane@2x.png", large);
    serve(AppsPlist::list(AppsPlist::app("zip", "Packer", "") + AppsPlist::app("crane", "Crane", "")
                          + AppsPlist::app("kept", "Kept", "")));
    m_about->open();
    QTRY_VERIFY(!m_about->icon(1).isNull() && !m_about->icon(2).isNull());
    QVERIFY(hasNamedImage(u"zip"_s) && !m_about->icon(0).isNull());
    const QColor shown = m_about->icon(1).pixmap(32, 32).toImage().pixelColor(16, 16);
    QCOMPARE(shown, QColor(Qt::red)); // the larger one is kept, but never shown
    QCOMPARE(AboutPage::read(u"crane"_s), red);
    QTRY_COMPARE(AboutPage::read(u"crane@2x"_s), large);
    m_about->awaitRequest("/conf/images/kept@2x.png");
    QCOMPARE(AboutPage::files(),
             (QStringList{u"Apps.plist"_s, u"crane"_s, u"crane@2x"_s, u"kept"_s}));
    QList<QByteArray> asked = m_about->server.paths();
    QCOMPARE(asked.takeFirst(), "/conf/Apps.plist");
    QVERIFY(asked.indexOf("/conf/images/crane.png") < asked.indexOf("/conf/images/crane@2x.png"));
    std::sort(asked.begin(), asked.end());
    QCOMPARE(asked,
             (QList<QByteArray>{"/conf/images/crane.png", "/conf/images/crane@2x.png",
                                "/conf/images/kept@2x.png"}));
}

void TestAboutIcons::asksForEachMissingIconOnce()
{
    const MakersServer &server = m_about->server;
    IconCache icons(AboutPage::documents().path());
    icons.setServer(QString::fromLatin1(server.address("/conf/")));
    QVERIFY(icons.icon(u"none"_s).isNull());
    m_about->awaitRequest("/conf/images/none@2x.png");
    QCoreApplication::processEvents();
    for (int repaint = 0; repaint < 3; ++repaint)
        QVERIFY(icons.icon(u"none"_s).isNull());
    QVERIFY(icons.icon(u"last"_s).isNull());
    m_about->awaitRequest("/conf/images/last@2x.png");
    QCOMPARE(server.paths().count("/conf/images/none.png"), 1);
    icons.setServer(QString::fromLatin1(server.address("/conf/"))); // a new load asks anew
    QVERIFY(icons.icon(u"none"_s).isNull());
    QTRY_COMPARE(server.paths().count("/conf/images/none.png"), 2);
}

void TestAboutIcons::showsKeptIconsWhileTheServerIsSilent()
{
    QByteArray apps;
    for (const char *name : {"a", "b", "c", "d", "e", "f", "g", "h"}) {
        m_about->server.set(QByteArray("/conf/images/") + name + ".png",
                            MakersServer::silent("HTTP/1.1 "));
        apps += AppsPlist::app(name, name, "");
    }
    AboutPage::write(u"kept"_s, Pictures::png(8, 8));
    serve(AppsPlist::list(apps + AppsPlist::app("kept", "Kept", "")));
    m_about->open();
    QTRY_VERIFY(!m_about->icon(8).isNull());
    QElapsedTimer timer;
    timer.start();
    m_about->page.reset(); // breaks off what is still asked for
    QVERIFY(timer.elapsed() < 5000);
}

QTEST_MAIN(TestAboutIcons)
#include "tst_about_icons.moc"

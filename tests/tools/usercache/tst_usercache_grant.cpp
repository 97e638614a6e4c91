// Proves how the grant is given, refused, withdrawn and restored, and that each alert comes up in
// its situation and in no other.

#include "NamedImage.h"
#include "ShownPage.h"

#include <QToolButton>

using namespace Qt::StringLiterals;

namespace
{

bool showsImage(const ShownPage &shown, const QString &name)
{
    auto *button = shown.find<QToolButton>("authorizeStatusButton");
    const QSize size(32, 32);
    return button->icon().pixmap(size).toImage() == namedImage(name).pixmap(size).toImage();
}

QString shownFolder(const ShownPage &shown)
{
    return shown.find<QLineEdit>("userHomeField")->text();
}

/// The bookmark of a folder that was moved away, with another one in its place.
QByteArray staleBookmark(const QByteArray &folder)
{
    const QUrl url = QUrl::fromLocalFile(QFile::decodeName(folder));
    const QByteArray bookmark = MiscTool::bookmarkForURL(url).value_or(QByteArray());
    QFile::rename(QFile::decodeName(folder), QFile::decodeName(folder + ".away"));
    SampleTree::makeFolder(folder);
    return bookmark;
}

} // namespace

class GrantTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestHome::reset();
        TestHome::makeFile("Logs/a", 1536);
        m_boxes = std::make_unique<MessageBoxes>();
    }

    void withoutGrantNothingRuns()
    {
        ShownPage shown;
        QVERIFY(showsImage(shown, u"unauthorized"_s));
        QVERIFY(!showsImage(shown, u"authorized"_s));
        QCOMPARE(shownFolder(shown), QString());
        shown.tick("logsCheckBox");
        for (const char *button : {"checkButton", "cleanButton"}) {
            m_boxes->whileShown = [&] { QVERIFY(shown.isIdle() && shown.jobs.isEmpty()); };
            QVERIFY(shown.press(button));
            QVERIFY(shown.isIdle() && shown.jobs.isEmpty());
        }
        QCOMPARE(m_boxes->texts, QStringList(2, u"Not Authorized Error"_s));
        QCOMPARE(m_boxes->informativeTexts, QStringList(2, u"Please authorize first"_s));
        QCOMPARE(shown.title("logsCheckBox"), u"Logs"_s);
        QVERIFY(TestHome::exists("Logs/a"));
    }

    void homeIsGrantedForGood()
    {
        {
            ShownPage shown;
            QVERIFY(shown.press("authorizeButton"));
            QVERIFY(shown.chooser());
            QCOMPARE(shown.chooser()->fileMode(), QFileDialog::Directory);
            QVERIFY(shown.chooser()->testOption(QFileDialog::ShowDirsOnly));
            QCOMPARE(shown.chooser()->directory().path(), MiscTool::getUserHome());
            QVERIFY(shown.answerChooser(MiscTool::getUserHome()));
            QTRY_VERIFY(showsImage(shown, u"authorized"_s));
            QCOMPARE(shownFolder(shown), MiscTool::getUserHome());
            // On the disk at once, not when the program ends.
            QFile settings(QSettings().fileName());
            QVERIFY(settings.open(QIODevice::ReadOnly));
            QVERIFY(settings.readAll().contains("AuthorizedLocation="));
        }
        ShownPage next;
        QVERIFY(showsImage(next, u"authorized"_s));
        QCOMPARE(shownFolder(next), MiscTool::getUserHome());
        QVERIFY(next.pressAndWait("checkButton"));
        QCOMPARE(m_boxes->texts, QStringList());
    }

    void wrongFolder_data()
    {
        const QString home = MiscTool::getUserHome();
        QTest::addColumn<QString>("folder");
        QTest::newRow("a folder inside") << home + u"/Logs"_s;
        QTest::newRow("the folder around it") << QFileInfo(home).path();
        QTest::newRow("the root") << u"/"_s;
        QTest::newRow("home by another name") << home + u"/Link"_s;
    }
    void wrongFolder()
    {
        QFETCH(QString, folder);
        SampleTree::makeLink(TestHome::path() + "/Link", TestHome::path());
        TestHome::grant();
        ShownPage shown;
        QVERIFY(shown.authorize(folder));
        QCOMPARE(m_boxes->texts, QStringList(u"Wrong Authorized Location"_s));
        QCOMPARE(m_boxes->informativeTexts,
                 QStringList(u"Please authorize to "_s + MiscTool::getUserHome()));
        QVERIFY(shown.press("checkButton"));
        QCOMPARE(m_boxes->texts.last(), u"Not Authorized Error"_s);
        QVERIFY(shown.authorize(MiscTool::getUserHome()));
        QVERIFY(shown.pressAndWait("checkButton"));
        QCOMPARE(m_boxes->texts.size(), 2);
    }

    // The image and what is stored stay as they were.
    void cancelWithdrawsUntilTheNextStart()
    {
        TestHome::grant();
        ShownPage shown;
        QVERIFY(shown.press("authorizeButton"));
        QTest::keyClick(shown.chooser(), Qt::Key_Escape);
        QCOMPARE(m_boxes->texts, QStringList(u"Authorization Failed"_s));
        QCOMPARE(m_boxes->informativeTexts, QStringList(u"Please authorize again"_s));
        QVERIFY(showsImage(shown, u"authorized"_s));
        QCOMPARE(shownFolder(shown), MiscTool::getUserHome());
        QVERIFY(shown.press("cleanButton"));
        QCOMPARE(m_boxes->texts.last(), u"Not Authorized Error"_s);

        ShownPage next;
        QVERIFY(next.pressAndWait("checkButton"));
        QCOMPARE(m_boxes->texts.size(), 2);
    }

    void staleGrantCountsAsHeld()
    {
        const QByteArray folder = SampleTree::makeRoot() + "/folder";
        SampleTree::makeFile(folder + "/Logs/b", QByteArray(2048, 'x'));
        StoredGrant::store(staleBookmark(folder));
        ShownPage shown;
        QVERIFY(showsImage(shown, u"authorized"_s));
        QCOMPARE(shownFolder(shown), QString());
        shown.tick("logsCheckBox");
        QVERIFY(shown.pressAndWait("checkButton"));
        QCOMPARE(shown.title("logsCheckBox"), u"Logs"_s);

        // Once the folder is back, so is the grant: each run tries it again.
        QVERIFY(QDir().rmdir(QFile::decodeName(folder)));
        QVERIFY(QFile::rename(QFile::decodeName(folder + ".away"), QFile::decodeName(folder)));
        QVERIFY(shown.pressAndWait("checkButton"));
        QCOMPARE(shown.title("logsCheckBox"), u"Logs2.0 KB"_s);
        // From then on the page has its folder, whatever happens to the bookmark.
        StoredGrant::store("no bookmark");
        QVERIFY(shown.pressAndWait("checkButton"));
        QCOMPARE(shown.title("logsCheckBox"), u"Logs2.0 KB"_s);
        QCOMPARE(m_boxes->texts, QStringList());
    }

private:
    std::unique_ptr<MessageBoxes> m_boxes;
};

QTEST_MAIN(GrantTest)
#include "tst_usercache_grant.moc"

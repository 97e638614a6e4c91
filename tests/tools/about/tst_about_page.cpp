// Proves that the page shows the maker's list and icons, opens what is chosen, keeps both for when
// the server cannot be reached, and shows no message then.

#include "AboutPageFixture.h"
#include "Application.h"
#include "ContainerBox.h"
#include "HoverTableAppDelegate.h"
#include "HoverTableView.h"

#include <QAction>
#include <QElapsedTimer>
#include <QLabel>
#include <QMenuBar>
#include <QToolBar>

using namespace Qt::StringLiterals;
using namespace PageControls;

namespace
{

const QByteArray social = AppsPlist::string("Web", "https://maker.example/")
    + AppsPlist::string("Email", "hello@maker.example")
    + AppsPlist::string("Twitter", "https://t.example/")
    + AppsPlist::string("Facebook", "https://f.example/")
    + AppsPlist::string("Google+", "https://g.example/");

QByteArray twoApps()
{
    return AppsPlist::app("zip", "Packer", "https://maker.example/packer")
        + AppsPlist::app("crane", "Crane", "https://maker.example/crane");
}

} // namespace

class TestAboutPage : public AboutPageFixture
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Application::prepare(); }

    // The window makes the page, and the page loads, on request only and once.
    void opensOnRequestOnly()
    {
        serve(AppsPlist::list(AppsPlist::app("zip", "A")));
        Application application;
        application.start();
        MainWindow &window = application.window();
        application.tools().selectTool(3);
        QCoreApplication::processEvents();
        QVERIFY(m_server->paths().isEmpty() && !window.findChild<AboutViewController *>());

        auto *item = window.findChild<QAction *>(u"aboutItem"_s);
        QVERIFY(window.findChild<QToolBar *>()->actions().contains(item));
        QVERIFY(window.findChild<QMenu *>(u"helpMenu"_s)->actions().contains(item));
        item->trigger();
        auto *page = window.findChild<AboutViewController *>();
        QCOMPARE(application.delegate().container->contentView(), page);
        QVERIFY(!window.tableView().selectionModel()->hasSelection());
        QTRY_COMPARE(page->data.size(), 1);

        application.tools().selectTool(3); // the same tool once more
        item->trigger();
        QCOMPARE(application.delegate().container->contentView(), page);
        QCOMPARE(m_server->paths(), QList<QByteArray>{"/conf/Apps.plist"}); // one page, loaded once
    }

    void keepsTheListAndIsEmptyAndQuietWithoutOne()
    {
        const char *buttons[] = {"webButton", "emailButton", "twitterButton", "facebookButton",
                                 "googlePlusButton"};
        open();
        QCOMPARE(rows(), 0);
        QVERIFY(table().isVisible() && !QApplication::activeModalWidget());
        QVERIFY(table().viewport()->findChild<QLabel *>()->isVisible()); // which says so
        for (const char *button : buttons) // they would open nothing
            QVERIFY2(!control<QPushButton>(*m_page, button).isEnabled(), button);
        const QByteArray list = AppsPlist::list(twoApps(), social);
        serve(list);
        open();
        for (const char *button : buttons)
            press(*m_page, button);
        QCOMPARE(m_opened,
                 (QStringList{u"https://maker.example/"_s, u"mailto:hello@maker.example"_s,
                              u"https://t.example/"_s, u"https://f.example/"_s,
                              u"https://g.example/"_s}));
        QSettings().remove(u"Addresses/Configuration"_s);
        open();
        QVERIFY(!table().viewport()->findChild<QLabel *>()->isVisible());
        QVERIFY(!control<QWidget>(*m_page, "progressIndicator").isVisible());
        QCOMPARE(rows(), 2);
        QCOMPARE(text(1, AppsTable::NameColumn), u"Crane"_s);
        QCOMPARE(text(1, AppsTable::DescColumn), u"what Crane does"_s);
        QCOMPARE(text(1, AppsTable::TypeColumn), u"Tool"_s);
        QCOMPARE(read("Apps.plist"), list);
    }

    void loadsAgain()
    {
        open();
        QCOMPARE(rows(), 0);
        serve(AppsPlist::list(twoApps(), social));
        press(*m_page, "reloadButton");
        QTRY_COMPARE(rows(), 2);
        press(*m_page, "webButton");
        QCOMPARE(m_opened, QStringList{u"https://maker.example/"_s});
        m_server->set("/conf/Apps.plist", MakersServer::silent("HTTP/1.1 200 OK\r\n"));
        press(*m_page, "reloadButton");
        QTRY_VERIFY(control<QWidget>(*m_page, "progressIndicator").isVisible());
        press(*m_page, "reloadButton"); // changes nothing while it loads
        QVERIFY(control<QWidget>(*m_page, "progressIndicator").isVisible());
    }

    void opensTheSelectedRow()
    {
        serve(AppsPlist::list(twoApps()));
        open();
        const auto middle = [this](const QModelIndex &at) {
            return table().visualRect(at).center();
        };
        m_page->goAction();
        QCOMPARE(m_opened, QStringList());
        QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, middle(cell(0, 1)));
        QCOMPARE(m_opened, QStringList{u"https://maker.example/packer"_s});
        table().setFocus();
        QTest::keyClick(&table(), Qt::Key_Down);
        QCOMPARE(m_opened.value(1), u"https://maker.example/crane"_s);
        QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, middle(cell(1, 2)));
        QCOMPARE(m_opened.size(), 2); // it was selected already
        QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, middle(cell(1, 2)));
        QCOMPARE(m_opened.value(2), u"https://maker.example/crane"_s);
    }

    void opensOnlyWebAndMailAddresses()
    {
        QByteArray apps;
        for (const char *address :
             {"file:///etc/passwd", "FILE:///etc/passwd", "/etc/passwd", "javascript:alert(1)",
              "x-other://a", "https:///etc", "mailto:", "//a.example", "http://[bad/",
              "http://a.example/", "mailto:a@b.example?attach=/etc/passwd",
              "mailto:a@b.example?attach=/etc/passwd&amp;subject=What%20next%3F&amp;body=x",
              "mailto:a@b.example?subject=one%0d%0abcc:c@d.example"})
            apps += AppsPlist::app("", "A", address);
        const QByteArray longest = "http://a.example/" + QByteArray(2048 - 17, 'x');
        apps += AppsPlist::app("", "A", longest) + AppsPlist::app("", "A", longest + 'x');
        serve(AppsPlist::list(apps, AppsPlist::string("Twitter", "file:///etc/passwd")));
        open();
        QVERIFY(!control<QPushButton>(*m_page, "twitterButton").isEnabled());
        for (int row = 0; row < rows(); ++row)
            table().setCurrentIndex(cell(row, 1));
        QCOMPARE(m_opened,
                 (QStringList{u"http://a.example/"_s, u"mailto:a@b.example"_s,
                              u"mailto:a@b.example?subject=What next%3F"_s, u"mailto:a@b.example"_s,
                              QString::fromLatin1(longest)}));
    }

    // A row says what it opens, as it would be opened, before it does.
    void showsTheAddressOfARow()
    {
        serve(AppsPlist::list(AppsPlist::app("zip", "A", "https://m\xc3\xa4ker.example/&lt;b&gt;")
                              + AppsPlist::app("", "B", "file:///etc/passwd")
                              + AppsPlist::app("", "C", "https://h/" + QByteArray(2000, 'x'))));
        open();
        const auto tip = [this](int row, int column) {
            return cell(row, column).data(Qt::ToolTipRole).toString().remove(QChar(0x200b));
        };
        for (const int column : {AppsTable::IconColumn, AppsTable::NameColumn})
            QVERIFY2(tip(0, column).contains(u"<p>https://xn--mker-loa.example/%3Cb%3E</p>"_s),
                     qPrintable(tip(0, column)));
        QVERIFY(tip(1, AppsTable::NameColumn) == u"<p>B</p>"_s);
        QVERIFY(tip(2, AppsTable::NameColumn).size() < 600);
    }

    void showsPlainText()
    {
        serve(AppsPlist::list(
            "<dict>" + AppsPlist::string("Name", "&lt;b&gt;A&lt;/b&gt;\nline")
            + AppsPlist::string("Desc", QByteArray(200'000, 'x'))
            + "<key>Type</key><integer>3</integer></dict><string>no entry</string>"));
        open();
        QCOMPARE(text(0, AppsTable::NameColumn), u"<b>A</b> line"_s);
        const QString tip = cell(0, AppsTable::NameColumn).data(Qt::ToolTipRole).toString();
        QVERIFY(tip.contains(u"&lt;b&gt;A"_s));
        const QVariant longTip = cell(0, AppsTable::DescColumn).data(Qt::ToolTipRole);
        QVERIFY(Qt::mightBeRichText(longTip.toString())); // else it would be one endless line
        QCOMPARE(cell(0, AppsTable::TypeColumn).data(Qt::ToolTipRole).toString(), QString());
        QVERIFY(text(0, AppsTable::DescColumn).size() <= 500);
        QCOMPARE(text(0, AppsTable::TypeColumn), QString());
        QCOMPARE(text(1, AppsTable::NameColumn), QString());
        table().setCurrentIndex(cell(1, 1));
        QCOMPARE(m_opened, QStringList());
    }

    void goesAwayWhileLoading()
    {
        m_server->set("/conf/Apps.plist", MakersServer::silent("HTTP/1.1 200 OK\r\n"));
        auto page = std::make_unique<AboutViewController>();
        page->show();
        awaitRequest("/conf/Apps.plist");
        QTRY_VERIFY(control<QWidget>(*page, "progressIndicator").isVisible());
        QVERIFY(!control<QWidget>(*page, "table").isVisible());
        page.reset();

        QByteArray apps;
        for (const char *name : {"s1", "s2", "s3", "s4", "s5", "s6", "s7", "s8"}) {
            m_server->set(QByteArray("/conf/images/") + name + ".png",
                          MakersServer::silent("HTTP/1.1 "));
            apps += AppsPlist::app(name, "Slow");
        }
        write("kept", picture(8, 8));
        serve(AppsPlist::list(apps + AppsPlist::app("", "A").repeated(100)
                              + AppsPlist::app("kept", "Far below")));
        const qsizetype before = m_server->paths().size();
        open();
        QTRY_COMPARE(m_server->paths().size(), before + 2); // it serves one at a time
        QTRY_VERIFY(!icon(rows() - 1).isNull()); // does not wait for the others
        QElapsedTimer timer;
        timer.start();
        m_page.reset(); // breaks off the requests
        QVERIFY(timer.elapsed() < 5000);
    }

    void takesIconsFromTheProgramThenTheFolderThenTheServer()
    {
        const QByteArray red = picture(48, 48);
        const QByteArray large = picture(96, 96, Qt::blue);
        write("kept", picture(64, 64, Qt::green));
        m_server->set("/conf/images/crane.png", red);
        m_server->set("/conf/images/crane@2x.png", large);
        serve(AppsPlist::list(AppsPlist::app("zip", "Packer") + AppsPlist::app("crane", "Crane")
                              + AppsPlist::app("kept", "Kept") + AppsPlist::app("none", "None")
                              + AppsPlist::app("", "A").repeated(100)
                              + AppsPlist::app("late", "Far below")));
        open();
        QTRY_VERIFY(!icon(1).isNull() && !icon(2).isNull());
        QVERIFY(!icon(0).isNull());
        const QColor shown = icon(1).pixmap(32, 32).toImage().pixelColor(16, 16);
        QCOMPARE(shown, QColor(Qt::red)); // the larger one is kept, but never shown
        QCOMPARE(read("crane"), red);
        QTRY_COMPARE(read("crane@2x"), large);
        awaitRequest("/conf/images/kept@2x.png");
        awaitRequest("/conf/images/none@2x.png");
        QCoreApplication::processEvents(); // by now it is known that the server has none
        QVERIFY(icon(3).isNull()); // and is not requested again, else it would be before the next
        QVERIFY(icon(rows() - 1).isNull());
        awaitRequest("/conf/images/late@2x.png");
        QCOMPARE(files(), (QStringList{u"Apps.plist"_s, u"crane"_s, u"crane@2x"_s, u"kept"_s}));
        QList<QByteArray> requested = m_server->paths();
        std::sort(requested.begin(), requested.end());
        QCOMPARE(requested,
                 (QList<QByteArray>{"/conf/Apps.plist", "/conf/images/crane.png",
                                    "/conf/images/crane@2x.png", "/conf/images/kept@2x.png",
                                    "/conf/images/late.png", "/conf/images/late@2x.png",
                                    "/conf/images/none.png", "/conf/images/none@2x.png"}));
    }
};

QTEST_MAIN(TestAboutPage)
#include "tst_about_page.moc"

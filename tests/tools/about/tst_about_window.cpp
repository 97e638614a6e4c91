// Proves that About opens in the main window's page area, is made and loads only then, and takes
// the sidebar's selection away.

#include "AboutPageTest.h"
#include "Application.h"
#include "ContainerBox.h"
#include "HoverTableAppDelegate.h"
#include "HoverTableView.h"

#include <QAction>
#include <QMenuBar>
#include <QToolBar>

using namespace Qt::StringLiterals;

class TestAboutWindow : public AboutPageTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Application::prepare(); }
    void opensOnRequestOnly()
    {
        serve(AppsPlist::list(AppsPlist::app("zip", "A")));
        Application application;
        application.start();
        MainWindow &window = application.window();
        application.tools().selectTool(3);
        QTest::qWait(50);
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
        QCOMPARE(application.delegate().container->contentView(), application.tools().viewItem(3));
        item->trigger();
        QCOMPARE(application.delegate().container->contentView(), page);
        QCOMPARE(m_server->paths(), QList<QByteArray>{"/conf/Apps.plist"}); // one page, loaded once
    }
};

QTEST_MAIN(TestAboutWindow)
#include "tst_about_window.moc"

// Proves that the page shows the maker's list, opens what is chosen, keeps the list for bad times
// and then says nothing.

#include "AboutPage.h"

#include <QGroupBox>

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

/// Notes what becomes of the table and the progress, in order.
class Steps : public QObject
{
public:
    Steps(QTableView &table, QWidget &progress) : m_table(table)
    {
        table.installEventFilter(this);
        progress.installEventFilter(this);
        connect(table.model(), &QAbstractItemModel::modelReset, this,
                [this] { list += u"reloaded"_s; });
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const QString name = watched == &m_table ? u"table"_s : u"progress"_s;
        if (event->type() == QEvent::HideToParent)
            list += name + u" hidden"_s;
        else if (event->type() == QEvent::ShowToParent)
            list += name + u" shown"_s;
        return false;
    }

    QStringList list;

private:
    QTableView &m_table;
};

} // namespace

class TestAboutPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::setOrganizationName(u"Toolvane"_s);
        QCoreApplication::setApplicationName(u"AboutTest"_s);
    }
    void init()
    {
        m_about = std::make_unique<AboutPage>();
        for (const QString &file : AboutPage::files())
            QFile::remove(AboutPage::documents().filePath(file));
    }
    void cleanup() { m_about.reset(); }

    void looksUpItsTexts();
    void showsThatItLoads();
    void listsWhatTheServerSays();
    void keepsTheListForBadTimes();
    void isEmptyAndQuietWithoutServerAndList();
    void opensTheSelectedRow();
    void opensTheSocialAddresses();
    void opensOnlyWebAndMailAddresses_data();
    void opensOnlyWebAndMailAddresses();
    void showsPlainText();
    void goesAwayWhileLoading();

private:
    void serve(const QByteArray &list) { m_about->server.set("/conf/Apps.plist", list); }

    std::unique_ptr<AboutPage> m_about;
};

void TestAboutPage::looksUpItsTexts()
{
    const MarkedTexts texts;
    m_about->open();
    const QWidget &page = *m_about->page;
    QCOMPARE(control<QGroupBox>(page, "appsBox").title(), u"[Apps]"_s);
    QCOMPARE(control<QGroupBox>(page, "socialBox").title(), u"[Social]"_s);
    QCOMPARE(control<QPushButton>(page, "webButton").toolTip(), u"[Web]"_s);
    QCOMPARE(control<QPushButton>(page, "emailButton").toolTip(), u"[Email]"_s);
    QStringList titles;
    for (int column = 0; column < 4; ++column)
        titles += m_about->table().model()->headerData(column, Qt::Horizontal).toString();
    QCOMPARE(titles, (QStringList{u"[Icon]"_s, u"[Name]"_s, u"[Desc]"_s, u"[Type]"_s}));
}

void TestAboutPage::showsThatItLoads()
{
    serve(AppsPlist::list(twoApps()));
    AboutViewController page;
    auto &table = control<QTableView>(page, "table");
    auto &progress = control<QWidget>(page, "progressIndicator");
    page.show();
    Steps steps(table, progress); // the load's first step is yet to be delivered
    QTRY_COMPARE(steps.list,
                 (QStringList{u"table hidden"_s, u"progress shown"_s, u"reloaded"_s,
                              u"table shown"_s, u"progress hidden"_s}));
}

void TestAboutPage::listsWhatTheServerSays()
{
    serve(AppsPlist::list(twoApps(), social));
    m_about->open();
    QVERIFY(m_about->table().isVisible());
    QCOMPARE(m_about->table().model()->rowCount(), 2);
    QCOMPARE(m_about->text(1, AppsTable::NameColumn), u"Crane"_s);
    QCOMPARE(m_about->text(1, AppsTable::DescColumn), u"what Crane does"_s);
    QCOMPARE(m_about->text(1, AppsTable::TypeColumn), u"Tool"_s);
    QCOMPARE(m_about->page->data.size(), 2);
    QCOMPARE(m_about->page->socialDict.size(), 5);
    QCOMPARE(m_about->page->confDict.keys(), (QStringList{u"Apps"_s, u"Social"_s}));
    QCOMPARE(AboutPage::read(u"Apps.plist"_s), AppsPlist::list(twoApps(), social));
}

void TestAboutPage::keepsTheListForBadTimes()
{
    serve(AppsPlist::list(twoApps()));
    m_about->open();
    serve("<plist><array/></plist>"); // no dictionary is no list
    m_about->open();
    QCOMPARE(m_about->table().model()->rowCount(), 2);
    QSettings().remove(u"Addresses/Configuration"_s);
    m_about->open();
    QCOMPARE(m_about->table().model()->rowCount(), 2);
    QCOMPARE(AboutPage::read(u"Apps.plist"_s), AppsPlist::list(twoApps()));
    AboutPage again;
    again.server.set("/conf/Apps.plist", AppsPlist::list(""));
    again.open();
    QCOMPARE(again.table().model()->rowCount(), 0);
    QCOMPARE(AboutPage::read(u"Apps.plist"_s), AppsPlist::list(""));
}

void TestAboutPage::isEmptyAndQuietWithoutServerAndList()
{
    m_about->open();
    QCOMPARE(m_about->table().model()->rowCount(), 0);
    QVERIFY(m_about->table().isVisible());
    QVERIFY(!QApplication::activeModalWidget());
    press(*m_about->page, "webButton");
    press(*m_about->page, "emailButton");
    QCOMPARE(m_about->opened, QStringList());
    QCOMPARE(AboutPage::files(), QStringList());
}

void TestAboutPage::opensTheSelectedRow()
{
    serve(AppsPlist::list(twoApps()));
    m_about->open();
    QTableView &table = m_about->table();
    const auto middle = [&table](const QModelIndex &cell) {
        return table.visualRect(cell).center();
    };
    m_about->page->goAction();
    QCOMPARE(m_about->opened, QStringList());
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, middle(m_about->cell(0, 1)));
    QCOMPARE(m_about->opened, QStringList{u"https://maker.example/packer"_s});
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_Down);
    QCOMPARE(m_about->opened.value(1), u"https://maker.example/crane"_s);
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, middle(m_about->cell(1, 2)));
    QCOMPARE(m_about->opened.size(), 2); // it was selected already
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, middle(m_about->cell(1, 2)));
    QCOMPARE(m_about->opened.value(2), u"https://maker.example/crane"_s);
}

void TestAboutPage::opensTheSocialAddresses()
{
    serve(AppsPlist::list("", social));
    m_about->open();
    for (const char *button :
         {"webButton", "emailButton", "twitterButton", "facebookButton", "googlePlusButton"})
        press(*m_about->page, button);
    QCOMPARE(
        m_about->opened,
        (QStringList{u"https://maker.example/"_s, u"mailto:hello@maker.example"_s,
                     u"https://t.example/"_s, u"https://f.example/"_s, u"https://g.example/"_s}));
}

void TestAboutPage::opensOnlyWebAndMailAddresses_data()
{
    QTest::addColumn<QString>("opened");
    QTest::newRow("http://a.example/") << u"http://a.example/"_s;
    QTest::newRow("HTTPS://a.example/") << u"https://a.example/"_s;
    QTest::newRow("mailto:a@b.example") << u"mailto:a@b.example"_s;
    for (const char *address :
         {"file:///etc/passwd", "FILE:///etc/passwd", "/etc/passwd", "javascript:alert(1)",
          "x-other://a", "https:", "https:///etc", "mailto:", "//a.example", "http://[bad/"})
        QTest::newRow(address) << QString();
}

void TestAboutPage::opensOnlyWebAndMailAddresses()
{
    QFETCH(QString, opened);
    const QByteArray address = QTest::currentDataTag();
    serve(AppsPlist::list(AppsPlist::app("", "A", address), AppsPlist::string("Twitter", address)));
    m_about->open();
    m_about->table().selectRow(0);
    press(*m_about->page, "twitterButton");
    const QStringList expected = opened.isEmpty() ? QStringList() : QStringList{opened, opened};
    QCOMPARE(m_about->opened, expected);
}

void TestAboutPage::showsPlainText()
{
    serve(AppsPlist::list("<dict>" + AppsPlist::string("Name", "&lt;b&gt;A&lt;/b&gt;\nline")
                          + AppsPlist::string("Desc", QByteArray(200'000, 'x'))
                          + "<key>Type</key><integer>3</integer></dict><string>no entry</string>"));
    m_about->open();
    QCOMPARE(m_about->text(0, AppsTable::NameColumn), u"<b>A</b> line"_s);
    const QString tip = m_about->cell(0, AppsTable::NameColumn).data(Qt::ToolTipRole).toString();
    QVERIFY(tip.contains(u"&lt;b&gt;A"_s));
    QVERIFY(m_about->text(0, AppsTable::DescColumn).size() <= 500);
    QCOMPARE(m_about->text(0, AppsTable::TypeColumn), QString());
    QCOMPARE(m_about->text(1, AppsTable::NameColumn), QString());
    m_about->table().selectRow(1);
    QCOMPARE(m_about->opened, QStringList());
}

void TestAboutPage::goesAwayWhileLoading()
{
    m_about->server.set("/conf/Apps.plist", MakersServer::silent("HTTP/1.1 200 OK\r\n"));
    auto page = std::make_unique<AboutViewController>();
    page->show();
    m_about->awaitRequest("/conf/Apps.plist");
    QTRY_VERIFY(control<QWidget>(*page, "progressIndicator").isVisible());
    QVERIFY(!control<QWidget>(*page, "table").isVisible());
    page.reset();
    QCOMPARE(AboutPage::files(), QStringList());
}

QTEST_MAIN(TestAboutPage)
#include "tst_about_page.moc"

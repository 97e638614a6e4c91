// Proves what a user sees and loses from the first press to the last: the ticked folders and
// nothing else, and the page's states on the way.

#include "ShownPage.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace
{

/// Every category's folder, and what is easily taken for one.
void fillHome()
{
    for (const char *file :
         {"Library/Caches/a", "Library/Caches/deep/b", "Logs/c", "Downloads/d", "Mail Downloads/e",
          ".Trash/f", "Library/Logs/g", "Library/Mail Downloads/h", "Library/Caches.old/i",
          "downloads/j", "Documents/k", "l", "Trash/m"})
        TestHome::makeFile(file, 1536);
    SampleTree::makeLink(TestHome::path() + "/Downloads/to documents", "../Documents");
}

/// What is below home, our own settings aside.
SampleTree::Snapshot homeNow()
{
    SampleTree::Snapshot items = SampleTree::snapshot(TestHome::path());
    items.removeIf([](auto item) { return item.key().startsWith("/.config"); });
    return items;
}

/// The order in which the page's widgets are enabled or disabled.
class EnabledOrder : public QObject
{
public:
    explicit EnabledOrder(const ShownPage &shown)
    {
        for (QWidget *widget : shown.page->findChildren<QWidget *>())
            widget->installEventFilter(this);
    }

    QStringList names;

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::EnabledChange)
            names += object->objectName();
        return false;
    }
};

} // namespace

class StoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestHome::reset();
        fillHome();
        m_boxes = std::make_unique<MessageBoxes>();
    }

    void cleanup() { QCOMPARE(m_boxes->texts, QStringList()); }

    void fromTheGrantToACleanDisk()
    {
        ShownPage shown;
        QVERIFY(shown.authorize(MiscTool::getUserHome()));
        const SampleTree::Snapshot before = homeNow();
        shown.tick("cachesCheckBox");
        shown.tick("downloadsCheckBox");
        QVERIFY(shown.pressAndWait("checkButton"));
        QCOMPARE(shown.title("downloadsCheckBox"), u"Downloads1.5 KB"_s);
        QCOMPARE(shown.title("logsCheckBox"), u"Logs"_s);
        QCOMPARE(SampleTree::difference(before, homeNow()), QList<QByteArray>());

        shown.find<QLabel>("diskTotalSize")->clear();
        shown.find<QLabel>("diskFreeSize")->clear();
        shown.find<QGroupBox>("diskLevelIndicatorBox")->setTitle({});
        shown.find<QProgressBar>("diskLevelIndicator")->setValue(1);
        QVERIFY(shown.pressAndWait("cleanButton"));
        for (const QByteArray &path : SampleTree::difference(before, homeNow()))
            QVERIFY2(path.startsWith("/Library/Caches/") || path == "/Library/Caches"
                         || path.startsWith("/Downloads/") || path == "/Downloads",
                     path.constData());
        QVERIFY(!TestHome::exists("Library/Caches") && !TestHome::exists("Downloads"));
        for (const char *box : {"cachesCheckBox", "downloadsCheckBox"})
            QVERIFY(shown.find<QCheckBox>(box)->isChecked());
        QCOMPARE(shown.title("cachesCheckBox"), u"Caches"_s);
        QCOMPARE(shown.title("downloadsCheckBox"), u"Downloads"_s);

        const auto total = static_cast<std::uint64_t>(MiscTool::getDiskTotalSize().value_or(0));
        QCOMPARE(shown.find<QLabel>("diskTotalSize")->text(), MiscTool::convertBytes(total));
        QVERIFY(!shown.find<QLabel>("diskFreeSize")->text().isEmpty());
        const int percentage = shown.find<QProgressBar>("diskLevelIndicator")->value();
        QCOMPARE(shown.find<QGroupBox>("diskLevelIndicatorBox")->title(), u"%1%"_s.arg(percentage));
        const auto free = static_cast<double>(MiscTool::getDiskAvailableSize().value_or(0));
        const double used = 100 - free * 100 / static_cast<double>(total);
        QVERIFY(percentage > used - 2 && percentage < used + 1); // others write to this disk, too
    }

    void cleansJustTheTickedFolder_data()
    {
        QTest::addColumn<QByteArray>("folder");
        QTest::newRow("cachesCheckBox") << QByteArray("/Library/Caches");
        QTest::newRow("logsCheckBox") << QByteArray("/Logs");
        QTest::newRow("downloadsCheckBox") << QByteArray("/Downloads");
        QTest::newRow("mailDownloadCheckBox") << QByteArray("/Mail Downloads");
        QTest::newRow("trashCheckBox") << QByteArray("/.Trash");
    }
    void cleansJustTheTickedFolder()
    {
        QFETCH(QByteArray, folder);
        TestHome::grant();
        ShownPage shown;
        shown.tick(QTest::currentDataTag());
        const SampleTree::Snapshot before = homeNow();
        QVERIFY(shown.pressAndWait("cleanButton"));
        SampleTree::Snapshot expected = before;
        expected.removeIf(
            [&](auto item) { return item.key() == folder || item.key().startsWith(folder + '/'); });
        QVERIFY(expected.size() < before.size());
        QCOMPARE(SampleTree::difference(expected, homeNow()), QList<QByteArray>());
    }

    void halfTickedCountsAsOff()
    {
        TestHome::grant();
        ShownPage shown;
        auto *logs = shown.find<QCheckBox>("logsCheckBox");
        logs->setTristate();
        logs->setCheckState(Qt::PartiallyChecked);
        const SampleTree::Snapshot before = homeNow();
        QVERIFY(shown.pressAndWait("checkButton"));
        QCOMPARE(logs->text(), u"Logs"_s);
        QVERIFY(shown.pressAndWait("cleanButton"));
        QCOMPARE(SampleTree::difference(before, homeNow()), QList<QByteArray>());
    }

    void aLinkedFolderLosesOnlyTheLink()
    {
        const QByteArray logs = TestHome::path() + "/Logs";
        QVERIFY(QFile::rename(QFile::decodeName(logs), QFile::decodeName(logs + ".real")));
        SampleTree::makeLink(logs, "Logs.real");
        TestHome::grant();
        ShownPage shown;
        shown.tick("logsCheckBox");
        SampleTree::Snapshot expected = homeNow();
        QVERIFY(expected.remove("/Logs"));
        QVERIFY(shown.pressAndWait("cleanButton"));
        QCOMPARE(SampleTree::difference(expected, homeNow()), QList<QByteArray>());
    }

    void statusChangesInOrder()
    {
        TestHome::grant();
        ShownPage shown;
        auto *box = shown.find<QGroupBox>("progressIndicatorBox");
        auto *indicator = shown.find<QProgressBar>("progressIndicator");
        QVERIFY(box->isHidden());
        EnabledOrder order(shown);
        QSignalSpy ended(&shown.jobs, &JobList::jobEnded);
        // Each changes once: the trash a second time to what it is already.
        const QStringList expected{u"authorizeButton"_s,   u"cachesCheckBox"_s,
                                   u"downloadsCheckBox"_s, u"trashCheckBox"_s,
                                   u"logsCheckBox"_s,      u"mailDownloadCheckBox"_s,
                                   u"checkButton"_s,       u"cleanButton"_s};
        for (const char *button : {"checkButton", "cleanButton"}) {
            order.names.clear();
            QVERIFY(shown.press(button)); // returns at once
            QVERIFY(!shown.isIdle() && box->isVisible());
            QCOMPARE(indicator->maximum(), 0); // moving
            QCOMPARE(shown.jobs.running().size(), std::size_t(1));
            const JobDescription job = shown.jobs.running().front().description;
            QCOMPARE(job.page, u"UserCacheViewController"_s);
            QCOMPARE(job.title, u"UserCache"_s);
            QCOMPARE(job.subject, MiscTool::getUserHome());
            QCOMPARE(order.names, expected);
            QVERIFY(shown.waitUntilIdle());
            QVERIFY(box->isHidden());
            QVERIFY(indicator->maximum() != 0);
            QCOMPARE(order.names, expected + expected);
            QCOMPARE(ended.takeFirst().at(1).value<JobOutcome>(), JobOutcome::Succeeded);
        }
    }

private:
    std::unique_ptr<MessageBoxes> m_boxes;
};

QTEST_MAIN(StoryTest)
#include "tst_usercache_story.moc"

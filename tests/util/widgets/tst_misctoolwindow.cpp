// Proves the window helpers: what a message box shows, how a window shakes and where it ends.

#include "FlashOverlay.h"
#include "MessageBoxes.h"
#include "MiscTool.h"
#include "WindowShake.h"

#include <QLabel>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{

QList<QPoint> placesDuring(QWidget &window, const std::function<void()> &shake)
{
    class Follower : public QObject
    {
    public:
        QList<QPoint> places;

    protected:
        bool eventFilter(QObject *watched, QEvent *event) override
        {
            if (event->type() == QEvent::Move)
                places += qobject_cast<QWidget *>(watched)->pos();
            return false;
        }
    } follower;
    window.installEventFilter(&follower);
    shake();
    if (!QTest::qWaitFor([&] { return !window.findChild<WindowShake *>(); }))
        qFatal("the shake does not end");
    return follower.places;
}

} // namespace

class tst_MiscToolWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theBoxShowsTextsAsTheyAreOverTheShownWindow()
    {
        QWidget window;
        window.show();
        MessageBoxes boxes;
        bool plain = true;
        QWidget *owner = nullptr;
        QMessageBox::StandardButtons buttons;
        boxes.whileShown = [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            owner = box->parentWidget();
            buttons = box->standardButtons();
            const auto labels = box->findChildren<QLabel *>();
            for (const QLabel *label : labels)
                plain = plain && (label->text().isEmpty() || label->textFormat() == Qt::PlainText);
        };
        QCOMPARE(MiscTool::showAlert(u"<b>a</b> & \"b\""_s, u"<img src=x>"_s),
                 int(QMessageBox::Ok));
        QCOMPARE(boxes.texts, QStringList(u"<b>a</b> & \"b\""_s));
        QCOMPARE(boxes.informativeTexts, QStringList(u"<img src=x>"_s));
        QVERIFY(plain);
        QCOMPARE(owner, &window);
        QCOMPARE(buttons, QMessageBox::Ok);
    }

    void theBoxOutlivesADialogThatCloses()
    {
        QWidget window;
        window.show();
        auto *question = new QMessageBox(&window);
        question->setAttribute(Qt::WA_DeleteOnClose);
        question->open();
        QVERIFY(QTest::qWaitForWindowActive(question));
        const QPointer<QMessageBox> gone(question);
        MessageBoxes boxes;
        boxes.whileShown = [&] {
            question->close();
            QVERIFY(QTest::qWaitFor([&] { return gone.isNull(); }));
        };
        QCOMPARE(MiscTool::showAlert(u"The run has ended."_s, {}), int(QMessageBox::Ok));
    }

    void showsAndHidesAWindow()
    {
        QWidget window;
        MiscTool::showWindow(&window);
        QVERIFY(window.isVisible());
        QVERIFY(QTest::qWaitForWindowActive(&window));
        MiscTool::hideWindow(&window);
        QVERIFY(!window.isVisible());
        MiscTool::showWindow(nullptr);
        MiscTool::hideWindow(nullptr);
    }

    void aShakeSwingsFourTimesAndEndsWhereItBegan()
    {
        QWidget window;
        window.setGeometry(100, 80, 1000, 100);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QPoint home = window.pos();
        QCOMPARE(WindowShake::offset(1000), 19.999999552965164); // 2 % in single precision
        QElapsedTimer clock;
        clock.start();
        const QList<QPoint> places = placesDuring(window, [&] {
            WindowShake::start(&window);
            auto *shake = window.findChild<WindowShake *>();
            QCOMPARE(shake->duration(), 100);
            QCOMPARE(shake->loopCount(), 4);
            QCOMPARE(shake->startValue().toDouble(), home.x() - WindowShake::offset(1000));
            QCOMPARE(shake->endValue().toDouble(), home.x() + WindowShake::offset(1000));
        });
        QVERIFY(clock.elapsed() >= 390);
        QCOMPARE(window.pos(), home);
        const auto isLeft = [&](const QPoint &place) { return place.x() < home.x(); };
        QVERIFY(std::ranges::any_of(places, isLeft) && !std::ranges::all_of(places, isLeft));
        for (const QPoint &place : places)
            QVERIFY(qAbs(place.x() - home.x()) <= 20 && place.y() == home.y());
    }

    void aSecondShakeDoesNotMoveTheWindowAway()
    {
        QWidget window;
        window.setGeometry(200, 80, 500, 100);
        window.show();
        const QPoint home = window.pos();
        placesDuring(window, [&] {
            WindowShake::start(&window);
            QVERIFY(QTest::qWaitFor([&] { return window.pos() != home; }));
            WindowShake::start(&window); // reads the frame while the first one has moved it
        });
        QCOMPARE(window.pos(), home);
    }

    void aShakeFlashesAndNothingBreaksWithoutAWindow()
    {
        MiscTool::shakeWindow(nullptr);
        QWidget window;
        window.resize(300, 200);
        window.show();
        MiscTool::shakeWindow(&window);
        const auto *flash = window.findChild<FlashOverlay *>();
        QVERIFY(flash && flash->isVisible() && flash->size() == window.size());
        MiscTool::flashScreen();
        QCOMPARE(window.findChildren<FlashOverlay *>().size(), 1);
        QTRY_VERIFY(!window.findChild<FlashOverlay *>());
    }
};

QTEST_MAIN(tst_MiscToolWindow)
#include "tst_misctoolwindow.moc"

// Proves the window helpers: what a message box shows, how a window shakes and where it ends.

#include "MessageBoxes.h"
#include "MiscTool.h"

#include <QLabel>
#include <QPointer>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

class TestMiscToolWindow : public QObject
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
        boxes.whileShown = [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            owner = box->parentWidget();
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

    void theBoxGoesWithItsWindow()
    {
        auto window = std::make_unique<QWidget>();
        window->show();
        MessageBoxes boxes;
        boxes.whileShown = [&] { window.reset(); };
        QCOMPARE(MiscTool::showAlert(u"The run has ended."_s, {}), 0);
    }

    void aShakeEndsWhereItBeganAlsoWhenItStartsAnew()
    {
        MiscTool::showWindow(nullptr);
        MiscTool::shakeWindow(nullptr);
        QWidget window;
        window.setGeometry(200, 80, 500, 100);
        MiscTool::showWindow(&window);
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QPoint home = window.pos();
        const auto isAt = [&](int side) { return side * (window.pos().x() - home.x()) > 0; };
        MiscTool::shakeWindow(&window);
        QVERIFY(QTest::qWaitFor([&] { return isAt(-1); }));
        MiscTool::shakeWindow(&window); // reads the frame while the first one has moved it
        const auto *flash = window.findChild<QWidget *>(u"flash"_s);
        QVERIFY(flash && flash->isVisible() && flash->size() == window.size());
        QVERIFY(QTest::qWaitFor([&] { return isAt(1); }));
        QVERIFY(qAbs(window.pos().x() - home.x()) <= 10 && window.pos().y() == home.y());
        QTRY_VERIFY(!window.findChild<QObject *>(u"shake"_s)
                    && !window.findChild<QWidget *>(u"flash"_s));
        QCOMPARE(window.pos(), home);
    }
};

QTEST_MAIN(TestMiscToolWindow)
#include "tst_misctoolwindow.moc"

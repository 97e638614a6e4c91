// Proves that the style's controls line up, mirror, show what matters and rest when nothing moves.

#include "Theme.h"

#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QStyleOption>
#include <QTest>

using namespace Qt::StringLiterals;

namespace
{

// Counts how often it is painted.
class Bar : public QProgressBar
{
public:
    int paints = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++paints;
        QProgressBar::paintEvent(event);
    }
};

QColor middleLeft(QWidget &widget, int fromLeft)
{
    return widget.grab().toImage().pixelColor(fromLeft, widget.height() / 2);
}

} // namespace

class TestStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Theme::install();
        m_font = QApplication::font();
    }
    void cleanup()
    {
        QApplication::setFont(m_font);
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }

    void controlsOfARowAreOneHeight_data()
    {
        QTest::addColumn<qreal>("scale");
        QTest::addRow("plain") << 1.0;
        QTest::addRow("large") << 1.3;
        QTest::addRow("huge") << 2.5;
    }

    void controlsOfARowAreOneHeight()
    {
        QFETCH(qreal, scale);
        QFont font = m_font;
        font.setPointSizeF(font.pointSizeF() * scale);
        QApplication::setFont(font);
        const QLineEdit field;
        const QPushButton button(u"Select"_s);
        QComboBox popUp;
        popUp.addItem(u"Normal"_s);
        QCOMPARE(button.sizeHint().height(), field.sizeHint().height());
        QCOMPARE(popUp.sizeHint().height(), field.sizeHint().height());
        QVERIFY(field.sizeHint().height() >= QFontMetrics(font).height() + 8);
        QVERIFY(button.sizeHint().width() >= QFontMetrics(font).horizontalAdvance(u"Select"_s));
    }

    void aBoxHasItsTitleAboveItsCard()
    {
        QGroupBox box(u"Source"_s);
        auto *layout = new QHBoxLayout(&box);
        auto *field = new QLineEdit;
        layout->addWidget(field);
        box.resize(box.sizeHint().expandedTo({300, 0}));
        box.ensurePolished();
        layout->activate();
        const QImage image = box.grab().toImage();
        const QPalette palette = Theme::palette(Theme::current());
        QCOMPARE(image.pixelColor(150, field->y() - 6), palette.color(QPalette::Light));
        QVERIFY(image.pixelColor(290, 3) != palette.color(QPalette::Light));
        QVERIFY(field->y() - 12 >= box.fontMetrics().height());
        QCOMPARE(field->x(), 12);
        QCOMPARE(box.height() - field->geometry().bottom() - 1, 12);
    }

    void aBoxInACardIsNoCard()
    {
        QGroupBox outer(u"Operation"_s);
        auto *layout = new QHBoxLayout(&outer);
        auto *inner = new QGroupBox(u"Used"_s);
        layout->addWidget(inner);
        auto *innerLayout = new QHBoxLayout(inner);
        auto *field = new QLineEdit;
        innerLayout->addWidget(field);
        outer.ensurePolished();
        outer.resize(outer.sizeHint().expandedTo({300, 0}));
        layout->activate();
        innerLayout->activate();
        QCOMPARE(field->mapTo(&outer, QPoint()).x(), 12);
        const QColor card = Theme::palette(Theme::current()).color(QPalette::Light);
        QCOMPARE(outer.grab().toImage().pixelColor(150, field->mapTo(&outer, QPoint()).y() - 1),
                 card);
    }

    void oneButtonIsAccented()
    {
        const QColor accent = Theme::palette(Theme::current()).color(QPalette::Highlight);
        QPushButton plain(u"Clear"_s);
        QPushButton main(u"Zip"_s);
        main.setDefault(true);
        QCOMPARE(middleLeft(main, 6), accent);
        QVERIFY(middleLeft(plain, 6) != accent);
        main.setEnabled(false);
        plain.setEnabled(false);
        QCOMPARE(middleLeft(main, 6), middleLeft(plain, 6));
    }

    void theTextOfAPopUpButtonKeepsClearOfItsMark()
    {
        QComboBox popUp;
        popUp.resize(200, 32);
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            QStyleOptionComboBox option;
            option.initFrom(&popUp);
            option.direction = direction;
            const auto place = [&](QStyle::SubControl part) {
                return popUp.style()->subControlRect(QStyle::CC_ComboBox, &option, part, &popUp);
            };
            const QRect text = place(QStyle::SC_ComboBoxEditField);
            const QRect arrow = place(QStyle::SC_ComboBoxArrow);
            QVERIFY(!text.intersects(arrow));
            QCOMPARE(text.left() < arrow.left(), direction == Qt::LeftToRight);
        }
    }

    void scrollBarsReachBothEnds()
    {
        QScrollBar bar(Qt::Vertical);
        bar.setRange(0, 100000);
        bar.setPageStep(10);
        bar.resize(12, 300);
        const auto handle = [&bar](int value) {
            QStyleOptionSlider option;
            option.initFrom(&bar);
            option.orientation = Qt::Vertical;
            option.maximum = bar.maximum();
            option.pageStep = bar.pageStep();
            option.sliderPosition = value;
            return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option,
                                               QStyle::SC_ScrollBarSlider, &bar);
        };
        QCOMPARE(handle(0).top(), 0);
        QCOMPARE(handle(100000).bottom(), 299);
        QVERIFY(handle(50000).height() >= 24);
    }

    void aBusyBarMovesUntilItIsHidden()
    {
        Bar bar;
        bar.setRange(0, 0);
        bar.resize(200, 20);
        bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bar));
        QTRY_VERIFY(bar.paints >= 5);
        bar.hide();
        const int paints = bar.paints;
        QTest::qWait(150);
        QCOMPARE(bar.paints, paints);
        bar.show();
        QTRY_VERIFY(bar.paints >= paints + 5);
        bar.setRange(0, 100); // a bar that shows an amount rests
        QTest::qWait(100);
        const int resting = bar.paints;
        QTest::qWait(150);
        QCOMPARE(bar.paints, resting);
    }

private:
    QFont m_font;
};

QTEST_MAIN(TestStyle)
#include "tst_style.moc"

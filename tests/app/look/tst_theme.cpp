// Proves that every colour of the theme can be read in both schemes, that open windows follow a
// change, and that the style's controls line up, show what matters and rest when nothing moves.

#include "Contrast.h"
#include "HintLabel.h"
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
using Scheme = Theme::Scheme;

// The theme knows the sidebar by its class name.
class HoverTableView : public QWidget
{
    Q_OBJECT
};

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

using Pair = std::pair<QPalette::ColorRole, QPalette::ColorRole>;

const QList<Pair> textsOnGrounds = [] {
    QList<Pair> pairs{
        {QPalette::ButtonText, QPalette::Button},  {QPalette::HighlightedText, QPalette::Highlight},
        {QPalette::Text, QPalette::AlternateBase}, {QPalette::ToolTipText, QPalette::ToolTipBase},
        {QPalette::Text, QPalette::Base},          {QPalette::PlaceholderText, QPalette::Base},
        {QPalette::Link, QPalette::Base},          {QPalette::LinkVisited, QPalette::Base},
    };
    for (const auto ground : {QPalette::Window, QPalette::Light})
        for (const auto text : {QPalette::WindowText, QPalette::PlaceholderText, QPalette::Link,
                                QPalette::LinkVisited, QPalette::BrightText})
            pairs.append({text, ground});
    return pairs;
}();

void verifyReadable(const QPalette &palette, const QList<Pair> &pairs)
{
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        for (const auto &[text, ground] : pairs) {
            const double ratio =
                Contrast::ratio(palette.color(group, text), palette.color(group, ground));
            QVERIFY2(ratio >= Contrast::readable,
                     qPrintable(u"role %1 on %2: %3"_s.arg(text).arg(ground).arg(ratio)));
        }
    }
}

} // namespace

class TestTheme : public QObject
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
        Theme::apply(Scheme::Light);
    }

    void everyTextCanBeRead()
    {
        for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
            verifyReadable(Theme::palette(scheme), textsOnGrounds);
            QCOMPARE(Theme::schemeOf(Theme::palette(scheme)), scheme);
            const QPalette sidebar = Theme::sidebarPalette(scheme);
            verifyReadable(sidebar,
                           {{QPalette::WindowText, QPalette::Window},
                            {QPalette::Text, QPalette::Base},
                            {QPalette::HighlightedText, QPalette::Window}});
            const QColor selected = QColor::fromRgbF(0.82F, 0.82F, 0.82F);
            const QColor text = sidebar.color(QPalette::WindowText);
            QVERIFY(Contrast::ratio(text, selected) >= Contrast::readable);
            QVERIFY(Contrast::ratio(text, Qt::white) >= Contrast::readable);
            // What shows the pointer and the choice must differ from an idle row.
            QVERIFY(
                Contrast::ratio(sidebar.color(QPalette::Highlight), sidebar.color(QPalette::Window))
                >= 3);
            QVERIFY(Contrast::ratio(selected, sidebar.color(QPalette::Window)) >= 1.2);
            QVERIFY(Contrast::ratio(Qt::white, sidebar.color(QPalette::Window)) >= 1.15);
        }
    }

    void openWindowsFollow()
    {
        QWidget window;
        HoverTableView sidebar;
        sidebar.setParent(&window);
        QWidget icon(&sidebar);
        HintLabel hint(&window);
        QWidget page(&window);
        window.show();
        for (const Scheme scheme : {Scheme::Dark, Scheme::Light, Scheme::Dark}) {
            Theme::apply(scheme);
            const QPalette palette = Theme::palette(scheme);
            QCOMPARE(Theme::current(), scheme);
            QTRY_COMPARE(page.palette().color(QPalette::Window), palette.color(QPalette::Window));
            QTRY_COMPARE(icon.palette().color(QPalette::WindowText),
                         Theme::sidebarPalette(scheme).color(QPalette::WindowText));
            QTRY_COMPARE(sidebar.palette().color(QPalette::Window),
                         Theme::sidebarPalette(scheme).color(QPalette::Window));
            QTRY_COMPARE(hint.palette().color(QPalette::WindowText),
                         palette.color(QPalette::PlaceholderText));
        }
    }

    void controlsOfARowAreOneHeight()
    {
        for (const qreal scale : {1.0, 2.5}) {
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
    }

    void aBoxHasItsTitleAboveItsCardAndIsNoCardInACard()
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
        const QImage image = outer.grab().toImage();
        const QColor card = Theme::palette(Theme::current()).color(QPalette::Light);
        const QPoint corner = field->mapTo(&outer, QPoint());
        QCOMPARE(corner.x(), 12);
        QCOMPARE(image.pixelColor(150, corner.y() - 1), card);
        QCOMPARE(image.pixelColor(150, inner->y() - 6), card);
        QVERIFY(image.pixelColor(290, 3) != card);
        QVERIFY(inner->y() - 12 >= outer.fontMetrics().height());
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

QTEST_MAIN(TestTheme)
#include "tst_theme.moc"

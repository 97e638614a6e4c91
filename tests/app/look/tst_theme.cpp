// Proves that every text can be read in both schemes and that open windows follow a change.

#include "Contrast.h"
#include "HintLabel.h"
#include "PageTitle.h"
#include "Theme.h"

#include <QApplication>
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

using Pair = std::pair<QPalette::ColorRole, QPalette::ColorRole>;

const QList<Pair> textsOnGrounds{
    {QPalette::WindowText, QPalette::Window},
    {QPalette::WindowText, QPalette::Light},
    {QPalette::Text, QPalette::Base},
    {QPalette::Text, QPalette::AlternateBase},
    {QPalette::ButtonText, QPalette::Button},
    {QPalette::HighlightedText, QPalette::Highlight},
    {QPalette::PlaceholderText, QPalette::Base},
    {QPalette::PlaceholderText, QPalette::Window},
    {QPalette::PlaceholderText, QPalette::Light},
    {QPalette::ToolTipText, QPalette::ToolTipBase},
    {QPalette::Link, QPalette::Window},
    {QPalette::Link, QPalette::Base},
    {QPalette::Link, QPalette::Light},
    {QPalette::LinkVisited, QPalette::Window},
    {QPalette::LinkVisited, QPalette::Base},
    {QPalette::LinkVisited, QPalette::Light},
    {QPalette::BrightText, QPalette::Window},
    {QPalette::BrightText, QPalette::Light},
};

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
    void initTestCase() { Theme::install(); }
    void init() { Theme::apply(Scheme::Light); }

    void schemes_data()
    {
        QTest::addColumn<Scheme>("scheme");
        QTest::addRow("light") << Scheme::Light;
        QTest::addRow("dark") << Scheme::Dark;
    }

    void textsCanBeRead_data() { schemes_data(); }
    void textsCanBeRead()
    {
        QFETCH(Scheme, scheme);
        verifyReadable(Theme::palette(scheme), textsOnGrounds);
    }

    void sidebarTextsCanBeReadOnEveryRow_data() { schemes_data(); }
    void sidebarTextsCanBeReadOnEveryRow()
    {
        QFETCH(Scheme, scheme);
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
        QVERIFY(Contrast::ratio(sidebar.color(QPalette::Highlight), sidebar.color(QPalette::Window))
                >= 3);
        QVERIFY(Contrast::ratio(selected, sidebar.color(QPalette::Window)) >= 1.2);
        QVERIFY(Contrast::ratio(Qt::white, sidebar.color(QPalette::Window)) >= 1.15);
    }

    void everyRoleIsSet_data() { schemes_data(); }
    void everyRoleIsSet()
    {
        QFETCH(Scheme, scheme);
        const QPalette palette = Theme::palette(scheme);
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            for (int role = 0; role < QPalette::NColorRoles; ++role)
                if (role != QPalette::NoRole)
                    QVERIFY2(palette.isBrushSet(group, QPalette::ColorRole(role)),
                             qPrintable(QString::number(role)));
        QCOMPARE(Theme::schemeOf(palette), scheme);
    }

    void readsTheDesktopsScheme()
    {
        QCOMPARE(Theme::schemeOf(QPalette(Qt::black, Qt::white)), Scheme::Light);
        QCOMPARE(Theme::schemeOf(QPalette(QColor(0xeeeeee), QColor(0x303030), Qt::white, Qt::black,
                                          Qt::gray, QColor(0xeeeeee), QColor(0x303030))),
                 Scheme::Dark);
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

    void titlesAreLargerThanTheDesktopsText()
    {
        PageTitle title;
        title.ensurePolished();
        QVERIFY(title.fontInfo().pixelSize() > QFontInfo(QApplication::font()).pixelSize() * 1.3);
    }
};

QTEST_MAIN(TestTheme)
#include "tst_theme.moc"

// Proves that every text can be read in both schemes and that open windows follow a change.

#include "HintLabel.h"
#include "PageTitle.h"
#include "Theme.h"

#include <QApplication>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;
using Scheme = Theme::Scheme;

// The theme knows the sidebar by its class name.
class HoverTableView : public QWidget
{
    Q_OBJECT
};

namespace
{

constexpr double readable = 4.5;

// WCAG 2.1, "relative luminance" and "contrast ratio".
double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &one, const QColor &other)
{
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

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
            const double ratio = contrast(palette.color(group, text), palette.color(group, ground));
            QVERIFY2(ratio >= readable,
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
        QVERIFY(contrast(text, selected) >= readable);
        QVERIFY(contrast(text, Qt::white) >= readable);
        // What shows the pointer and the choice must differ from an idle row.
        QVERIFY(contrast(sidebar.color(QPalette::Highlight), sidebar.color(QPalette::Window)) >= 3);
        QVERIFY(contrast(selected, sidebar.color(QPalette::Window)) >= 1.2);
        QVERIFY(contrast(Qt::white, sidebar.color(QPalette::Window)) >= 1.15);
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

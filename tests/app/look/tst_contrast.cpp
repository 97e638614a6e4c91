// Proves that each text that the program shows stands out from what is really painted behind it, in
// both schemes. Texts of disabled controls are excepted, as WCAG 2.1 (1.4.3) does.

#include "Application.h"
#include "Contrast.h"
#include "HoverTableRowView.h"
#include "HoverTableView.h"
#include "Scenes.h"
#include "Theme.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QTest>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace
{

/// The ratio between the colour that fills a part of a picture and the one in it that stands out
/// most: the text's, as strokes are thicker than their smoothed edges.
double strongestContrast(const QImage &picture, const QRect &part)
{
    const QRect inside = part.intersected(picture.rect());
    QHash<QRgb, int> count;
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x)
            ++count[picture.pixel(x, y)];
    }
    if (count.isEmpty())
        return 0;
    QRgb ground = count.constBegin().key();
    for (auto it = count.constBegin(); it != count.constEnd(); ++it)
        ground = it.value() > count.value(ground) ? it.key() : ground;
    double best = 1;
    for (auto it = count.keyBegin(); it != count.keyEnd(); ++it)
        best = std::max(best, Contrast::ratio(QColor(*it), QColor(ground)));
    return best;
}

bool hasText(const QWidget &widget)
{
    return std::ranges::any_of(
        std::array{"text", "placeholderText", "plainText", "currentText", "title"},
        [&widget](const char *name) { return !widget.property(name).toString().isEmpty(); });
}

/// Where the widget shows texts of its own, without its edges.
QList<QRect> textPlaces(const QWidget &widget)
{
    const auto *label = qobject_cast<const QLabel *>(&widget);
    if (label && label->text().trimmed().isEmpty())
        return {}; // it only keeps the room of a text
    QList<QRect> places;
    if (const auto *tabs = qobject_cast<const QTabBar *>(&widget))
        for (int i = 0; i < tabs->count(); ++i)
            places += tabs->tabRect(i).adjusted(4, 4, -4, -6);
    if (const auto *menu = qobject_cast<const QMenu *>(&widget))
        for (QAction *action : menu->actions())
            places += action->isSeparator() ? QRect() : menu->actionGeometry(action);
    if (const auto *menus = qobject_cast<const QMenuBar *>(&widget))
        for (QAction *action : menus->actions())
            places += menus->actionGeometry(action);
    if (!places.isEmpty() || !hasText(widget))
        return places;
    if (qobject_cast<const QGroupBox *>(&widget))
        return {QRect(0, 0, widget.width(), widget.fontMetrics().height())};
    const bool isPlain = widget.inherits("QLabel") || widget.inherits("QProgressBar");
    const int arrow = widget.inherits("QComboBox") ? 24 : 0;
    return {isPlain ? widget.rect() : widget.rect().adjusted(6, 6, -6 - arrow, -6)};
}

QStringList unreadable(const QString &where, QWidget &window)
{
    const QImage picture = window.grab().toImage();
    QStringList found;
    const QList<QWidget *> widgets = Scenes::shownIn(window) + QList<QWidget *>{&window};
    for (const QWidget *widget : widgets) {
        if (!widget->isEnabled() || widget->visibleRegion().isEmpty())
            continue;
        const QRect seen = widget->visibleRegion().boundingRect();
        for (const QRect &place : textPlaces(*widget)) {
            if (place.isEmpty() || !seen.contains(place.adjusted(8, 8, -8, -8)))
                continue; // scrolled away
            const double ratio =
                strongestContrast(picture, place.translated(widget->mapTo(&window, QPoint())));
            if (ratio < Contrast::readable)
                found += where + u": "_s + Scenes::described(*widget) + QString::number(ratio);
        }
    }
    return found;
}

} // namespace

class TestContrast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Scenes::prepare(); }

    void everyTextCanBeReadInLight() { everyTextCanBeReadIn(Theme::Scheme::Light); }
    void everyTextCanBeReadInDark() { everyTextCanBeReadIn(Theme::Scheme::Dark); }

    // A measure that finds everything readable would prove nothing.
    void theMeasureIsRight()
    {
        QWidget window;
        QLabel label(u"Readable or not"_s, &window);
        for (const auto &[text, isReadable] : {std::pair(QColor(0x76, 0x76, 0x76), true),
                                               std::pair(QColor(0x90, 0x90, 0x90), false)}) {
            QPalette palette(Qt::black, Qt::white);
            palette.setColor(QPalette::WindowText, text);
            window.setPalette(palette);
            window.show();
            QCOMPARE(unreadable(u"here"_s, window).isEmpty(), isReadable);
        }
    }

private:
    static void everyTextCanBeReadIn(Theme::Scheme scheme)
    {
        Theme::apply(scheme == Theme::Scheme::Dark ? Theme::Scheme::Light : Theme::Scheme::Dark);
        Application application;
        application.start();
        Scenes::settle();
        Theme::apply(scheme); // what is shown already has to follow
        Scenes::settle();
        HoverTableView &sidebar = application.window().tableView();
        QCOMPARE(sidebar.palette().color(QPalette::Window),
                 Theme::sidebarPalette(scheme).color(QPalette::Window));
        sidebar.rowView(2)->setMouseInside(true);
        QStringList found;
        Scenes::visit(application, [&](const QString &scene, QWidget &window) {
            found += unreadable(scene, window);
        });
        auto *menu = application.window().findChild<QMenu *>(u"toolsMenu"_s);
        menu->popup(QPoint(0, 0));
        menu->setActiveAction(menu->actions().constFirst());
        found += unreadable(u"menu"_s, *menu);
        menu->hide();
        QVERIFY2(found.isEmpty(), qPrintable(found.join(u'\n')));
    }
};

QTEST_MAIN(TestContrast)
#include "tst_contrast.moc"

// Proves that every colour of the theme can be read in both schemes, and that controls, gauges and
// images show what matters, in the colours of what they stand on, and rest when nothing moves.

#include "Contrast.h"
#include "IconView.h"
#include "LevelIndicator.h"
#include "NamedImage.h"
#include "Theme.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QPicture>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;
using Scheme = Theme::Scheme;

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

QColor middle(QWidget &widget, int fromLeft)
{
    return widget.grab().toImage().pixelColor(fromLeft, widget.height() / 2);
}

// The colour of the image's most opaque point.
QColor strongest(const QImage &image)
{
    QColor best(0, 0, 0, 0);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (const QColor color = image.pixelColor(x, y); color.alpha() > best.alpha())
                best = color;
    return best;
}

bool isClose(const QColor &one, const QColor &other)
{
    return std::abs(one.red() - other.red()) + std::abs(one.green() - other.green())
        + std::abs(one.blue() - other.blue())
        < 24;
}

void verifyReadable(const QPalette &palette, const QList<QPalette::ColorRole> &texts,
                    QPalette::ColorRole ground)
{
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        for (const auto text : texts) {
            const double ratio =
                Contrast::ratio(palette.color(group, text), palette.color(group, ground));
            QVERIFY2(ratio >= Contrast::readable,
                     qPrintable(u"role %1 on %2: %3"_s.arg(text).arg(ground).arg(ratio)));
        }
    }
}

} // namespace

class TestLook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Theme::install(); }
    void init() { Theme::apply(Scheme::Light); }

    // What no scene of tst_contrast shows, too.
    void everyTextCanBeRead()
    {
        for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
            const QPalette palette = Theme::palette(scheme);
            QCOMPARE(Theme::schemeOf(palette), scheme);
            for (const auto ground : {QPalette::Window, QPalette::Light})
                verifyReadable(palette,
                               {QPalette::WindowText, QPalette::PlaceholderText, QPalette::Link,
                                QPalette::LinkVisited, QPalette::BrightText},
                               ground);
            verifyReadable(
                palette,
                {QPalette::Text, QPalette::PlaceholderText, QPalette::Link, QPalette::LinkVisited},
                QPalette::Base);
            verifyReadable(palette, {QPalette::Text}, QPalette::AlternateBase);
            verifyReadable(palette, {QPalette::ButtonText}, QPalette::Button);
            verifyReadable(palette, {QPalette::HighlightedText}, QPalette::Highlight);
            verifyReadable(palette, {QPalette::ToolTipText}, QPalette::ToolTipBase);
            // What shows the choice, the pointer and the focus must differ from an idle row.
            const QPalette sidebar = Theme::sidebarPalette(scheme);
            const QColor idle = sidebar.color(QPalette::Window);
            QVERIFY(Contrast::ratio(QColor(209, 209, 209), idle) >= 1.2);
            QVERIFY(Contrast::ratio(Qt::white, idle) >= 1.15);
            QVERIFY(Contrast::ratio(sidebar.color(QPalette::Highlight), idle) >= 3);
        }
    }

    void oneButtonIsAccented()
    {
        const QColor accent = Theme::palette(Theme::current()).color(QPalette::Highlight);
        QPushButton plain(u"Clear"_s);
        QPushButton main(u"Zip"_s);
        main.setDefault(true);
        QCOMPARE(middle(main, 6), accent);
        QVERIFY(middle(plain, 6) != accent);
        main.setEnabled(false);
        plain.setEnabled(false);
        QCOMPARE(middle(main, 6), middle(plain, 6));
    }

    void aBusyBarMovesUntilItIsHidden()
    {
        Bar bar;
        const auto rests = [&bar] {
            QTest::qWait(100);
            const int paints = bar.paints;
            QTest::qWait(150);
            return bar.paints == paints;
        };
        bar.setRange(0, 0);
        bar.resize(200, 20);
        bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bar));
        QTRY_VERIFY(bar.paints >= 5);
        bar.hide();
        QVERIFY(rests());
        bar.show();
        QVERIFY(!rests());
        bar.setRange(0, 100); // a bar that shows an amount
        QVERIFY(rests());
    }

    void aLevelIsAsLongAsItsValueAndWarns()
    {
        LevelIndicator level;
        level.setWarningText(u"Nearly full"_s);
        level.resize(400, 30);
        const QColor full = level.palette().color(QPalette::Highlight);
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            level.setLayoutDirection(direction);
            for (const int value : {20, 50}) {
                level.setValue(value);
                const auto at = [&](int x) {
                    return middle(level, direction == Qt::LeftToRight ? x : 400 - x);
                };
                QCOMPARE(at(20), full);
                QCOMPARE(at(110) == full, value == 50);
                QVERIFY(at(220) != full);
            }
        }
        level.setValue(89);
        QCOMPARE(level.text(), QString());
        level.setValue(90);
        QCOMPARE(level.text(), u"Nearly full"_s);
        QCOMPARE(middle(level, 400 - 20), level.palette().color(QPalette::BrightText));
    }

    void everySymbolHasTheColourOfItsPlace()
    {
        for (const QColor &ink : {QColor(0x20, 0x40, 0xc0), QColor(Qt::white)}) {
            for (const QString &folder : {u"symbols"_s, u"pictures"_s}) {
                const QStringList files = QDir(u":/images/"_s + folder).entryList({u"*.pic"_s});
                QVERIFY(!files.isEmpty());
                for (const QString &file : files) {
                    IconView view;
                    view.setPalette(QPalette(ink, Qt::gray, Qt::gray, Qt::gray, Qt::gray, ink, ink,
                                             Qt::gray, Qt::gray));
                    view.setImageName(file.chopped(4));
                    view.resize(16, 16);
                    QImage image(16, 16, QImage::Format_ARGB32_Premultiplied);
                    image.fill(Qt::transparent);
                    view.render(&image, {}, {}, QWidget::RenderFlags());
                    const QColor color = strongest(image);
                    QVERIFY2(color.alpha() > 100, qPrintable(file));
                    QVERIFY2(isClose(color, ink) == (folder == "symbols"_L1), qPrintable(file));
                }
            }
        }
        for (const QString &name : {u""_s, u"nothing"_s, u"../symbols/zip"_s, u"zip\n"_s})
            QVERIFY2(!hasNamedImage(name) && namedImage(name).isNull(), qPrintable(name));
    }

    void whatWasDrawnAtBuildTimeIsTheRecording()
    {
        const std::tuple<QString, QString, int> drawn[] = {{u"symbols"_s, u"zip"_s, 22},
                                                           {u"pictures"_s, u"toolvane"_s, 96}};
        for (const auto &[folder, name, size] : drawn) {
            const QString stem = u":/images/%1/%2"_s.arg(folder, name);
            QVERIFY(QFile::exists(stem + u"-%1.argb"_s.arg(size)));
            QPicture recording;
            QVERIFY(recording.load(stem + u".pic"_s));
            QImage played(size, size, QImage::Format_ARGB32_Premultiplied);
            played.fill(Qt::transparent);
            QPainter painter(&played);
            const qreal scale = size / qreal(recording.boundingRect().width());
            painter.scale(scale, scale);
            painter.drawPicture(0, 0, recording);
            painter.end();
            const QImage shown = namedImage(name).pixmap(size, size).toImage();
            QCOMPARE(shown.convertToFormat(QImage::Format_Alpha8),
                     played.convertToFormat(QImage::Format_Alpha8));
        }
    }
};

QTEST_MAIN(TestLook)
#include "tst_look.moc"

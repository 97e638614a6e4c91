// Proves that images are found by name alone and drawn in the colours of what shows them.

#include "IconView.h"
#include "NamedImage.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QTest>

using namespace Qt::StringLiterals;

namespace
{

const QColor ink(0x20, 0x40, 0xc0);
const QColor paleInk(0xe0, 0xd0, 0x10);

void setInk(const QColor &color)
{
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Active, QPalette::ButtonText, color);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, paleInk);
    QApplication::setPalette(palette);
}

QImage drawn(const QString &name, int side, QIcon::Mode mode = QIcon::Normal, qreal scale = 1)
{
    return namedImage(name).pixmap(QSize(side, side), scale, mode).toImage();
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

int inkedPoints(const QImage &image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y).alpha() > 100;
    return count;
}

bool isClose(const QColor &one, const QColor &other)
{
    return std::abs(one.red() - other.red()) + std::abs(one.green() - other.green())
        + std::abs(one.blue() - other.blue())
        < 24;
}

QStringList namesIn(const QString &folder)
{
    QStringList names = QDir(folder).entryList({u"*.pic"_s}, QDir::Files);
    for (QString &name : names)
        name.chop(4);
    return names;
}

} // namespace

class TestNamedImage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { setInk(ink); }

    void knowsNoOtherName()
    {
        for (const QString &name : {u""_s, u"nothing"_s, u"zip.pic"_s, u"../symbols/zip"_s,
                                    u"zip\n"_s, u"zip%1"_s, QString(70000, u'a')})
            QVERIFY2(!hasNamedImage(name) && namedImage(name).isNull(), qPrintable(name));
    }

    void drawsEveryImage_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("isTinted");
        for (const QString &name : namesIn(u":/images/symbols"_s))
            QTest::addRow("%s", qPrintable(name)) << name << true;
        for (const QString &name : namesIn(u":/images/pictures"_s))
            QTest::addRow("%s", qPrintable(name)) << name << false;
    }

    void drawsEveryImage()
    {
        QFETCH(QString, name);
        QFETCH(bool, isTinted);
        for (const QColor &color : {ink, QColor(Qt::white)}) {
            setInk(color);
            for (const int side : {16, 64}) {
                const QImage image = drawn(name, side);
                QCOMPARE(image.size(), QSize(side, side));
                QVERIFY2(inkedPoints(image) > side, "nearly empty");
                QCOMPARE(isClose(strongest(image), color), isTinted);
            }
        }
    }

    void dimsWhatIsDisabled()
    {
        QVERIFY(isClose(strongest(drawn(u"zip"_s, 22, QIcon::Disabled)), paleInk));
        QVERIFY(strongest(drawn(u"toolvane"_s, 64, QIcon::Disabled)).alpha() < 140);
    }

    void isAsFineAsTheDevice()
    {
        const QImage fine = drawn(u"zip"_s, 22, QIcon::Normal, 1.5);
        QCOMPARE(fine.size(), QSize(33, 33));
        QVERIFY(inkedPoints(fine) > inkedPoints(drawn(u"zip"_s, 22)) * 3 / 2);
    }

    void followsThePaletteOfTheWidget()
    {
        QWidget window;
        IconView view(&window);
        view.setImageName(u"stop"_s);
        view.resize(32, 32);
        for (const QColor &color : {ink, QColor(Qt::white)}) {
            QPalette palette = window.palette();
            palette.setColor(QPalette::Window, Qt::gray);
            palette.setColor(QPalette::WindowText, color);
            window.setPalette(palette);
            QImage image(32, 32, QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::transparent);
            view.render(&image, {}, {}, QWidget::RenderFlags());
            QVERIFY(isClose(strongest(image), color));
        }
    }
};

QTEST_MAIN(TestNamedImage)
#include "tst_named_image.moc"

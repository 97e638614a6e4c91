// Proves that the level gauge tells how full something is by length, text, colour and to a reader.

#include "LevelIndicator.h"

#include <QAccessible>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace
{

int countOf(const QImage &image, const QColor &color)
{
    int count = 0;
    for (int x = 0; x < image.width(); ++x)
        count += image.pixelColor(x, image.height() / 2) == color;
    return count;
}

std::unique_ptr<LevelIndicator> newLevel(int value)
{
    auto level = std::make_unique<LevelIndicator>();
    level->setWarningText(u"Nearly full"_s);
    level->setValue(value);
    level->resize(400, 30);
    QPalette palette = level->palette();
    palette.setColor(QPalette::Highlight, Qt::blue);
    palette.setColor(QPalette::BrightText, Qt::red);
    level->setPalette(palette);
    return level;
}

} // namespace

class TestLevelIndicator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAsLongAsItsValue()
    {
        const int whole = countOf(newLevel(89)->grab().toImage(), Qt::blue) * 100 / 89;
        QVERIFY(whole > 200);
        for (const int value : {0, 25, 50})
            QVERIFY(
                std::abs(countOf(newLevel(value)->grab().toImage(), Qt::blue) - whole * value / 100)
                <= 4);
    }

    void warnsByTextAndColour()
    {
        QCOMPARE(newLevel(89)->text(), u"89%"_s);
        QCOMPARE(newLevel(90)->text(), u"Nearly full  90%"_s);
        QVERIFY(countOf(newLevel(90)->grab().toImage(), Qt::red) > 100);
        QCOMPARE(countOf(newLevel(89)->grab().toImage(), Qt::red), 0);
        const auto silent = newLevel(100);
        silent->setWarningText({});
        QCOMPARE(silent->text(), u"100%"_s);
    }

    void growsFromTheLeadingEdge()
    {
        const auto level = newLevel(50);
        QCOMPARE(level->grab().toImage().pixelColor(20, 15), QColor(Qt::blue));
        level->setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(level->grab().toImage().pixelColor(400 - 20, 15), QColor(Qt::blue));
    }

    void tellsAReader()
    {
        const auto level = newLevel(42);
        QAccessibleInterface *reader = QAccessible::queryAccessibleInterface(level.get());
        QVERIFY(reader);
        QCOMPARE(reader->role(), QAccessible::ProgressBar);
        QVERIFY(reader->valueInterface());
        QCOMPARE(reader->valueInterface()->currentValue().toInt(), 42);
        QCOMPARE(reader->valueInterface()->maximumValue().toInt(), 100);
    }
};

QTEST_MAIN(TestLevelIndicator)
#include "tst_level_indicator.moc"

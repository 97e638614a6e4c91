// Proves that every text gets a mnemonic of its own, in every script, and that the controls of a
// page keep theirs while texts change.

#include "Mnemonics.h"

#include <QCheckBox>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

class TestMnemonics : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choosesLetters()
    {
        const std::pair<QStringList, QStringList> cases[] = {
            {{u"Save"_s, u"Save all"_s}, {u"&Save"_s, u"Save &all"_s}}, // beginnings of words
            {{u"Clear"_s, u"&Close"_s}, {u"C&lear"_s, u"&Close"_s}}, // marks stay
            {{u"&Select…"_s, u"&Select…"_s}, {u"&Select…"_s, u"S&elect…"_s}},
            {{u"&File"_s}, {u"F&ile"_s}}, // taken
            {{u"Ab"_s, u"A"_s}, {u"A&b"_s, u"&A"_s}}, // moves on for one that has no other
            {{u"A"_s, u"&A"_s}, {u"A"_s, u"&A"_s}}, // none left
            {{u"Q && A"_s}, {u"&Q && A"_s}},
            {{u"Ölen"_s}, {u"Ö&len"_s}},
            {{u"Обрати…"_s, u"Обрати…"_s}, {u"&Обрати…"_s, u"О&брати…"_s}},
            {{u"مسح"_s}, {u"&مسح"_s}},
            {{u"选择…"_s, u"保存(&S)"_s, u"缩放 "_s},
             {u"选择(&A)…"_s, u"保存(&S)"_s, u"缩放(&B) "_s}},
            {{u"ZIP 作成(&X)"_s, u"PDF(&P)"_s}, {u"&ZIP 作成"_s, u"PDF(&P)"_s}},
            {{QString(), u"OK"_s}, {QString(), u"&OK"_s}},
        };
        const QSet<QChar> menuBar{QChar(u'F')};
        for (const auto &[texts, marked] : cases) {
            QCOMPARE(MnemonicChoice::unique(texts, menuBar), marked);
            QCOMPARE(MnemonicChoice::unique(marked, menuBar), marked); // nor change later
        }
    }

    void textsMayChangeAtRunTime()
    {
        QWidget page;
        auto *layout = new QVBoxLayout(&page);
        auto *caches = new QCheckBox(u"Caches "_s);
        auto *check = new QPushButton(u"Check"_s);
        auto *stop = new QPushButton(u"&Stop"_s);
        auto *trash = new QCheckBox(u"Trash "_s);
        auto *later = new QPushButton(u"Zoo"_s);
        for (QWidget *widget : QList<QWidget *>{later, caches, check, stop, trash})
            layout->addWidget(widget);
        Mnemonics::keepUnique(&page);
        page.show();
        QCOMPARE(check->text(), u"C&heck"_s);
        QCOMPARE(trash->text(), u"&Trash "_s);
        caches->setText(u"Caches 3.2 GB"_s);
        trash->setText(u"Trash 4.0 KB"_s);
        later->setText(u"Tree"_s); // would have liked the letter
        QTRY_COMPARE(caches->text(), u"&Caches 3.2 GB"_s);
        QTRY_COMPARE(trash->text(), u"&Trash 4.0 KB"_s);
        QCOMPARE(check->text(), u"C&heck"_s);
        stop->setText(u"&Halt"_s); // comes with a mark of its own
        QTRY_COMPARE(check->text(), u"Ch&eck"_s);
        QCOMPARE(stop->text(), u"&Halt"_s);
        stop->setText(u"&Stop"_s);
        QTRY_COMPARE(check->text(), u"C&heck"_s);
    }
};

QTEST_MAIN(TestMnemonics)
#include "tst_mnemonics.moc"

// Proves that every control gets a mnemonic of its own, in every script, and that the controls of a
// page keep theirs while texts change.

#include "Mnemonics.h"

#include <QCheckBox>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace
{

QStringList textsOf(const QList<QAbstractButton *> &buttons)
{
    QStringList texts;
    for (const QAbstractButton *button : buttons)
        texts += button->text();
    return texts;
}

/// A window whose menu bar uses F, with a page of buttons.
struct Window : QMainWindow {
    explicit Window(const QStringList &texts)
    {
        menuBar()->addMenu(u"&File"_s);
        auto *page = new QWidget;
        auto *layout = new QVBoxLayout(page);
        for (const QString &text : texts)
            layout->addWidget(buttons.emplaceBack(new QCheckBox(text)));
        setCentralWidget(page);
        Mnemonics::keepUnique(page);
        show();
    }

    QList<QAbstractButton *> buttons;
};

} // namespace

class TestMnemonics : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachTextGetsItsOwn()
    {
        const std::pair<QStringList, QStringList> cases[] = {
            {{u"Save"_s, u"Save all"_s}, {u"&Save"_s, u"Save &all"_s}}, // beginnings of words
            {{u"Clear"_s, u"&Close"_s}, {u"C&lear"_s, u"&Close"_s}}, // marks stay
            {{u"&Select…"_s, u"&Select…"_s}, {u"&Select…"_s, u"S&elect…"_s}},
            {{u"&File"_s}, {u"F&ile"_s}}, // taken by the menu bar
            {{u"Ab"_s, u"A"_s}, {u"&Ab"_s, u"A(&B)"_s}}, // none of its own is left
            {{u"&Every"_s, u"&Book"_s, u"Bo"_s, u"Ex"_s}, // little choice comes first
             {u"E&very"_s, u"B&ook"_s, u"&Bo"_s, u"&Ex"_s}},
            {{u"Q && A"_s}, {u"&Q && A"_s}},
            {{u"Ölen"_s}, {u"Ö&len"_s}},
            {{u"Обрати…"_s, u"Обрати…"_s}, {u"&Обрати…"_s, u"О&брати…"_s}},
            {{u"مسح"_s}, {u"&مسح"_s}},
            {{u"选择…"_s, u"保存(&S)"_s, u"缩放 "_s},
             {u"选择(&A)…"_s, u"保存(&S)"_s, u"缩放(&B) "_s}},
            {{u"ZIP 作成(&F)"_s, u"PDF(&P)"_s}, {u"&ZIP 作成"_s, u"PDF(&P)"_s}},
            {{QString(), u"OK"_s}, {QString(), u"&OK"_s}},
        };
        for (const auto &[texts, marked] : cases) {
            Window window(texts);
            QCOMPARE(textsOf(window.buttons), marked);
            window.centralWidget()->hide();
            window.centralWidget()->show();
            QCOMPARE(textsOf(window.buttons), marked); // nor change later
        }
    }

    void theOthersKeepTheirsWhenATextIsSet()
    {
        Window window({u"Zoo"_s, u"Caches "_s, u"Check"_s, u"&Stop"_s, u"Trash "_s});
        QCOMPARE(textsOf(window.buttons),
                 QStringList({u"&Zoo"_s, u"&Caches "_s, u"C&heck"_s, u"&Stop"_s, u"&Trash "_s}));
        const auto set = [&window](qsizetype button, const QString &text) {
            window.buttons.at(button)->setText(text);
        };
        set(1, u"Caches 3.2 GB"_s);
        QTRY_COMPARE(window.buttons.at(1)->text(), u"&Caches 3.2 GB"_s);
        set(0, u"Tree"_s); // T is taken
        QTRY_COMPARE(window.buttons.at(0)->text(), u"T&ree"_s);
        set(3, u"&Halt"_s); // so is its own mark
        QTRY_COMPARE(window.buttons.at(3)->text(), u"H&alt"_s);
        set(3, u"&Stop"_s);
        set(4, u"To the trash"_s); // keeps what it had though a word begins with another
        QTRY_COMPARE(textsOf(window.buttons),
                     QStringList({u"T&ree"_s, u"&Caches 3.2 GB"_s, u"C&heck"_s, u"&Stop"_s,
                                  u"&To the trash"_s}));
    }
};

QTEST_MAIN(TestMnemonics)
#include "tst_mnemonics.moc"

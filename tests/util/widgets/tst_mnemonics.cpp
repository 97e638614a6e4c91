// Proves that every control of a page gets a mnemonic of its own, in every script, and keeps it
// while texts change.

#include "Mnemonics.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

class TestMnemonics : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choosesLetters_data();
    void choosesLetters();
    void choosingAgainChangesNothing();
    void pagesAreKeptApart();
    void textsMayChangeAtRunTime();
};

void TestMnemonics::choosesLetters_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QStringList>("marked");
    QTest::newRow("first letters")
        << QStringList{u"Zip"_s, u"Clear"_s} << QStringList{u"&Zip"_s, u"&Clear"_s};
    QTest::newRow("beginnings of words")
        << QStringList{u"Save"_s, u"Save all"_s} << QStringList{u"&Save"_s, u"Save &all"_s};
    QTest::newRow("marks stay") << QStringList{u"Clear"_s, u"&Close"_s, u"Con&vert"_s}
                                << QStringList{u"C&lear"_s, u"&Close"_s, u"Con&vert"_s};
    QTest::newRow("the first of two alike stays")
        << QStringList{u"&Select…"_s, u"&Select…"_s} << QStringList{u"&Select…"_s, u"S&elect…"_s};
    QTest::newRow("taken") << QStringList{u"&File"_s} << QStringList{u"F&ile"_s};
    QTest::newRow("moves on for one that has no other")
        << QStringList{u"Ab"_s, u"A"_s} << QStringList{u"A&b"_s, u"&A"_s};
    QTest::newRow("none left") << QStringList{u"A"_s, u"&A"_s} << QStringList{u"A"_s, u"&A"_s};
    QTest::newRow("an ampersand") << QStringList{u"Q && A"_s} << QStringList{u"&Q && A"_s};
    QTest::newRow("accents last") << QStringList{u"Ölen"_s} << QStringList{u"Ö&len"_s};
    QTest::newRow("Cyrillic") << QStringList{u"Обрати…"_s, u"Обрати…"_s}
                              << QStringList{u"&Обрати…"_s, u"О&брати…"_s};
    QTest::newRow("Arabic") << QStringList{u"مسح"_s} << QStringList{u"&مسح"_s};
    QTest::newRow("Chinese") << QStringList{u"选择…"_s, u"选择…"_s, u"缩放 "_s}
                             << QStringList{u"选择(&A)…"_s, u"选择(&B)…"_s, u"缩放(&C) "_s};
    QTest::newRow("Chinese with marks")
        << QStringList{u"选择(&S)…"_s, u"保存(&S)"_s} << QStringList{u"选择(&S)…"_s, u"保存(&A)"_s};
    QTest::newRow("a Latin word amid") << QStringList{u"ZIP 作成(&X)"_s, u"PDF(&P)"_s}
                                       << QStringList{u"&ZIP 作成"_s, u"PDF(&P)"_s};
    QTest::newRow("nothing") << QStringList{QString(), u"OK"_s} << QStringList{QString(), u"&OK"_s};
}

void TestMnemonics::choosesLetters()
{
    QFETCH(QStringList, texts);
    const QSet<QChar> menuBar{QChar(u'F')};
    QTEST(MnemonicChoice::unique(texts, menuBar), "marked");
}

void TestMnemonics::choosingAgainChangesNothing()
{
    const QSet<QChar> menuBar{QChar(u'A')};
    const QStringList once = MnemonicChoice::unique(
        {u"Auswählen…"_s, u"Auswählen…"_s, u"选择…"_s, u"&Leeren"_s, u"Zip (klein)"_s}, menuBar);
    QCOMPARE(MnemonicChoice::unique(once, menuBar), once);
}

void TestMnemonics::pagesAreKeptApart()
{
    QMainWindow window;
    window.menuBar()->addMenu(u"&File"_s);
    auto *page = new QWidget;
    window.setCentralWidget(page);
    auto *layout = new QVBoxLayout(page);
    auto *box = new QGroupBox(u"Source"_s);
    auto *inBox = new QVBoxLayout(box);
    auto *field = new QLineEdit;
    auto *select = new QPushButton(u"Fetch"_s);
    inBox->addWidget(field);
    inBox->addWidget(select);
    auto *silent = new QGroupBox(u"Progress"_s);
    auto *tabs = new QTabWidget;
    auto *first = new QCheckBox(u"Edit"_s);
    auto *second = new QCheckBox(u"Edit"_s);
    for (QCheckBox *check : {first, second}) {
        auto *tab = new QWidget;
        (new QVBoxLayout(tab))->addWidget(check);
        tabs->addTab(tab, u"Tab"_s);
    }
    auto *label = new QLabel(u"Edit"_s);
    label->setBuddy(tabs);
    for (QWidget *widget : QList<QWidget *>{box, silent, tabs, label})
        layout->addWidget(widget);
    Mnemonics::keepUnique(page);
    Mnemonics::keepUnique(page);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));

    QCOMPARE(box->title(), u"&Source"_s);
    QCOMPARE(select->text(), u"F&etch"_s); // the F is the menu bar's
    QCOMPARE(silent->title(), u"Progress"_s); // there is nothing that it could lead to
    QCOMPARE(label->text(), u"E&dit"_s);
    QCOMPARE(first->text(), second->text()); // never seen together
    QCOMPARE(first->text(), u"Ed&it"_s);

    QSignalSpy pressed(select, &QPushButton::clicked);
    QTest::keyClick(page, Qt::Key_E, Qt::AltModifier);
    QTRY_COMPARE(pressed.size(), 1);
    QTest::keyClick(page, Qt::Key_S, Qt::AltModifier);
    QTRY_VERIFY(field->hasFocus());
}

void TestMnemonics::textsMayChangeAtRunTime()
{
    QWidget page;
    auto *layout = new QVBoxLayout(&page);
    auto *box = new QGroupBox;
    auto *inBox = new QVBoxLayout(box);
    auto *caches = new QCheckBox(u"Caches "_s);
    auto *check = new QPushButton(u"Check"_s);
    auto *stop = new QPushButton(u"&Stop"_s);
    inBox->addWidget(caches);
    layout->addWidget(box);
    layout->addWidget(check);
    layout->addWidget(stop);
    Mnemonics::keepUnique(&page);
    page.show();
    QCOMPARE(check->text(), u"C&heck"_s);
    caches->setText(u"Caches 3.2 GB"_s);
    QTRY_COMPARE(caches->text(), u"&Caches 3.2 GB"_s);
    stop->setText(u"&Halt"_s); // comes with a mark of its own
    QTRY_COMPARE(check->text(), u"Ch&eck"_s);
    QCOMPARE(stop->text(), u"&Halt"_s);
    stop->setText(u"&Stop"_s);
    QTRY_COMPARE(check->text(), u"C&heck"_s);
}

QTEST_MAIN(TestMnemonics)
#include "tst_mnemonics.moc"

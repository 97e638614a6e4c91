// Proves that every window can be used with the keyboard alone and makes sense to a screen reader,
// in every language.

#include "Application.h"
#include "HoverTableAppDelegate.h"
#include "Mnemonics.h"
#include "Scenes.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>
#include <QTabBar>
#include <QTableView>
#include <QTest>

using namespace Qt::StringLiterals;
using Scenes::described;
using Scenes::shownIn;

namespace
{

/// Everything that is wrong, so that one run shows it all.
class Findings
{
public:
    void expect(bool holds, const QString &otherwise)
    {
        if (!holds && !m_found.contains(otherwise))
            m_found += otherwise;
    }
    QString text() const { return m_found.join(u'\n'); }

private:
    QStringList m_found;
};

template <typename Class>
bool isA(const QWidget &widget)
{
    return qobject_cast<const Class *>(&widget);
}

QAccessible::Role expectedRole(const QWidget &widget)
{
    if (isA<QCheckBox>(widget))
        return QAccessible::CheckBox;
    if (isA<QPushButton>(widget))
        return QAccessible::Button;
    if (isA<QLineEdit>(widget) || isA<QPlainTextEdit>(widget))
        return QAccessible::EditableText;
    if (isA<QComboBox>(widget))
        return QAccessible::ComboBox;
    if (isA<QSlider>(widget))
        return QAccessible::Slider;
    if (isA<QProgressBar>(widget))
        return QAccessible::ProgressBar;
    if (isA<QTableView>(widget))
        return QAccessible::Table;
    if (isA<QListView>(widget))
        return QAccessible::List;
    return isA<QTabBar>(widget) ? QAccessible::PageTabList : QAccessible::NoRole;
}

bool hasValue(const QWidget &widget, QAccessibleInterface &interface)
{
    if (isA<QSlider>(widget) || isA<QProgressBar>(widget)) {
        const QAccessibleValueInterface *value = interface.valueInterface();
        return value && value->maximumValue().isValid();
    }
    if (const auto *popUp = qobject_cast<const QComboBox *>(&widget))
        return interface.text(QAccessible::Value) == popUp->currentText();
    return true;
}

bool takesTab(const QWidget &widget)
{
    return widget.focusPolicy() & Qt::TabFocus && widget.isEnabled() && !widget.focusProxy();
}

void lookAtNames(const QString &where, const QWidget &window, Findings &findings)
{
    for (QWidget *widget : shownIn(window)) {
        const QAccessible::Role role = expectedRole(*widget);
        if (!takesTab(*widget) && role != QAccessible::ProgressBar)
            continue;
        const QString what = where + u": "_s + described(*widget);
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(widget);
        findings.expect(interface, what + u" is unknown to a screen reader"_s);
        if (!interface)
            continue;
        const QString name = interface->text(QAccessible::Name);
        findings.expect(!name.trimmed().isEmpty() || isA<QTabBar>(*widget),
                        what + u" has no name"_s);
        findings.expect(!name.contains(u'&'), what + u" shows a mark in its name "_s + name);
        findings.expect(role != QAccessible::NoRole && interface->role() == role,
                        what + u" has the role %1"_s.arg(interface->role()));
        findings.expect(hasValue(*widget, *interface), what + u" has no value"_s);
    }
}

/// The widgets that repeated presses of a key lead to, until the first one comes again.
QList<QWidget *> tour(QWidget &window, Qt::Key key)
{
    QList<QWidget *> stops;
    for (int i = 0; i < 60; ++i) {
        QTest::keyClick(&window, key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
        QWidget *stop = QApplication::focusWidget();
        if (!stop || stops.contains(stop))
            break;
        stops += stop;
    }
    return stops;
}

// A stop may be beside or below the one before it, but not above or, in its row, before it.
bool isInOrder(const QWidget &before, const QWidget &after)
{
    const QRect first(before.mapToGlobal(QPoint()), before.size());
    const QRect second(after.mapToGlobal(QPoint()), after.size());
    const bool sameRow = first.top() < second.center().y() && second.center().y() < first.bottom();
    const bool mirrored = QGuiApplication::layoutDirection() == Qt::RightToLeft;
    if (sameRow)
        return mirrored ? second.center().x() < first.center().x()
                        : second.center().x() > first.center().x();
    return second.top() >= first.top()
        || (mirrored ? second.right() < first.left() : second.left() > first.right());
}

void lookAtTabOrder(const QString &where, QWidget &window, Findings &findings)
{
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window))
        return findings.expect(false, where + u": cannot be activated"_s);
    const QList<QWidget *> stops = tour(window, Qt::Key_Tab);
    for (const QWidget *widget : shownIn(window)) {
        if (takesTab(*widget))
            findings.expect(stops.contains(widget),
                            where + u": Tab does not reach "_s + described(*widget));
    }
    const QList<QWidget *> back = tour(window, Qt::Key_Backtab);
    findings.expect(QSet<QWidget *>(stops.begin(), stops.end())
                        == QSet<QWidget *>(back.begin(), back.end()),
                    where + u": the way back has other stops than the way there"_s);
    // From the last stop the key leads up to the first one: the only jump that is allowed.
    QStringList jumps;
    for (qsizetype i = 0; i < stops.size(); ++i) {
        const QWidget &next = *stops.at((i + 1) % stops.size());
        if (!isInOrder(*stops.at(i), next))
            jumps += described(next) + u" comes after "_s + described(*stops.at(i));
    }
    findings.expect(jumps.size() <= 1, where + u": "_s + jumps.join(u", "_s));
}

QString labelOf(const QWidget &widget)
{
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        return takesTab(widget) ? button->text() : QString();
    if (const auto *box = qobject_cast<const QGroupBox *>(&widget))
        return box->title();
    const auto *label = qobject_cast<const QLabel *>(&widget);
    return label && label->buddy() ? label->text() : QString();
}

void expectDifferentLetters(const QString &where, const QStringList &texts, Findings &findings)
{
    QHash<QChar, QString> holders;
    for (const QString &text : texts) {
        const QChar letter = Mnemonics::of(text);
        findings.expect(letter.isNull() || !holders.contains(letter),
                        where + u": "_s + text + u" and "_s + holders.value(letter));
        holders[letter] = text;
    }
}

QStringList textsOf(const QList<QAction *> &actions)
{
    QStringList texts;
    for (const QAction *action : actions)
        texts += action->text();
    return texts;
}

void lookAtMnemonics(const QString &where, const QWidget &window, Findings &findings)
{
    QStringList texts;
    for (const QWidget *widget : shownIn(window)) {
        const QString label = labelOf(*widget);
        findings.expect(label.isEmpty() || isA<QGroupBox>(*widget)
                            || !Mnemonics::of(label).isNull(),
                        where + u": no mnemonic in "_s + label);
        texts += label;
        if (const auto *tabs = qobject_cast<const QTabBar *>(widget))
            for (int i = 0; i < tabs->count(); ++i)
                texts += tabs->tabText(i);
        if (!isA<QMenuBar>(*widget))
            continue;
        texts += textsOf(widget->actions());
        for (const QAction *entry : widget->actions())
            expectDifferentLetters(where, textsOf(entry->menu()->actions()), findings);
    }
    expectDifferentLetters(where, texts, findings);
}

} // namespace

class TestAccessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Scenes::prepare();
        QAccessible::setActive(true);
    }

    void everyWindowInEveryLanguage_data()
    {
        QTest::addColumn<QString>("language");
        for (const QString &language : Scenes::languages())
            QTest::newRow(qPrintable(language)) << language;
    }

    void everyWindowInEveryLanguage()
    {
        QFETCH(QString, language);
        const Scenes::Language inUse(language);
        Application application;
        application.start();
        Findings findings;
        int scenes = 0;
        Scenes::visit(application, [&](const QString &scene, QWidget &window) {
            ++scenes;
            lookAtNames(scene, window, findings);
            lookAtMnemonics(scene, window, findings);
            if (window.isModal() || !QApplication::activeModalWidget())
                lookAtTabOrder(scene, window, findings);
        });
        QVERIFY2(findings.text().isEmpty(), qPrintable(findings.text()));
        QCOMPARE(scenes, application.tools().rowCount() + 12);
    }
};

QTEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"

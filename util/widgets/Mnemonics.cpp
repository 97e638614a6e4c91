#include "Mnemonics.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QSlider>
#include <QStackedWidget>
#include <QTabBar>
#include <QToolButton>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace
{

const char *textProperty(const QWidget &control)
{
    return qobject_cast<const QGroupBox *>(&control) ? "title" : "text";
}

QString textOf(const QWidget &control)
{
    return control.property(textProperty(control)).toString();
}

bool isField(const QWidget *widget)
{
    return qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QComboBox *>(widget)
        || qobject_cast<const QPlainTextEdit *>(widget) || qobject_cast<const QSlider *>(widget);
}

// The box's title leads to its first field, where that has no label of its own.
bool namesAField(const QGroupBox &box)
{
    const auto children = box.findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    const bool hasLabels = std::ranges::any_of(children, [](const QWidget *child) {
        const auto *label = qobject_cast<const QLabel *>(child);
        return label && label->buddy();
    });
    return !hasLabels && std::ranges::any_of(children, isField);
}

bool hasMnemonic(const QWidget &widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        return label->buddy() && !label->text().isEmpty();
    if (const auto *box = qobject_cast<const QGroupBox *>(&widget))
        return !MnemonicChoice::letterOf(box->title()).isNull()
            || (!box->title().isEmpty() && namesAField(*box));
    const auto *button = qobject_cast<const QAbstractButton *>(&widget);
    return button && !button->text().isEmpty() && button->focusPolicy() != Qt::NoFocus
        && !qobject_cast<const QToolButton *>(button);
}

/// What is seen at the same time as the part itself, and the pages of tabs, of which one is seen.
struct Contents {
    QList<QWidget *> controls;
    QList<QTabBar *> tabBars;
    QList<const QWidget *> pages;
};

void collect(const QWidget &part, Contents &found)
{
    const bool isStack = qobject_cast<const QStackedWidget *>(&part);
    const auto children = part.findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    for (QWidget *child : children) {
        if (child->isWindow())
            continue;
        if (isStack) {
            found.pages += child;
            continue;
        }
        if (auto *bar = qobject_cast<QTabBar *>(child))
            found.tabBars += bar;
        else if (hasMnemonic(*child))
            found.controls += child;
        collect(*child, found);
    }
}

QSet<QChar> lettersOfMenuBar(const QWidget &page)
{
    QSet<QChar> letters;
    const auto *window = qobject_cast<const QMainWindow *>(page.window());
    const QWidget *bar = window ? window->menuWidget() : nullptr;
    const auto actions = bar ? bar->actions() : QList<QAction *>();
    for (const QAction *action : actions)
        letters += MnemonicChoice::letterOf(action->text());
    return letters;
}

// Fingers remember letters: a text that becomes longer at its end keeps the one that it had.
QString keepingLetter(const QString &text, const QString &before)
{
    const QChar letter = MnemonicChoice::letterOf(before);
    if (letter.isNull() || !MnemonicChoice::letterOf(text).isNull())
        return text;
    const QString brackets = u"(&%1)"_s.arg(letter);
    if (before.contains(brackets))
        return text + brackets;
    const auto mark = std::ranges::mismatch(text, before).in2; // what the text lacks
    const qsizetype place = mark - before.begin();
    const bool isThere = place < text.size() && *mark == u'&' && text.at(place).toUpper() == letter;
    return isThere ? QString(text).insert(place, u'&') : text;
}

// A tab is reached with the arrow keys; those that have a letter keep it alone.
void assignTabs(QTabBar &bar, QSet<QChar> &taken)
{
    for (int i = 0; i < bar.count(); ++i) {
        const QChar letter = MnemonicChoice::letterOf(bar.tabText(i));
        if (letter.isNull())
            continue;
        if (taken.contains(letter))
            bar.setTabText(i, MnemonicChoice::unique({bar.tabText(i)}, taken).constFirst());
        taken += MnemonicChoice::letterOf(bar.tabText(i));
    }
}

} // namespace

void Mnemonics::keepUnique(QWidget *page)
{
    if (!page->findChild<Mnemonics *>(QString(), Qt::FindDirectChildrenOnly))
        new Mnemonics(page);
}

Mnemonics::Mnemonics(QWidget *page) : QObject(page), m_page(page)
{
    page->installEventFilter(this);
    if (page->isVisible())
        assign();
}

bool Mnemonics::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show || event->type() == QEvent::LayoutRequest)
        assign();
    return QObject::eventFilter(watched, event);
}

void Mnemonics::assign()
{
    Texts texts;
    assignIn(*m_page, lettersOfMenuBar(*m_page), texts);
    m_texts = texts; // without those that are gone
}

void Mnemonics::assignIn(const QWidget &part, QSet<QChar> taken, Texts &texts) const
{
    Contents contents;
    collect(part, contents);
    for (QTabBar *bar : std::as_const(contents.tabBars))
        assignTabs(*bar, taken);
    QStringList wanted;
    for (const QWidget *control : std::as_const(contents.controls)) {
        const Marked known = m_texts.value(control);
        const QString text = textOf(*control);
        wanted += known.shown == text ? known.wanted : keepingLetter(text, known.shown);
    }
    const QStringList marked = MnemonicChoice::unique(wanted, taken);
    for (qsizetype i = 0; i < marked.size(); ++i) {
        QWidget &control = *contents.controls.at(i);
        if (textOf(control) != marked.at(i))
            control.setProperty(textProperty(control), marked.at(i));
        texts[&control] = {wanted.at(i), marked.at(i)};
        taken += MnemonicChoice::letterOf(marked.at(i));
    }
    for (const QWidget *page : std::as_const(contents.pages))
        assignIn(*page, taken, texts);
}

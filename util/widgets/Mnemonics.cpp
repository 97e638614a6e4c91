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
#include <QRegularExpression>
#include <QSlider>
#include <QStackedWidget>
#include <QTabBar>
#include <QToolButton>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace
{

constexpr auto mark = u'&';

/// The position of the mark; -1 for none.
qsizetype markIn(const QString &text)
{
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text.at(i) != mark)
            continue;
        if (text.at(i + 1) != mark && !text.at(i + 1).isSpace())
            return i;
        ++i; // a doubled mark is the character
    }
    return -1;
}

// A character that a key of the user's own keyboard gives without a detour.
bool canBeTyped(QChar c)
{
    static const QSet<QChar::Script> alphabets{QChar::Script_Latin,  QChar::Script_Cyrillic,
                                               QChar::Script_Greek,  QChar::Script_Arabic,
                                               QChar::Script_Hebrew, QChar::Script_Georgian};
    return c.isLetter() && alphabets.contains(c.script());
}

bool hasLittleChoice(const QString &text)
{
    const auto letters = std::ranges::count_if(text, canBeTyped);
    return letters >= 1 && letters <= 3;
}

/// The place for a mark before a character that will do (in upper case): at the beginning of a word
/// and without an accent if possible; -1 for none.
template <class Predicate>
qsizetype bestPlace(const QString &plain, const Predicate &willDo)
{
    qsizetype best = -1;
    int bestRank = 4;
    for (qsizetype i = 0; i < plain.size() && bestRank > 0; ++i) {
        const QChar c = plain.at(i);
        if (!canBeTyped(c) || !willDo(c.toUpper()))
            continue;
        const bool startsWord = i == 0 || !plain.at(i - 1).isLetterOrNumber();
        const bool hasAccent = c.script() == QChar::Script_Latin && c.unicode() > 127;
        const int rank = (startsWord ? 0 : 1) + (hasAccent ? 2 : 0);
        if (rank < bestRank) {
            best = i;
            bestRank = rank;
        }
    }
    return best;
}

// "選択(&S)…": how languages are marked whose characters are not typed one by one.
QString withBrackets(const QString &plain, const QSet<QChar> &taken)
{
    static const QRegularExpression ending(u"[\\s.…:：。]*$"_s);
    const auto place = ending.match(plain).capturedStart();
    for (char c = 'A'; c <= 'Z'; ++c) {
        if (!taken.contains(QLatin1Char(c)))
            return plain.left(place) + u"(&%1)"_s.arg(QLatin1Char(c)) + plain.mid(place);
    }
    return plain;
}

bool isField(const QWidget *widget)
{
    return qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QComboBox *>(widget)
        || qobject_cast<const QPlainTextEdit *>(widget) || qobject_cast<const QSlider *>(widget);
}

// The box's title leads to its first field, if that has no label of its own.
bool namesAField(const QGroupBox &box)
{
    const auto children = box.findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    const bool hasLabels = std::ranges::any_of(children, [](const QWidget *child) {
        const auto *label = qobject_cast<const QLabel *>(child);
        return label && label->buddy();
    });
    return !hasLabels && std::ranges::any_of(children, isField);
}

/// The property that holds the mnemonic of a control; null if the widget has none.
const char *labelProperty(const QWidget &widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        return label->buddy() ? "text" : nullptr;
    if (const auto *box = qobject_cast<const QGroupBox *>(&widget))
        return !Mnemonics::of(box->title()).isNull() || namesAField(*box) ? "title" : nullptr;
    const auto *button = qobject_cast<const QAbstractButton *>(&widget);
    const bool isReached = button && button->focusPolicy() != Qt::NoFocus;
    return isReached && !qobject_cast<const QToolButton *>(button) ? "text" : nullptr;
}

/// What is seen at the same time as the part itself, and the pages of tabs, of which one is seen.
struct Contents {
    QWidgetList controls;
    QList<QTabBar *> tabBars;
    QWidgetList pages;
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
        else if (labelProperty(*child))
            found.controls += child;
        collect(*child, found);
    }
}

QSet<QChar> mnemonicsOfMenuBar(const QWidget &page)
{
    QSet<QChar> taken;
    const auto *window = qobject_cast<const QMainWindow *>(page.window());
    const QWidget *bar = window ? window->menuWidget() : nullptr;
    const auto actions = bar ? bar->actions() : QList<QAction *>();
    for (const QAction *action : actions)
        taken += Mnemonics::of(action->text());
    return taken;
}

// A tab is reached with the arrow keys; only those that are marked keep a mnemonic.
void assignTabs(QTabBar &bar, QSet<QChar> &taken)
{
    for (int i = 0; i < bar.count(); ++i) {
        const QChar own = Mnemonics::of(bar.tabText(i));
        if (own.isNull())
            continue;
        if (taken.contains(own))
            bar.setTabText(i, Mnemonics::marked(bar.tabText(i), taken));
        taken += Mnemonics::of(bar.tabText(i));
    }
}

} // namespace

QChar Mnemonics::of(const QString &text)
{
    const qsizetype place = markIn(text);
    return place < 0 ? QChar() : text.at(place + 1).toUpper();
}

QString Mnemonics::withoutMark(const QString &text)
{
    const qsizetype place = markIn(text);
    if (place < 0)
        return text;
    const bool isInBrackets =
        place > 0 && text.at(place - 1) == u'(' && text.mid(place + 2, 1) == u")";
    return isInBrackets ? text.left(place - 1) + text.mid(place + 3)
                        : text.left(place) + text.mid(place + 1);
}

QString Mnemonics::marked(const QString &text, const QSet<QChar> &taken, QChar preferred)
{
    const auto isFree = [&taken](QChar c) { return !taken.contains(c); };
    const QChar own = of(text);
    if (text.isEmpty() || (!own.isNull() && isFree(own)))
        return text;
    const QString plain = withoutMark(text);
    qsizetype place = -1;
    if (isFree(preferred))
        place = bestPlace(plain, [preferred](QChar c) { return c == preferred; });
    if (place < 0)
        place = bestPlace(plain, isFree);
    return place < 0 ? withBrackets(plain, taken) : QString(plain).insert(place, mark);
}

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

// A control whose text is set asks for a new layout; so do many things that set none, such as the
// progress of a run.
bool Mnemonics::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show || (event->type() == QEvent::LayoutRequest && hasNewText()))
        assign();
    return QObject::eventFilter(watched, event);
}

bool Mnemonics::hasNewText() const
{
    for (const Marked &known : m_marked) {
        if (known.control && known.control->property(known.property).toString() != known.text)
            return true;
    }
    return false;
}

void Mnemonics::assign()
{
    QList<Marked> all;
    assignIn(*m_page, mnemonicsOfMenuBar(*m_page), all);
    m_marked = all;
}

// What was given out stays, so that nothing moves without need. Then come those with little choice,
// those that the program marked, and the others.
void Mnemonics::assignIn(const QWidget &part, QSet<QChar> taken, QList<Marked> &all) const
{
    Contents contents;
    collect(part, contents);
    for (QTabBar *bar : std::as_const(contents.tabBars))
        assignTabs(*bar, taken);
    QList<Marked> waiting;
    for (QWidget *control : std::as_const(contents.controls)) {
        const char *property = labelProperty(*control);
        waiting += {control, property, control->property(property).toString()};
    }
    const auto serve = [&](const auto &isNext) {
        waiting.removeIf([&](const Marked &control) {
            if (!isNext(control))
                return false;
            const QString text = marked(control.text, taken, of(textGivenTo(control.control)));
            control.control->setProperty(control.property, text);
            taken += of(text);
            all += {control.control, control.property, text};
            return true;
        });
    };
    const auto keepsItsOwn = [&taken](const Marked &control) {
        const QChar own = of(control.text);
        return !own.isNull() && !taken.contains(own);
    };
    serve([&](const Marked &control) {
        return keepsItsOwn(control) && textGivenTo(control.control) == control.text;
    });
    serve([](const Marked &control) { return hasLittleChoice(control.text); });
    serve(keepsItsOwn);
    serve([](const Marked &) { return true; });
    for (const QWidget *page : std::as_const(contents.pages))
        assignIn(*page, taken, all);
}

QString Mnemonics::textGivenTo(const QWidget *control) const
{
    const auto known = std::ranges::find(m_marked, control, &Marked::control);
    return known == m_marked.end() ? QString() : known->text;
}

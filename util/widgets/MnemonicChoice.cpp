#include "MnemonicChoice.h"

#include <QHash>
#include <QList>
#include <QRegularExpression>

#include <algorithm>
#include <functional>
#include <utility>

using namespace Qt::StringLiterals;

namespace
{

constexpr auto mark = u'&';

/// Where the mark stands; -1 for nowhere.
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

// "選択(&S)…": how languages whose letters are not typed one by one are marked.
bool isInBrackets(const QString &text, qsizetype place)
{
    return place > 0 && text.at(place - 1) == u'(' && text.mid(place + 2, 1) == u")";
}

bool isLatin(QChar letter)
{
    return letter.script() == QChar::Script_Latin;
}

// A character that a key of the user's own keyboard gives without a detour.
bool canBeTyped(QChar c)
{
    static const QSet<QChar::Script> alphabets{QChar::Script_Latin,  QChar::Script_Cyrillic,
                                               QChar::Script_Greek,  QChar::Script_Arabic,
                                               QChar::Script_Hebrew, QChar::Script_Georgian};
    return c.isLetter() && alphabets.contains(c.script());
}

/// A letter that a text may be marked with, and where it stands; -1 for brackets at the end.
struct Candidate {
    QChar letter;
    qsizetype position = -1;
};

int rank(const QString &plain, qsizetype i)
{
    const bool startsWord = i == 0 || !plain.at(i - 1).isLetterOrNumber();
    const bool hasAccent = isLatin(plain.at(i)) && plain.at(i).unicode() > 127;
    return (startsWord ? 0 : 1) + (hasAccent ? 2 : 0);
}

/// In the order in which they please: the present letter, beginnings of words, others.
QList<Candidate> candidatesOf(const QString &text)
{
    const QString plain = MnemonicChoice::withoutMark(text);
    QList<Candidate> candidates;
    for (qsizetype i = 0; i < plain.size(); ++i) {
        if (canBeTyped(plain.at(i)))
            candidates += {plain.at(i).toUpper(), i};
    }
    std::ranges::stable_sort(candidates, {}, [&plain](const Candidate &candidate) {
        return rank(plain, candidate.position);
    });
    const QChar present = MnemonicChoice::letterOf(text);
    if (candidates.isEmpty()) {
        for (char letter = 'A'; letter <= 'Z'; ++letter)
            candidates += {QLatin1Char(letter), -1};
    }
    const auto kept = std::ranges::find(candidates, present, &Candidate::letter);
    if (kept != candidates.end()) {
        candidates.erase(kept);
        candidates.prepend({present, isInBrackets(text, markIn(text)) ? -1 : markIn(text)});
    }
    return candidates;
}

QString withLetter(const QString &text, const Candidate &candidate)
{
    const QString plain = MnemonicChoice::withoutMark(text);
    if (candidate.position >= 0)
        return plain.left(candidate.position) + mark + plain.mid(candidate.position);
    static const QRegularExpression ending(u"[\\s.…:：。]*$"_s);
    const qsizetype end = ending.match(plain).capturedStart();
    return plain.left(end) + u"(&%1)"_s.arg(candidate.letter) + plain.mid(end);
}

/// Gives out letters so that as many texts as possible get one: whoever finds all of its own
/// letters given away asks their holders to move on.
class Distribution
{
public:
    Distribution(const QStringList &texts, const QSet<QChar> &taken) : m_taken(taken)
    {
        for (const QString &text : texts)
            m_candidates += candidatesOf(text);
    }

    void place(qsizetype text, bool presentOnly)
    {
        QSet<QChar> asked = m_taken;
        if (presentOnly && !m_holders.contains(m_candidates.at(text).first().letter))
            take(text, 0, asked);
        else if (!presentOnly)
            find(text, asked);
    }

    const Candidate *of(qsizetype text) const
    {
        const auto held = m_chosen.constFind(text);
        return held == m_chosen.constEnd() ? nullptr : &m_candidates.at(text).at(*held);
    }

private:
    bool take(qsizetype text, qsizetype choice, QSet<QChar> &asked)
    {
        const QChar letter = m_candidates.at(text).at(choice).letter;
        if (asked.contains(letter))
            return false;
        asked += letter;
        if (m_holders.contains(letter) && !find(m_holders.value(letter), asked))
            return false;
        m_holders[letter] = text;
        m_chosen[text] = choice;
        return true;
    }

    bool find(qsizetype text, QSet<QChar> &asked)
    {
        const QList<Candidate> &candidates = m_candidates.at(text);
        for (const bool isHeld : {false, true}) {
            for (qsizetype i = 0; i < candidates.size(); ++i) {
                if (m_holders.contains(candidates.at(i).letter) == isHeld && take(text, i, asked))
                    return true;
            }
        }
        return false;
    }

    QSet<QChar> m_taken;
    QList<QList<Candidate>> m_candidates;
    QHash<QChar, qsizetype> m_holders;
    QHash<qsizetype, qsizetype> m_chosen; ///< Text to its candidate.
};

} // namespace

QChar MnemonicChoice::letterOf(const QString &text)
{
    const qsizetype place = markIn(text);
    return place < 0 ? QChar() : text.at(place + 1).toUpper();
}

QString MnemonicChoice::withoutMark(const QString &text)
{
    const qsizetype place = markIn(text);
    if (place < 0)
        return text;
    return isInBrackets(text, place) ? text.left(place - 1) + text.mid(place + 3)
                                     : text.left(place) + text.mid(place + 1);
}

QStringList MnemonicChoice::unique(const QStringList &texts, const QSet<QChar> &taken)
{
    Distribution letters(texts, taken);
    for (qsizetype i = 0; i < texts.size(); ++i) {
        if (!letterOf(texts.at(i)).isNull())
            letters.place(i, true);
    }
    for (qsizetype i = 0; i < texts.size(); ++i) {
        if (!texts.at(i).isEmpty() && !letters.of(i))
            letters.place(i, false);
    }
    QStringList marked;
    for (qsizetype i = 0; i < texts.size(); ++i) {
        const Candidate *letter = letters.of(i);
        marked += letter ? withLetter(texts.at(i), *letter) : withoutMark(texts.at(i));
    }
    return marked;
}

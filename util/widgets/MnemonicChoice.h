#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

/// Chooses the letters that, with Alt, lead to the controls of one page: pure functions on texts in
/// which "&" stands before the letter, and "&&" for the character itself. Callable from any thread.
namespace MnemonicChoice
{

/// The text's letter in upper case; null when it has none.
QChar letterOf(const QString &text);

/// The text without its mark. "選択(&S)…" loses the brackets, too.
QString withoutMark(const QString &text);

/// The texts, each marked with a letter that no other of them has and that is not taken (upper
/// case). A letter that a text is marked with already stays where that is possible; of two texts
/// marked alike the first keeps it. A text in letters that no key types directly gets a Latin one
/// in brackets at its end. Empty texts, and those for which no letter is left, have none.
QStringList unique(const QStringList &texts, const QSet<QChar> &taken);

} // namespace MnemonicChoice

#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

/// An artificial language, made from the English table: each text has accents and brackets and is
/// 40 % longer. So texts that are clipped, not looked up, or composed of pieces become visible.
/// Arguments (%1), mnemonics and a blank at the end do not change.
class PseudoTexts : public QTranslator
{
public:
    PseudoTexts() { m_isThere = m_english.load(QStringLiteral(":/localisation/toolvane_en.qm")); }

    bool isEmpty() const override { return !m_isThere; }

    QString translate(const char *context, const char *key, const char *comment,
                      int n) const override
    {
        const QString english = m_english.translate(context, key, comment, n);
        return english.isEmpty() ? english : disguised(english);
    }

    static QString disguised(const QString &english)
    {
        const QString text = english.trimmed();
        QString shown;
        for (qsizetype i = 0; i < text.size(); ++i) {
            const bool isKept = i > 0 && (text.at(i - 1) == u'%' || text.at(i - 1) == u'&');
            shown += isKept ? text.at(i) : accented(text.at(i));
        }
        const QString blank = english.endsWith(u' ') ? QStringLiteral(" ") : QString();
        return u'[' + shown + filling(text) + u']' + blank;
    }

private:
    static QChar accented(QChar letter)
    {
        static const QString plain = QStringLiteral("aceilnosuyzACEILNOSUYZ");
        static const QString accents = QStringLiteral("áçéíłñöšüýžÁÇÉÍŁÑÖŠÜÝŽ");
        const qsizetype place = plain.indexOf(letter);
        return place < 0 ? letter : accents.at(place);
    }

    // A text of one word stays one word.
    static QString filling(const QString &text)
    {
        const qsizetype length = (text.size() * 2 + 4) / 5;
        const bool isOneWord = !text.contains(u' ');
        QString filling;
        while (filling.size() < length)
            filling += !isOneWord && filling.size() % 8 == 0 ? u' ' : u'ø';
        return filling;
    }

    QTranslator m_english;
    bool m_isThere = false;
};

#include "NotesText.h"

#include <QHash>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{

class NotesReader
{
public:
    explicit NotesReader(QStringView html) : m_rest(html) { }

    QString read()
    {
        while (!m_rest.isEmpty()) {
            const qsizetype tag = m_rest.indexOf(u'<');
            appendText(take(tag < 0 ? m_rest.size() : tag));
            if (!m_rest.isEmpty())
                skipTag();
        }
        return m_text.trimmed();
    }

private:
    QStringView take(qsizetype size)
    {
        const QStringView taken = m_rest.first(size);
        m_rest = m_rest.sliced(size);
        return taken;
    }
    /// Up to and including the text; all that is left without it.
    QStringView takePast(QStringView text)
    {
        const qsizetype at = m_rest.indexOf(text, 0, Qt::CaseInsensitive);
        return take(at < 0 ? m_rest.size() : at + text.size());
    }

    void skipTag()
    {
        if (m_rest.startsWith(u"<!--")) {
            takePast(u"-->");
            return;
        }
        QStringView name = takePast(u">").sliced(1);
        const bool isEnd = name.startsWith(u'/');
        name = name.sliced(isEnd ? 1 : 0);
        qsizetype size = 0;
        while (size < name.size() && name[size].isLetterOrNumber())
            ++size;
        applyTag(name.first(size).toString().toLower(), isEnd);
    }
    void applyTag(const QString &name, bool isEnd)
    {
        static const QStringList withoutText{u"script"_s, u"style"_s, u"title"_s};
        static const QStringList within{u"a"_s,     u"abbr"_s, u"b"_s,      u"code"_s,   u"em"_s,
                                        u"font"_s,  u"i"_s,    u"img"_s,    u"kbd"_s,    u"s"_s,
                                        u"small"_s, u"span"_s, u"strong"_s, u"sub"_s,    u"sup"_s,
                                        u"tt"_s,    u"u"_s,    u"var"_s,    u"strike"_s, u"mark"_s};
        if (withoutText.contains(name) && !isEnd) {
            takePast(QString(u"</"_s + name));
            takePast(u">");
        } else if (!within.contains(name))
            beginLine();
        if (name == "li"_L1 && !isEnd)
            m_text += u"• "_s;
    }
    void beginLine()
    {
        while (m_text.endsWith(u' '))
            m_text.chop(1);
        if (!m_text.isEmpty() && !m_text.endsWith(u'\n'))
            m_text += u'\n';
    }

    void appendText(QStringView text)
    {
        for (qsizetype at = 0; at < text.size(); ++at) {
            const QChar c = text[at];
            if (c == u'&')
                at += appendEntity(text.sliced(at));
            else if (!c.isSpace())
                m_text += c;
            else if (!m_text.isEmpty() && !m_text.back().isSpace())
                m_text += u' ';
        }
    }
    /// Returns how many characters the entity has after its first; of an unknown one that alone is
    /// taken, as text.
    qsizetype appendEntity(QStringView text)
    {
        constexpr qsizetype maxEntity = 12;
        const qsizetype end = text.first(std::min(text.size(), maxEntity)).indexOf(u';');
        const char32_t character = end < 0 ? 0 : characterOf(text.sliced(1, end - 1));
        if (character == 0) {
            m_text += u'&';
            return 0;
        }
        m_text += QStringView(QChar::fromUcs4(character));
        return end;
    }
    static char32_t characterOf(QStringView entity)
    {
        static const QHash<QString, char32_t> named{
            {u"amp"_s, U'&'},  {u"lt"_s, U'<'},    {u"gt"_s, U'>'},
            {u"quot"_s, U'"'}, {u"apos"_s, U'\''}, {u"nbsp"_s, U' '},
        };
        if (!entity.startsWith(u'#'))
            return named.value(entity.toString());
        const bool isHex = entity.startsWith(u"#x", Qt::CaseInsensitive);
        const uint number = entity.sliced(isHex ? 2 : 1).toUInt(nullptr, isHex ? 16 : 10);
        const bool isText =
            number >= ' ' && number <= QChar::LastValidCodePoint && !QChar::isSurrogate(number);
        return isText ? number : 0;
    }

    QStringView m_rest;
    QString m_text;
};

} // namespace

QString plainTextOfNotes(QStringView html)
{
    return NotesReader(html).read();
}

// Proves that every text that the program looks up stands in the table, and that every text of the
// table is looked up somewhere.

#include <QDirIterator>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace
{

QString readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList filesBelow(const QStringList &folders, const QString &pattern)
{
    QStringList files;
    for (const QString &folder : folders) {
        QDirIterator it(QLatin1String(TOOLVANE_SOURCE_DIR "/") + folder, {pattern}, QDir::Files,
                        QDirIterator::Subdirectories);
        while (it.hasNext())
            files += it.next();
    }
    return files;
}

/// The string literals between the brackets of each call that takes a key; a choice between two
/// keys names both.
QSet<QString> keysInCode()
{
    static const QRegularExpression call(
        u"(?:qtTrId|QT_TRID_NOOP|refuse)\\(((?:[^()]|\\([^()]*\\))*)\\)"_s);
    static const QRegularExpression literal(u"\"((?:[^\"\\\\]|\\\\.)*)\""_s);
    QSet<QString> keys;
    for (const QString &path :
         filesBelow({u"app"_s, u"tools"_s, u"users"_s, u"util"_s}, u"*.cpp"_s)) {
        const QString code = readFile(path);
        for (const auto &found : call.globalMatch(code)) {
            for (const auto &key : literal.globalMatch(found.captured(1)))
                keys += key.captured(1);
        }
    }
    return keys;
}

/// The key of each text in the interface descriptions.
QSet<QString> keysInInterfaces(QStringList &withoutKey)
{
    static const QRegularExpression untranslated(
        u"<(string|stringlist) notr=\"true\"(?:/>|.*?</\\1>)"_s,
        QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression text(u"<string\\b(?: id=\"([^\"]*)\")?[^>]*>[^<]*"_s);
    QSet<QString> keys;
    for (const QString &path : filesBelow({u"resources/interface"_s}, u"*.ui"_s)) {
        for (const auto &found : text.globalMatch(readFile(path).remove(untranslated))) {
            keys += found.captured(1);
            if (found.captured(1).isEmpty())
                withoutKey += path + u": "_s + found.captured();
        }
    }
    return keys;
}

using Texts = QMap<QString, QString>;

Texts table(const QString &path)
{
    Texts texts;
    QXmlStreamReader xml(readFile(path));
    QString key;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == "message"_L1)
            key = xml.attributes().value("id"_L1).toString();
        else if (xml.name() == "translation"_L1)
            texts[key] = xml.readElementText();
    }
    return texts;
}

QStringList sorted(const QSet<QString> &set)
{
    QStringList list(set.begin(), set.end());
    list.sort();
    return list;
}

const QStringList tables = filesBelow({u"resources/localisation"_s}, u"toolvane_*.ts"_s);

} // namespace

class tst_Texts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyKeyHasATextAndEveryTextAKey()
    {
        QStringList withoutKey;
        const QSet<QString> used = keysInCode() + keysInInterfaces(withoutKey);
        QCOMPARE(withoutKey, QStringList());
        QVERIFY(used.contains(u"ZipSuc"_s)
                && used.contains(u"ZipFail"_s)); // the search finds choices
        QVERIFY(!tables.isEmpty());
        for (const QString &path : tables) {
            const Texts texts = table(path);
            const QSet<QString> known(texts.keyBegin(), texts.keyEnd());
            QVERIFY2(used == known,
                     qPrintable(path + u"\nlacks: "_s + sorted(used - known).join(u", "_s)
                                + u"\nnobody uses: "_s + sorted(known - used).join(u", "_s)));
            for (auto it = texts.begin(); it != texts.end(); ++it)
                QVERIFY2(!it.value().trimmed().isEmpty(), qPrintable(path + u": "_s + it.key()));
        }
    }

    void textsThatAPathOrSizeFollowsEndInABlank()
    {
        for (const QString &path : tables) {
            const Texts texts = table(path);
            for (const QString &key : {u"Caches"_s, u"Logs"_s, u"Downloads"_s, u"Mail Download"_s,
                                       u"Trash"_s, u"Please authorize to "_s}) {
                const QString text = texts.value(key);
                QVERIFY2(text.endsWith(u' ') && !text.endsWith(u"  "_s),
                         qPrintable(path + u": "_s + key));
            }
        }
    }
};

QTEST_GUILESS_MAIN(tst_Texts)
#include "tst_texts.moc"

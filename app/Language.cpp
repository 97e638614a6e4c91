#include "Language.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

// Arabic windows are mirrored; an English one is not, whatever the user's locale is.
static void installQtsTexts(const QLocale &language)
{
    // Who only asks for a text on the command line has no windows, and Qt no direction to set.
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        QGuiApplication::setLayoutDirection(language.textDirection());
    auto *texts = new QTranslator(QCoreApplication::instance());
    if (texts->load(language, u"qtbase"_s, u"_"_s,
                    QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(texts);
}

void Language::install()
{
    auto *english = new QTranslator(QCoreApplication::instance());
    if (english->load(u":/localisation/toolvane_en.qm"_s))
        QCoreApplication::installTranslator(english);
    auto *own = new QTranslator(
        QCoreApplication::instance()); // asked first; English answers for what it lacks
    if (!own->load(QLocale(), u"toolvane"_s, u"_"_s, u":/localisation"_s)
        || own->filePath() == english->filePath())
        return;
    installQtsTexts(QLocale(QFileInfo(own->filePath()).baseName().section(u'_', 1)));
    QCoreApplication::installTranslator(own);
}

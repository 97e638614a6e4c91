#include "Chooser.h"

#include "Suffix.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

#include <utility>

using namespace Qt::StringLiterals;

static QFileDialog *makeSheet(QWidget *page, const QString &name, const QString &startFolder)
{
    auto *sheet = new QFileDialog(page->window());
    sheet->setObjectName(name);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    if (!startFolder.isEmpty() && QFileInfo(startFolder).isDir())
        sheet->setDirectory(startFolder);
    // Not closed: that would still call back into a page which is half destroyed.
    QObject::connect(page, &QObject::destroyed, sheet, &QObject::deleteLater);
    return sheet;
}

static void show(QFileDialog *sheet, QWidget *page, Chooser::Chosen chosen,
                 Chooser::Cancelled cancelled = {})
{
    const auto finish = [sheet, chosen = std::move(chosen),
                         cancelled = std::move(cancelled)](int end) {
        const QString path = sheet->selectedFiles().value(0);
        if (end == QDialog::Accepted && !path.isEmpty())
            chosen(QDir::cleanPath(path));
        else if (cancelled)
            cancelled();
    };
    QObject::connect(sheet, &QDialog::finished, page, finish);
    sheet->open();
}

// Some desktops match the patterns case by case.
static QString filterFor(const QStringList &suffixes)
{
    QStringList patterns;
    for (const QString &suffix : suffixes)
        patterns << u"*."_s + suffix.toLower() << u"*."_s + suffix.toUpper();
    return patterns.join(u' ');
}

void Chooser::chooseFolder(QWidget *page, Chosen chosen, const QString &startFolder,
                           Cancelled cancelled)
{
    QFileDialog *sheet = makeSheet(page, u"folderChooser"_s, startFolder);
    sheet->setFileMode(QFileDialog::Directory);
    sheet->setOption(QFileDialog::ShowDirsOnly);
    show(sheet, page, std::move(chosen), std::move(cancelled));
}

void Chooser::chooseFile(QWidget *page, const QStringList &suffixes, Chosen chosen,
                         const QString &startFolder)
{
    QFileDialog *sheet = makeSheet(page, u"fileChooser"_s, startFolder);
    sheet->setFileMode(QFileDialog::ExistingFile);
    sheet->setNameFilter(filterFor(suffixes));
    show(sheet, page, [=](const QString &path) {
        if (endsInSuffix(path, suffixes))
            chosen(path);
        else // typed past the filter: ask again
            chooseFile(page, suffixes, chosen, QFileInfo(path).path());
    });
}

static void chooseSaveFileAt(QWidget *page, const QString &suffix, const Chooser::Chosen &chosen,
                             const QString &startFolder, const QString &selected)
{
    QFileDialog *sheet = makeSheet(page, u"saveChooser"_s, startFolder);
    sheet->setAcceptMode(QFileDialog::AcceptSave);
    sheet->setFileMode(QFileDialog::AnyFile);
    sheet->setOption(QFileDialog::ReadOnly); // no new folders; nor renaming and deleting
    sheet->setNameFilter(filterFor({suffix}));
    sheet->setDefaultSuffix(suffix); // which Qt adds only to a name without any dot
    if (!selected.isEmpty())
        sheet->selectFile(selected);
    show(sheet, page, [=](const QString &path) {
        const bool complete = endsInSuffix(path, {suffix});
        const QString whole = complete ? path : path + u'.' + suffix;
        if (!complete && QFileInfo::exists(whole))
            // The chooser asked about replacing another name: let it ask about this one.
            chooseSaveFileAt(page, suffix, chosen, QFileInfo(whole).path(),
                             QFileInfo(whole).fileName());
        else
            chosen(whole);
    });
}

void Chooser::chooseSaveFile(QWidget *page, const QString &suffix, Chosen chosen,
                             const QString &startFolder)
{
    chooseSaveFileAt(page, suffix, chosen, startFolder, {});
}

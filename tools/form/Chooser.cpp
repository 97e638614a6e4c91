#include "Chooser.h"

#include "FileNames.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QWidget>

#include <utility>

using namespace Qt::StringLiterals;

namespace
{

constexpr auto folderChooser = "folderChooser"_L1;
constexpr auto fileChooser = "fileChooser"_L1;
constexpr auto saveChooser = "saveChooser"_L1;

QString existing(const QString &folder)
{
    return !folder.isEmpty() && QFileInfo(folder).isDir() ? folder : QString();
}

// A page's object name and a chooser's name together say what a folder was used for.
QString recentFolderKey(const QWidget &page, const QString &chooser)
{
    return u"RecentFolders/%1/%2"_s.arg(page.objectName(), chooser);
}

// Where the chooser was last used on this page, if that folder still exists.
QString recentFolder(const QWidget &page, const QString &chooser)
{
    return existing(QSettings().value(recentFolderKey(page, chooser)).toString());
}

void rememberFolder(const QWidget &page, const QString &chooser, const QString &folder)
{
    QSettings().setValue(recentFolderKey(page, chooser), folder);
}

QString firstOf(const QStringList &folders)
{
    for (const QString &folder : folders) {
        if (!folder.isEmpty())
            return folder;
    }
    return QDir::homePath();
}

// The user's folder for files of this kind; empty if there is none.
QString usualFolder(QLatin1String chooser, const QString &suffix)
{
    using Paths = QStandardPaths;
    auto location = chooser == fileChooser ? Paths::DownloadLocation : Paths::DocumentsLocation;
    if (suffix == "m4v"_L1)
        location = Paths::MoviesLocation;
    if (suffix == "aiff"_L1)
        location = Paths::MusicLocation;
    return existing(Paths::writableLocation(location));
}

QString folderOf(const QString &path)
{
    return QDir::isAbsolutePath(path) ? existing(QFileInfo(path).path()) : QString();
}

QFileDialog *makeSheet(QWidget *page, QLatin1String name, const QString &startFolder)
{
    auto *sheet = new QFileDialog(page->window());
    sheet->setObjectName(name);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->setDirectory(startFolder);
    // Not closed: that would still call back into a page which is half destroyed.
    QObject::connect(page, &QObject::destroyed, sheet, &QObject::deleteLater);
    return sheet;
}

void show(QFileDialog *sheet, QWidget *page, Chooser::Chosen chosen,
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
QString filterFor(const QStringList &suffixes)
{
    QStringList patterns;
    for (const QString &suffix : suffixes)
        patterns << u"*."_s + suffix.toLower() << u"*."_s + suffix.toUpper();
    return patterns.join(u' ');
}

Chooser::Chosen rememberingPlace(QWidget *page, QLatin1String chooser, Chooser::Chosen chosen)
{
    return [page, chooser, chosen = std::move(chosen)](const QString &path) {
        rememberFolder(*page, chooser, QFileInfo(path).path());
        chosen(path);
    };
}

void askForFile(QWidget *page, const QStringList &suffixes, const Chooser::Chosen &chosen,
                const QString &startFolder)
{
    QFileDialog *sheet = makeSheet(page, fileChooser, startFolder);
    sheet->setFileMode(QFileDialog::ExistingFile);
    sheet->setNameFilter(filterFor(suffixes));
    show(sheet, page, [=](const QString &path) {
        if (endsInSuffix(path, suffixes))
            chosen(path);
        else // typed past the filter: ask again
            askForFile(page, suffixes, chosen, QFileInfo(path).path());
    });
}

void askForSaveFile(QWidget *page, const QString &suffix, const Chooser::Chosen &chosen,
                    const QString &startFolder, const QString &selected)
{
    QFileDialog *sheet = makeSheet(page, saveChooser, startFolder);
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
            // The chooser asked about replacing another name: now about this one.
            askForSaveFile(page, suffix, chosen, QFileInfo(whole).path(),
                           QFileInfo(whole).fileName());
        else
            chosen(whole);
    });
}

} // namespace

void Chooser::chooseFolder(QWidget *page, Chosen chosen, const QString &startFolder,
                           Cancelled cancelled)
{
    const QString fixed = existing(startFolder);
    const QString recent = fixed.isEmpty() ? recentFolder(*page, folderChooser) : QString();
    QFileDialog *sheet = makeSheet(page, folderChooser, firstOf({fixed, folderOf(recent)}));
    sheet->setFileMode(QFileDialog::Directory);
    sheet->setOption(QFileDialog::ShowDirsOnly);
    if (!recent.isEmpty())
        sheet->selectFile(recent);
    const auto finish = [page, isFixed = !fixed.isEmpty(),
                         chosen = std::move(chosen)](const QString &path) {
        if (!isFixed)
            rememberFolder(*page, folderChooser, path);
        chosen(path);
    };
    show(sheet, page, finish, std::move(cancelled));
}

void Chooser::chooseFile(QWidget *page, const QStringList &suffixes, Chosen chosen)
{
    const QString start =
        firstOf({recentFolder(*page, fileChooser), usualFolder(fileChooser, suffixes.value(0))});
    askForFile(page, suffixes, rememberingPlace(page, fileChooser, std::move(chosen)), start);
}

void Chooser::chooseSaveFile(QWidget *page, const QString &suffix, Chosen chosen,
                             const QString &source)
{
    const QString start = firstOf(
        {recentFolder(*page, saveChooser), folderOf(source), usualFolder(saveChooser, suffix)});
    const QString name =
        source.isEmpty() ? QString() : QFileInfo(proposedFile(start, source, suffix)).fileName();
    askForSaveFile(page, suffix, rememberingPlace(page, saveChooser, std::move(chosen)), start,
                   name);
}

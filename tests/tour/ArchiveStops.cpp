#include "Stops.h"
#include "Tour.h"
#include "UnplacedArchives.h"

#include <QFile>
#include <QLabel>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace
{

// A thousand files in nested folders, unusual names among them.
void makeFolder(const QDir &folder)
{
    for (int i = 0; i < 1000; ++i) {
        const QString below = u"album %1/day %2"_s.arg(i % 10).arg(i % 7);
        folder.mkpath(below);
        QFile file(folder.filePath(below + u"/picture %1.txt"_s.arg(i)));
        if (file.open(QIODevice::WriteOnly))
            file.write(QByteArray(2000 + i, char('a' + i % 26)));
    }
    for (const QString &name :
         {u"-dash"_s, u"two\nlines"_s, u"quote\"'"_s, u"日本語 🎈"_s, u" blank "_s}) {
        QFile file(folder.filePath(name));
        if (file.open(QIODevice::WriteOnly))
            file.write(name.toUtf8());
    }
}

} // namespace

void visitZip(Tour &tour)
{
    const QDir samples = tour.samples();
    const QDir source(samples.filePath(u"holiday"_s));
    makeFolder(source);
    const QString archive = samples.filePath(u"holiday.zip"_s);

    QWidget *page = tour.openTool(u"ZIPViewController"_s);
    tour.picture(u"zip-empty"_s);
    tour.pressUntilMessage(page, "generateButton", u"zip-refused"_s, qtTrId("SrcFolderNull"));

    tour.type(page, "srcFolderField", source.path());
    tour.choose(page, "ratioPopUp", 2);
    tour.type(page, "outputField", archive);
    tour.picture(u"zip-filled"_s);
    tour.expectMessage(u"zip-done"_s);
    tour.press(page, "generateButton");
    tour.await(u"the page is busy"_s,
               [page] { return page->findChild<QWidget *>(u"progressIndicator"_s)->isVisible(); });
    tour.awaitMessage(qtTrId("ZipSuc"));
    tour.await(u"the page is idle again"_s,
               [page] { return page->findChild<QWidget *>(u"generateButton"_s)->isEnabled(); });

    const QString nowhere = samples.filePath(u"missing/holiday.zip"_s);
    tour.type(page, "outputField", nowhere);
    tour.await(u"the page says before that the folder is missing"_s,
               [page] { return !page->findChild<QLabel *>(u"outputHint"_s)->text().isEmpty(); });
    tour.picture(u"zip-warned"_s);
    tour.expectMessage(u"zip-done-again"_s);
    tour.press(page, "generateButton");
    tour.awaitMessage(qtTrId("ZipSuc"));
    tour.await(u"the page offers another place"_s,
               [page] { return page->findChild<QWidget *>(u"placeButton"_s)->isVisible(); });
    tour.picture(u"zip-unplaced"_s);
    const QString kept = UnplacedArchives::newest();
    tour.check(tour.witness(u"unzip"_s, {u"-tqq"_s, kept}) == 0, u"the archive is kept"_s);
    UnplacedArchives::remove(kept);

    tour.check(QFile::exists(archive), u"the archive stands at its place"_s);
    tour.check(tour.witness(u"unzip"_s, {u"-tqq"_s, archive}) == 0, u"unzip -t passes it"_s);
    const QString unpacked = samples.filePath(u"unpacked"_s);
    tour.check(tour.witness(u"unzip"_s, {u"-qq"_s, u"-^"_s, archive, u"-d"_s, unpacked}) == 0,
               u"unzip unpacks it"_s);
    tour.check(tour.witness(u"diff"_s, {u"-r"_s, source.path(), unpacked}) == 0,
               u"the unpacked folder is the source folder"_s);
}

void visitUnzip(Tour &tour)
{
    const QDir samples = tour.samples();
    const QString output = samples.filePath(u"unpacked by the page"_s);
    QWidget *page = tour.openTool(u"UNZIPViewController"_s);
    tour.type(page, "srcFolderField", samples.filePath(u"holiday.zip"_s));
    tour.type(page, "outputField", output);
    tour.pressUntilMessage(page, "generateButton", u"unzip-done"_s, qtTrId("UnzipSuc"));
    tour.check(tour.witness(u"diff"_s,
                            {u"-r"_s, samples.filePath(u"holiday/album 1"_s),
                             output + u"/holiday/album 1"_s})
                   == 0,
               u"the new folder holds what was packed"_s);
}

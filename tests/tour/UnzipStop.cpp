#include "Stops.h"
#include "Tour.h"

#include <QWidget>

using namespace Qt::StringLiterals;

void visitUnzip(Tour &tour)
{
    const QDir samples = tour.samples();
    const QString output = samples.filePath(u"unpacked by the page"_s);
    QWidget *page = tour.openTool(u"UNZIPViewController"_s);
    tour.type(page, "srcFolderField", samples.filePath(u"holiday.zip"_s));
    tour.type(page, "outputField", output);
    tour.expectMessage(u"unzip-done"_s);
    tour.press(page, "generateButton");
    tour.check(tour.awaitMessage() == qtTrId("UnzipSuc"), u"the message says that it worked"_s);
    tour.check(tour.witness(u"diff"_s,
                            {u"-r"_s, samples.filePath(u"holiday/album 1"_s),
                             output + u"/holiday/album 1"_s})
                   == 0,
               u"the new folder holds what was packed"_s);
}

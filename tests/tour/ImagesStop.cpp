#include "Stops.h"
#include "Tour.h"

#include <QWidget>

using namespace Qt::StringLiterals;

namespace
{

void makeImage(Tour &tour, const QString &pageClass, const QString &suffix, const QByteArray &kind)
{
    const QDir samples = tour.samples();
    const QString image = samples.filePath(u"holiday."_s + suffix);
    QWidget *page = tour.openTool(pageClass);
    tour.type(page, "srcFolderField", samples.filePath(u"holiday/album 1"_s));
    tour.type(page, "volumnNameField", u"Holiday 2026"_s);
    tour.type(page, "outputField", image);
    tour.pressUntilMessage(page, "generateButton", suffix + u"-done"_s, u"GenerateImageSuc"_s);
    QByteArray listing;
    tour.check(tour.witness(u"7z"_s, {u"l"_s, u"-slt"_s, image}, &listing) == 0, u"7z reads it"_s);
    tour.check(listing.contains("Type = " + kind), u"it is of the kind "_s + QLatin1String(kind));
    tour.check(listing.contains("day 1/picture 1.txt"), u"the folder's files are in it"_s);
}

} // namespace

void visitImages(Tour &tour)
{
    makeImage(tour, u"DMGViewController"_s, u"dmg"_s, "HFS");
    makeImage(tour, u"ISOViewController"_s, u"iso"_s, "Iso");
}

#include "MiscTool.h"
#include "Stops.h"
#include "Tour.h"

#include <QCheckBox>
#include <QFile>
#include <QFileDialog>

using namespace Qt::StringLiterals;

namespace
{

void fill(const QString &folder, int bytes)
{
    QDir().mkpath(folder);
    QFile file(folder + u"/clutter"_s);
    if (file.open(QIODevice::WriteOnly))
        file.write(QByteArray(bytes, 'x'));
}

} // namespace

void visitUserCache(Tour &tour)
{
    const QString home = MiscTool::getUserHome();
    tour.check(home.startsWith(qEnvironmentVariable("TOOLVANE_TEST_SANDBOX")),
               u"the home folder is the tour's own"_s);
    if (!tour.succeeded())
        return; // nothing is ever deleted anywhere else
    fill(home + u"/Library/Caches/program"_s, 3'000'000);
    fill(home + u"/Downloads"_s, 1536);
    fill(home + u"/Documents/kept"_s, 100);

    QWidget *page = tour.openTool(u"UserCacheViewController"_s);
    tour.picture(u"cache-locked"_s);
    tour.press(page, "authorizeButton");
    QFileDialog *chooser = tour.awaitChooser(page, u"folderChooser"_s);
    chooser->setDirectory(home);
    QMetaObject::invokeMethod(chooser, "accept");

    const auto boxText = [page](const char *name) {
        return page->findChild<QCheckBox *>(QLatin1String(name))->text();
    };
    for (const QString &name : {u"cachesCheckBox"_s, u"downloadsCheckBox"_s})
        page->findChild<QCheckBox *>(name)->setChecked(true);
    tour.press(page, "checkButton");
    tour.await(u"the sizes stand beside the names"_s, [&] {
        return boxText("cachesCheckBox").contains(u"2.9 MB"_s)
            && boxText("downloadsCheckBox").contains(u"1.5 KB"_s);
    });
    tour.picture(u"cache-checked"_s);
    tour.press(page, "cleanButton");
    tour.await(u"the sizes are gone"_s,
               [&] { return boxText("cachesCheckBox") == qtTrId("Caches"); });
    tour.check(!QFile::exists(home + u"/Library/Caches"_s)
                   && !QFile::exists(home + u"/Downloads"_s),
               u"the ticked folders are gone"_s);
    tour.check(QFile::exists(home + u"/Documents/kept/clutter"_s), u"everything else is there"_s);
    tour.picture(u"cache-cleaned"_s);
}

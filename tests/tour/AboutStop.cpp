#include "Stops.h"

#include "Application.h"
#include "ContainerBox.h"
#include "Tour.h"

#include <QAction>

using namespace Qt::StringLiterals;

void visitAbout(Tour &tour)
{
    MainWindow &window = tour.application().window();
    tour.step(u"choose Help, About"_s);
    window.findChild<QAction *>(u"aboutItem"_s)->trigger();
    tour.check(tour.application().delegate().container->contentView()->objectName()
                   == u"AboutViewController"_s,
               u"the page is shown"_s);
    tour.picture(u"about"_s);
}

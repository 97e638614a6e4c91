// The stops that look at a page and leave it as it is.

#include "Application.h"
#include "ContainerBox.h"
#include "HoverTableView.h"
#include "Stops.h"
#include "Tour.h"

#include <QAction>

using namespace Qt::StringLiterals;

void visitWelcome(Tour &tour)
{
    Application &application = tour.application();
    tour.step(u"start"_s);
    tour.check(application.window().isVisible(), u"the main window is shown"_s);
    tour.check(!application.delegate().loginWindow->isVisible(), u"the login window is hidden"_s);
    tour.check(!application.window().tableView().selectionModel()->hasSelection(),
               u"no tool is chosen"_s);
    tour.picture(u"welcome"_s);
}

void visitUpdate(Tour &tour)
{
    tour.openTool(u"UpdateViewController"_s);
    tour.picture(u"update"_s);
}

void visitAbout(Tour &tour)
{
    tour.step(u"choose Help, About"_s);
    tour.application().window().findChild<QAction *>(u"aboutItem"_s)->trigger();
    tour.check(tour.application().delegate().container->contentView()->objectName()
                   == u"AboutViewController"_s,
               u"the page is shown"_s);
    tour.picture(u"about"_s);
}

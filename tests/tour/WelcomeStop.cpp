#include "Application.h"
#include "HoverTableView.h"
#include "Stops.h"
#include "Tour.h"

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

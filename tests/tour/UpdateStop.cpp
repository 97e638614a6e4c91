#include "Stops.h"
#include "Tour.h"

using namespace Qt::StringLiterals;

void visitUpdate(Tour &tour)
{
    tour.openTool(u"UpdateViewController"_s);
    tour.picture(u"update"_s);
}

#include "ContainerBox.h"

void ContainerBox::setContentView(QWidget *view)
{
    if (indexOf(view) < 0)
        addWidget(view);
    setCurrentWidget(view);
}

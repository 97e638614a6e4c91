#include "ContainerBox.h"

#include "Mnemonics.h"
#include "PageScroller.h"

QWidget *ContainerBox::contentView() const
{
    const auto *scroller = qobject_cast<PageScroller *>(currentWidget());
    return scroller ? scroller->widget() : currentWidget();
}

void ContainerBox::setContentView(QWidget *view)
{
    for (int i = 0; i < count(); ++i) {
        const auto *scroller = qobject_cast<PageScroller *>(widget(i));
        if (scroller && scroller->widget() == view)
            return setCurrentIndex(i);
    }
    Mnemonics::keepUnique(view);
    setCurrentIndex(addWidget(new PageScroller(view, this)));
}

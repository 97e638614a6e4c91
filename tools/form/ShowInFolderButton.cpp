#include "ShowInFolderButton.h"

#include "PageStatus.h"
#include "PlainToolTip.h"

ShowInFolderButton::ShowInFolderButton(QWidget *parent) : QPushButton(parent)
{
    setText(qtTrId("ShowInFolder"));
    setAccessibleName(qtTrId("ShowInFolder.Name"));
    setAutoDefault(false);
    PageStatus::keepSpaceWhenHidden(*this);
    hide();
    connect(this, &QPushButton::clicked, this, [this] { m_fileManager.showItem(m_file); });
}

void ShowInFolderButton::offer(const QString &file)
{
    m_file = file;
    setToolTip(plainToolTip(file));
    show();
}

void ShowInFolderButton::withdraw()
{
    hide();
}

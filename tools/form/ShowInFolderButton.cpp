#include "ShowInFolderButton.h"

#include "PlainToolTip.h"

ShowInFolderButton::ShowInFolderButton(QWidget *parent) : QPushButton(parent)
{
    setText(qtTrId("ShowInFolder"));
    setAccessibleName(qtTrId("ShowInFolder.Name"));
    setAutoDefault(false);
    QSizePolicy policy = sizePolicy();
    policy.setRetainSizeWhenHidden(true); // nothing jumps when it comes
    setSizePolicy(policy);
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

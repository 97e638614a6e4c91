#include "FormCheck.h"

#include "MiscTool.h"

#include <QFileInfo>

bool FormCheck::itemExists(const QString &path)
{
    const QFileInfo item(path);
    return item.exists() || item.isSymbolicLink();
}

bool FormCheck::refuse(const char *messageKey, const char *informativeKey)
{
    MiscTool::showAlert(qtTrId(messageKey), informativeKey ? qtTrId(informativeKey) : QString());
    return false;
}

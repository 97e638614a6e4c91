#include "FormCheck.h"

#include "MiscTool.h"

bool FormCheck::refuse(const char *messageKey, const char *informativeKey)
{
    MiscTool::showAlert(qtTrId(messageKey), informativeKey ? qtTrId(informativeKey) : QString());
    return false;
}

#include "PermissionBoxes.h"

#include <QCheckBox>
#include <QVariant>

QString PermissionBoxes::identifier(const QCheckBox &box)
{
    return box.property("identifier").toString();
}

QString PermissionBoxes::allCodes(const QList<QCheckBox *> &boxes)
{
    QString codes = QStringLiteral("");
    for (const QCheckBox *box : boxes)
        codes += identifier(*box);
    return codes;
}

QString PermissionBoxes::checkedCodes(const QList<QCheckBox *> &boxes)
{
    QList<QCheckBox *> checked = boxes;
    checked.removeIf([](const QCheckBox *box) { return !box->isChecked(); });
    return allCodes(checked);
}

void PermissionBoxes::uncheckAll(const QList<QCheckBox *> &boxes)
{
    for (QCheckBox *box : boxes)
        box->setChecked(false);
}

void PermissionBoxes::checkHeld(const QList<QCheckBox *> &boxes, const QString &permission)
{
    for (QCheckBox *box : boxes) {
        if (permission.contains(identifier(*box)))
            box->setChecked(true);
    }
}

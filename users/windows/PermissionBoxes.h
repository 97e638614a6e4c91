#pragma once

#include <QList>
#include <QString>

class QCheckBox;

/// The check boxes of a group's rights, as one value. Each box carries the code of its right as its
/// property "identifier".
namespace PermissionBoxes
{

QString identifier(const QCheckBox &box);

/// The codes of the boxes, put together in the order of the list.
QString allCodes(const QList<QCheckBox *> &boxes);
QString checkedCodes(const QList<QCheckBox *> &boxes);

void uncheckAll(const QList<QCheckBox *> &boxes);
/// Checks the boxes whose code the value holds. The others stay as they are: what was checked for
/// an earlier group shows on.
void checkHeld(const QList<QCheckBox *> &boxes, const QString &permission);

} // namespace PermissionBoxes

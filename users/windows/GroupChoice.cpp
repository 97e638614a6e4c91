#include "GroupChoice.h"

#include "BLGeneral.h"
#include "MiscTool.h"
#include "UserGroupSchema.h"
#include "UserSchema.h"

#include <QComboBox>
#include <QHash>
#include <QLabel>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace
{

/// Marks the item "All rights", which may have the same title as a group.
constexpr int allRightsRole = Qt::UserRole + 1;
constexpr int maxNameWidth = 260;

QString titleOf(const UserGroupSchema &group)
{
    return MiscTool::decodeFromUTF8(group.Name).value_or(QString());
}

/// As the database has it now.
QString groupName(int ID)
{
    if (ID == 0)
        return qtTrId("User.Group.All");
    const auto found =
        BLGeneral(u"UserGroup"_s).select(u"ID="_s + QString::number(ID), UserGroupSchema{});
    if (!found)
        return QString::number(ID);
    return found->isEmpty() ? qtTrId("User.Group.Gone") : titleOf(found->last());
}

} // namespace

GroupChoice::GroupChoice(QComboBox &popUp, QLabel &lines, QObject *parent)
    : QObject(parent), m_popUp(popUp), m_lines(lines)
{
    connect(&popUp, &QComboBox::currentIndexChanged, this, &GroupChoice::show);
}

// A title that the pop-up already has moves to the end. This works on a list first: finding each
// title in the pop-up takes a time that grows with the square of the number of groups.
void GroupChoice::load()
{
    removeAllRightsItem();
    QList<std::pair<QString, int>> items;
    for (int i = 0; i < m_popUp.count(); ++i)
        items.append({m_popUp.itemText(i), m_popUp.itemData(i).toInt()});
    const auto groups = BLGeneral(u"UserGroup"_s).select("1=1", UserGroupSchema{});
    m_isLoaded = groups.has_value();
    for (const UserGroupSchema &group : groups.value_or(QList<UserGroupSchema>()))
        items.append({titleOf(group), group.ID});

    QHash<QString, qsizetype> lastPosition;
    for (qsizetype i = 0; i < items.size(); ++i)
        lastPosition[items[i].first] = i;
    m_popUp.clear();
    for (qsizetype i = 0; i < items.size(); ++i) {
        const auto &[title, ID] = items[i];
        if (lastPosition[title] == i)
            m_popUp.addItem(title, ID);
    }
    m_popUp.setCurrentIndex(std::min(m_popUp.count() - 1, 0));
}

void GroupChoice::startNew()
{
    stop();
    m_unlisted = 0;
    load();
    show();
}

// The item is looked up by the user's own key, not by that of the group. If no item has it, saving
// must not change the user's group: its item is selected, or none if it has no item.
void GroupChoice::startEditing(const UserSchema &user)
{
    stop();
    if (user.UserGroupID == 0) {
        m_popUp.addItem(qtTrId("User.Group.All"), 0);
        m_popUp.setItemData(m_popUp.count() - 1, true, allRightsRole);
    }
    m_unlisted = user.UserGroupID;
    const int byUser = m_popUp.findData(user.ID);
    m_popUp.setCurrentIndex(byUser >= 0 ? byUser : m_popUp.findData(user.UserGroupID));
    m_present = user.UserGroupID;
    m_presentName = groupName(user.UserGroupID);
    show();
}

void GroupChoice::stop()
{
    m_present.reset();
    removeAllRightsItem();
}

int GroupChoice::chosen() const
{
    return m_popUp.currentIndex() >= 0 ? m_popUp.currentData().toInt() : m_unlisted;
}

void GroupChoice::removeAllRightsItem()
{
    const int item = m_popUp.findData(true, allRightsRole);
    if (item >= 0)
        m_popUp.removeItem(item);
}

// Whoever changes a password does not look at the group, which the form may change all the same.
void GroupChoice::show()
{
    const bool isMove = m_present && *m_present != chosen();
    QString next = isMove ? m_popUp.currentText() : m_presentName;
    QString present = m_presentName;
    if (isMove && next == present) {
        present += u" (%1)"_s.arg(*m_present);
        next += u" (%1)"_s.arg(chosen());
    }
    QFont font; // the rest is inherited
    font.setBold(isMove);
    m_lines.setFont(font);
    m_lines.setForegroundRole(isMove ? QPalette::BrightText : QPalette::WindowText);
    const QFontMetrics metrics(m_lines.font());
    const auto line = [&metrics](const QString &text, const QString &name) {
        return text.arg(metrics.elidedText(name, Qt::ElideMiddle, maxNameWidth));
    };
    QString lines(u'\n'); // keeps the room
    if (m_present)
        lines = line(qtTrId("User.Group.Present"), present) + u'\n'
            + line(qtTrId("User.Group.Saved"), next);
    m_lines.setText(lines);
    m_popUp.setAccessibleDescription(lines.simplified());
}

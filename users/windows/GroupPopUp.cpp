#include "GroupPopUp.h"

#include "ShownText.h"
#include "UserGroupSchema.h"

#include <QHash>

#include <algorithm>
#include <utility>

// Works on a list first: looking each title up in the pop-up takes a time that grows with the
// square of the number of groups.
void GroupPopUp::addGroups(const QList<UserGroupSchema> &groups)
{
    QList<std::pair<QString, int>> items;
    for (int i = 0; i < count(); ++i)
        items.append({itemText(i), itemData(i).toInt()});
    for (const UserGroupSchema &group : groups)
        items.append({ShownText::of(group.Name), group.ID});

    QHash<QString, qsizetype> lastPlace;
    for (qsizetype i = 0; i < items.size(); ++i)
        lastPlace[items[i].first] = i;
    clear();
    for (qsizetype i = 0; i < items.size(); ++i) {
        const auto &[title, tag] = items[i];
        if (lastPlace[title] == i)
            addItem(title, tag);
    }
    setCurrentIndex(std::min(count() - 1, 0));
}

#include "ToolbarTitle.h"

#include "IconView.h"
#include "ThemedLabels.h"

#include <QAction>
#include <QHBoxLayout>

using namespace Qt::StringLiterals;

namespace
{

constexpr int iconSize = 24;
constexpr int sideMargin = 14;

} // namespace

ToolbarTitle::ToolbarTitle(const QAction *item, QWidget *parent) : QWidget(parent)
{
    auto *icon = new IconView(this);
    icon->setImageName(u"toolvane"_s);
    icon->setFixedSize(iconSize, iconSize);
    auto *name = new SectionTitle(this);
    name->setText(item->text());
    connect(item, &QAction::changed, name, [item, name] { name->setText(item->text()); });

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(sideMargin, 0, sideMargin, 0);
    layout->addWidget(icon);
    layout->addWidget(name);
}

#include "Gallery.h"

#include "HintLabel.h"
#include "IconView.h"
#include "LevelIndicator.h"
#include "NamedImage.h"
#include "PageTitle.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTabWidget>
#include <QTableWidget>
#include <QToolBar>

using namespace Qt::StringLiterals;

namespace
{

// Stands for the sidebar: the theme knows it by its class name.
class HoverTableView : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
};

QPushButton *newButton(const QString &text)
{
    auto *button = new QPushButton(text);
    button->setMinimumWidth(96);
    return button;
}

template <typename... Widgets>
QHBoxLayout *rowOf(Widgets *...widgets)
{
    auto *row = new QHBoxLayout;
    (row->addWidget(widgets), ...);
    return row;
}

LevelIndicator *newLevel(int value)
{
    auto *level = new LevelIndicator;
    level->setWarningText(u"Nearly full"_s);
    level->setValue(value);
    return level;
}

} // namespace

Gallery::Gallery() : m_page(new QWidget)
{
    resize(1040, 900);
    addBars();
    auto *central = new QWidget;
    auto *columns = rowOf(newSidebar(), m_page);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(0);
    columns->setStretch(1, 1);
    central->setLayout(columns);
    setCentralWidget(central);

    auto *layout = new QVBoxLayout(m_page);
    layout->addLayout(newHeader());
    layout->addWidget(newPathBox(u"&Source folder"_s, u"/home/mia/Pictures/Summer 2024"_s));
    layout->addWidget(newPathBox(u"Output"_s, {}));
    layout->addWidget(newOptionsBox());
    layout->addWidget(newDiskBox());
    layout->addWidget(newLists(), 1);
    layout->addLayout(newFooter());
}

void Gallery::addBars()
{
    for (const QString &title : {u"&File"_s, u"&Tools"_s, u"&Records"_s, u"&Help"_s})
        menuBar()->addMenu(title)->addAction(namedImage(u"website"_s), u"Web Site"_s);
    auto *bar = addToolBar(u"Toolbar"_s);
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->addAction(namedImage(u"toolvane"_s), u"Toolvane"_s);
    auto *gap = new QWidget;
    gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(gap);
    bar->addAction(namedImage(u"website"_s), u"Web Site"_s);
    bar->addAction(namedImage(u"about"_s), u"About"_s);
}

QWidget *Gallery::newSidebar()
{
    auto *sidebar = new HoverTableView;
    sidebar->setFixedWidth(220);
    sidebar->setAutoFillBackground(true);
    auto *rows = new QVBoxLayout(sidebar);
    for (const QString &name : {u"video"_s, u"clear"_s, u"synthesis"_s, u"zip"_s, u"unzip"_s,
                                u"image"_s, u"image"_s, u"update"_s}) {
        auto *icon = new IconView;
        icon->setImageName(name);
        icon->setFixedSize(22, 22);
        auto *row = rowOf(icon, new QLabel(name));
        row->setStretch(1, 1);
        rows->addLayout(row);
    }
    rows->addStretch();
    return sidebar;
}

QLayout *Gallery::newHeader()
{
    auto *icon = new IconView;
    icon->setImageName(u"zip"_s);
    icon->setFixedSize(40, 40);
    auto *texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addWidget(new PageTitle(u"Zip"_s));
    texts->addWidget(new HintLabel(u"Packs everything inside a folder into one archive."_s));
    auto *header = rowOf(icon);
    header->addLayout(texts, 1);
    return header;
}

QGroupBox *Gallery::newPathBox(const QString &title, const QString &path)
{
    auto *field = new QLineEdit(path);
    field->setPlaceholderText(u"What belongs here"_s);
    auto *box = new QGroupBox(title);
    box->setLayout(rowOf(field, newButton(u"Se&lect…"_s)));
    return box;
}

QGroupBox *Gallery::newOptionsBox()
{
    auto *popUp = new QComboBox;
    popUp->addItems({u"Normal"_s, u"Best"_s});
    auto *slider = new QSlider(Qt::Horizontal);
    slider->setRange(0, 9);
    slider->setValue(6);
    slider->setTickPosition(QSlider::TicksBelow);
    auto *checked = new QCheckBox(u"Caches"_s);
    checked->setChecked(true);
    auto *partial = new QCheckBox(u"Logs"_s);
    partial->setTristate(true);
    partial->setCheckState(Qt::PartiallyChecked);
    auto *radio = new QRadioButton(u"Voice"_s);
    radio->setChecked(true);
    auto *box = new QGroupBox(u"Options"_s);
    box->setLayout(rowOf(popUp, slider, checked, partial, new QCheckBox(u"Trash"_s), radio,
                         new QRadioButton(u"Other"_s)));
    return box;
}

QGroupBox *Gallery::newDiskBox()
{
    auto *fixed = new QLineEdit(u"/home/mia"_s);
    fixed->setReadOnly(true);
    auto *box = new QGroupBox(u"Disk"_s);
    box->setLayout(rowOf(newLevel(64), newLevel(93), fixed));
    return box;
}

QWidget *Gallery::newLists()
{
    auto *text = new QPlainTextEdit(u"Read this aloud.\nAnd this.\n\n\n\n\n\n\n\n\n\nEnd."_s);
    auto *table = new QTableWidget(4, 2);
    table->setHorizontalHeaderLabels({u"Name"_s, u"Type"_s});
    table->setItem(0, 0, new QTableWidgetItem(namedImage(u"file"_s), u"First"_s));
    table->setItem(1, 0, new QTableWidgetItem(namedImage(u"folder"_s), u"Second"_s));
    table->selectRow(1);
    auto *tabs = new QTabWidget;
    tabs->addTab(new QCheckBox(u"View"_s), u"Zip"_s);
    tabs->addTab(new QCheckBox(u"Edit"_s), u"Stock"_s);
    auto *lists = new QWidget;
    auto *row = rowOf(text, table, tabs);
    row->setContentsMargins(0, 0, 0, 0);
    lists->setLayout(row);
    return lists;
}

QLayout *Gallery::newFooter()
{
    auto *busy = new QProgressBar;
    busy->setRange(0, 0);
    auto *some = new QProgressBar;
    some->setValue(40);
    auto *main = newButton(u"Generate"_s);
    main->setDefault(true);
    auto *withIcon = newButton(u"Sample"_s);
    withIcon->setIcon(namedImage(u"play"_s));
    return rowOf(busy, some, withIcon, newButton(u"Clear"_s), main);
}

#include "Gallery.moc"

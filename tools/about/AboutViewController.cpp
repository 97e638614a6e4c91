#include "AboutViewController.h"

#include "AppsList.h"
#include "MiscTool.h"
#include "NamedImage.h"
#include "PageStatus.h"
#include "ThemedLabels.h"
#include "ui_AboutViewController.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QHeaderView>
#include <QVBoxLayout>

#include <algorithm>
#include <system_error>
#include <utility>

using namespace Qt::StringLiterals;

namespace
{

constexpr int rowHeight = 44;
constexpr int iconColumnWidth = 56;
constexpr int nameColumnWidth = 160;
constexpr int typeColumnWidth = 110;

} // namespace

AboutViewController::AboutViewController(QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui::AboutViewController>()),
      m_icons(MiscTool::getAppDocumentFolder()), m_table(m_icons)
{
    ui->setupUi(this);
    addHint();
    ui->versionLabel->setText(qtTrId("About.Version").arg(QCoreApplication::applicationVersion()));
    setUpTable();
    connectButtons();
    awakeFromNib();
}

AboutViewController::~AboutViewController() = default;

void AboutViewController::addHint()
{
    QWidget *rows = ui->table->viewport();
    m_nothingListed = new HintLabel(qtTrId("About.NothingListed"), rows);
    m_nothingListed->setAlignment(Qt::AlignCenter);
    m_nothingListed->setWordWrap(true);
    m_nothingListed->setForegroundRole(QPalette::WindowText); // not the list's own
    m_nothingListed->hide();
    (new QVBoxLayout(rows))->addWidget(m_nothingListed);
}

void AboutViewController::setUpTable()
{
    ui->table->setModel(&m_table);
    ui->table->setIconSize(QSize(AppIcons::side, AppIcons::side));
    ui->table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    ui->table->verticalHeader()->setDefaultSectionSize(rowHeight);
    QHeaderView *header = ui->table->horizontalHeader();
    header->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    header->setSectionResizeMode(AppsTable::IconColumn, QHeaderView::Fixed);
    header->setSectionResizeMode(AppsTable::DescColumn, QHeaderView::Stretch);
    header->resizeSection(AppsTable::NameColumn, nameColumnWidth);
    header->resizeSection(AppsTable::TypeColumn, typeColumnWidth);
    connect(ui->table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &AboutViewController::tableViewSelectionDidChange);
}

void AboutViewController::connectButtons()
{
    ui->webButton->setIcon(namedImage(u"website"_s));
    ui->emailButton->setIcon(namedImage(u"mail"_s));
    connect(ui->webButton, &QPushButton::clicked, this, &AboutViewController::webAction);
    connect(ui->emailButton, &QPushButton::clicked, this, &AboutViewController::emailAction);
    connect(ui->twitterButton, &QPushButton::clicked, this, &AboutViewController::twitterAction);
    connect(ui->facebookButton, &QPushButton::clicked, this, &AboutViewController::facebookAction);
    connect(ui->googlePlusButton, &QPushButton::clicked, this,
            &AboutViewController::googlePlusAction);
    connect(ui->reloadButton, &QPushButton::clicked, this, &AboutViewController::reloadAction);
    enableButtons();
}

void AboutViewController::awakeFromNib()
{
    connect(ui->table, &QTableView::doubleClicked, this, &AboutViewController::goAction);
    initLocalizables();
    reloadAction();
}

void AboutViewController::reloadAction()
{
    if (std::exchange(m_isLoading, true))
        return;
    try {
        m_loader = std::jthread([this](const std::stop_token &stop) { reloadData(stop); });
    } catch (const std::system_error &) { // no thread: the list stays empty until Reload
        endLoading(AppsList(), configurationServer());
    }
}

void AboutViewController::initLocalizables()
{
    ui->appsBox->setTitle(qtTrId("Apps"));
    m_table.setTitle(AppsTable::IconColumn, qtTrId("Icon"));
    QHeaderView *header = ui->table->horizontalHeader();
    header->resizeSection(
        AppsTable::IconColumn,
        std::max(iconColumnWidth, header->sectionSizeHint(AppsTable::IconColumn)));
    m_table.setTitle(AppsTable::NameColumn, qtTrId("Name"));
    m_table.setTitle(AppsTable::DescColumn, qtTrId("Desc"));
    m_table.setTitle(AppsTable::TypeColumn, qtTrId("Type"));
    ui->socialBox->setTitle(qtTrId("Social"));
    ui->webButton->setToolTip(qtTrId("Web"));
    ui->emailButton->setToolTip(qtTrId("Email"));
}

void AboutViewController::reloadData(const std::stop_token &stop)
{
    QMetaObject::invokeMethod(this, &AboutViewController::beginLoading, Qt::QueuedConnection);
    const QString server = configurationServer();
    const AppsList list =
        AppsList::load(server, MiscTool::getAppDocumentFolder(), stop).value_or(AppsList());
    QMetaObject::invokeMethod(
        this, [this, list, server] { endLoading(list, server); }, Qt::QueuedConnection);
}

void AboutViewController::beginLoading()
{
    ui->table->hide();
    PageStatus::setIdle(*ui->progressIndicator, false);
}

void AboutViewController::endLoading(const AppsList &list, const QString &server)
{
    confDict = list.dictionary;
    data = list.apps();
    socialDict = list.social();
    m_icons.setServer(server);
    m_table.setApps(data);
    m_nothingListed->setVisible(data.isEmpty());
    ui->table->show();
    PageStatus::setIdle(*ui->progressIndicator, true);
    enableButtons();
    m_isLoading = false;
}

void AboutViewController::enableButtons()
{
    ui->webButton->setEnabled(!socialAddress("Web").isEmpty());
    ui->emailButton->setEnabled(!socialAddress("Email", "mailto:").isEmpty());
    ui->twitterButton->setEnabled(!socialAddress("Twitter").isEmpty());
    ui->facebookButton->setEnabled(!socialAddress("Facebook").isEmpty());
    ui->googlePlusButton->setEnabled(!socialAddress("Google+").isEmpty());
}

void AboutViewController::tableViewSelectionDidChange()
{
    goAction();
}

void AboutViewController::goAction()
{
    const QModelIndexList rows = ui->table->selectionModel()->selectedRows();
    if (!rows.isEmpty())
        open(addressToOpen(data.at(rows.first().row()).toMap().value(u"URL"_s).toString()));
}

QUrl AboutViewController::socialAddress(const char *key, const char *scheme) const
{
    return addressToOpen(QLatin1String(scheme) + socialDict.value(QLatin1String(key)).toString());
}

void AboutViewController::open(const QUrl &address)
{
    if (!address.isEmpty())
        QDesktopServices::openUrl(address);
}

#include "RecordWindow.h"

#include "BusyBudget.h"
#include "MiscTool.h"
#include "Mnemonics.h"
#include "ServiceBar.h"
#include "TemplateViewController.h"
#include "UserGroupViewController.h"
#include "UserViewController.h"
#include "ui_RecordWindow.h"

#include <QCloseEvent>
#include <QSettings>
#include <QShortcut>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace
{

constexpr auto geometryKey = "RecordWindow/Geometry"_L1;

} // namespace

void RecordWindow::open(Page page, QWidget &owner)
{
    const BusyBudget budget; // for the three pages together
    RecordWindow *window = openOf(owner);
    if (!window)
        window = new RecordWindow(owner);
    const bool isFree = !window->shownPage()->hasOpenSheet();
    if (isFree)
        window->showPage(page);
    MiscTool::showWindow(window);
    if (isFree)
        window->shownPage()->focusTable();
}

void RecordWindow::closeOf(const QWidget &owner)
{
    if (RecordWindow *window = openOf(owner))
        window->close();
}

RecordWindow *RecordWindow::openOf(const QWidget &owner)
{
    const auto windows = owner.findChildren<RecordWindow *>(Qt::FindDirectChildrenOnly);
    for (RecordWindow *window : windows) {
        if (window->isVisible()) // a closed one still exists for a moment
            return window;
    }
    return nullptr;
}

// The groups come first: their page opens the local store, and the users' page uses the store as it
// is when it fills its pop-up.
RecordWindow::RecordWindow(QWidget &owner)
    : QWidget(&owner, Qt::Window), ui(std::make_unique<Ui::RecordWindow>())
{
    setAttribute(Qt::WA_DeleteOnClose);
    ui->setupUi(this);
    ui->pages->addTab(new UserGroupViewController, qtTrId("Records.UserGroups"));
    ui->pages->addTab(new UserViewController, qtTrId("Records.Users"));
    ui->pages->addTab(new TemplateViewController, qtTrId("Records.Stock"));
    connect(ui->pages, &QTabWidget::currentChanged, this, [this] { shownPage()->refresh(); });
    if (const QString service = DB::configuredWebService(); !service.isEmpty())
        watchService(service);
    Mnemonics::keepUnique(this);
    connect(new QShortcut(QKeySequence::Close, this), &QShortcut::activated, this, &QWidget::close);
    stayIndependent();
    restoreGeometry(QSettings().value(geometryKey).toByteArray());
}

RecordWindow::~RecordWindow()
{
    ui->pages->disconnect(this); // the pages leave the tabs one by one
}

void RecordWindow::watchService(const QString &address)
{
    auto *bar = new ServiceBar(address);
    ui->windowLayout->insertWidget(0, bar);
    ui->windowLayout->setStretchFactor(ui->pages, 1);
    connect(bar, &ServiceBar::reachableChanged, this, [this](bool isReachable) {
        for (int i = 0; i < ui->pages->count(); ++i)
            static_cast<AbstractViewController *>(ui->pages->widget(i))->setStorable(isReachable);
        shownPage()->refresh();
    });
}

// A sheet blocks its window and those that this window belongs to: on the screen, the record window
// belongs to none. The program still ends with its main window.
void RecordWindow::stayIndependent()
{
    create();
    windowHandle()->setTransientParent(nullptr);
    setAttribute(Qt::WA_QuitOnClose, false);
}

AbstractViewController *RecordWindow::shownPage() const
{
    return static_cast<AbstractViewController *>(ui->pages->currentWidget());
}

void RecordWindow::showPage(Page page)
{
    if (ui->pages->currentIndex() == int(page))
        shownPage()->refresh();
    else
        ui->pages->setCurrentIndex(int(page)); // which refreshes it
}

void RecordWindow::closeEvent(QCloseEvent *event)
{
    QSettings().setValue(geometryKey, saveGeometry());
    event->accept();
}

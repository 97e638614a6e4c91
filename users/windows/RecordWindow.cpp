#include "RecordWindow.h"

#include "MiscTool.h"
#include "Mnemonics.h"
#include "TemplateViewController.h"
#include "UserGroupViewController.h"
#include "UserViewController.h"
#include "ui_RecordWindow.h"

#include <QCloseEvent>
#include <QSettings>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace
{

constexpr auto geometryKey = "RecordWindow/Geometry"_L1;

} // namespace

void RecordWindow::open(Page page, QWidget &owner)
{
    RecordWindow *window = openOf(owner);
    if (!window)
        window = new RecordWindow(owner);
    window->ui->pages->setCurrentIndex(int(page));
    MiscTool::showWindow(window);
    if (auto *shown = qobject_cast<AbstractViewController *>(window->ui->pages->currentWidget()))
        shown->focusTable();
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
    Mnemonics::keepUnique(this);
    connect(new QShortcut(QKeySequence::Close, this), &QShortcut::activated, this, &QWidget::close);
    restoreGeometry(QSettings().value(geometryKey).toByteArray());
}

RecordWindow::~RecordWindow() = default;

void RecordWindow::closeEvent(QCloseEvent *event)
{
    QSettings().setValue(geometryKey, saveGeometry());
    event->accept();
}

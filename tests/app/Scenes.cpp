#include "Scenes.h"

#include "Application.h"
#include "HoverTableAppDelegate.h"
#include "MiscTool.h"
#include "PageControls.h"
#include "RunLine.h"
#include "Theme.h"
#include "UnplacedArchives.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QMessageBox>
#include <QTabWidget>
#include <QTimer>

using namespace Qt::StringLiterals;
using PageControls::control;

namespace
{

void visitPages(Application &application, const Scenes::Look &look)
{
    MainWindow &window = application.window();
    look(u"welcome"_s, window);
    for (int row = 0; row < application.tools().rowCount(); ++row) {
        application.tools().selectTool(row);
        QWidget &page = *application.tools().viewItem(row);
        if (auto *line = page.findChild<RunLine *>(); line && !line->isVisible())
            line->say(qtTrId("Unzip.Stopped"));
        Scenes::settle();
        look(page.objectName(), window);
    }
    control<QAction>(window, "aboutItem").trigger();
    Scenes::settle();
    look(u"about"_s, window);
}

void logIn(Application &application, const Scenes::Look &look)
{
    control<QAction>(application.window(), "loginItem").trigger();
    QWidget &login = *application.delegate().loginWindow;
    Scenes::settle();
    look(u"login"_s, login);
    control<QLineEdit>(login, "userField").setText(u"root"_s);
    control<QLineEdit>(login, "passwordField").setText(u"kelp"_s);
    control<QPushButton>(login, "loginButton").click();
    QTRY_VERIFY(!login.isVisible());
}

void visitRecords(const Application &, MainWindow &window, const Scenes::Look &look)
{
    for (const char *item : {"userGroupsItem", "usersItem", "stockItem"}) {
        control<QAction>(window, item).trigger();
        Scenes::settle();
        auto &records = control<QWidget>(window, "RecordWindow");
        const QString name = QLatin1String(item);
        look(name, records);
        const QWidget &page = *records.findChild<QTabWidget *>(u"pages"_s)->currentWidget();
        control<QPushButton>(page, "addButton").click();
        Scenes::settle();
        auto *sheet = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        QVERIFY2(sheet, item);
        look(name + u", sheet"_s, *sheet);
        sheet->reject();
    }
    control<QWidget>(window, "RecordWindow").close();
}

void visitMessages(Application &application, const Scenes::Look &look)
{
    QTimer::singleShot(0, &application.window(), [&look] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QVERIFY(box);
        Scenes::settle();
        look(u"message"_s, *box);
        box->button(QMessageBox::Ok)->click();
    });
    MiscTool::showAlert(qtTrId("ZipFail"), qtTrId("Quit.Consequence"));

    Job job = application.jobs().begin({.page = u"ZIPViewController"_s, .title = qtTrId("Zip")});
    application.window().close();
    Scenes::settle();
    auto &question = control<QMessageBox>(application.window(), "quitQuestion");
    look(u"question"_s, question);
    look(u"running"_s, application.window());
    job.end(JobOutcome::Succeeded);
    Scenes::settle();
}

} // namespace

QStringList Scenes::languages()
{
    QStringList names;
    const auto tables = QDir(u":/localisation"_s).entryList({u"toolvane_*.qm"_s});
    for (const QString &table : tables)
        names += table.section(u'.', 0, 0).section(u'_', 1);
    return names << u"pseudo"_s;
}

Scenes::Language::Language(const QString &name)
{
    if (name == u"pseudo")
        QVERIFY(QCoreApplication::installTranslator(&m_pseudo));
    else
        QVERIFY(m_table.load(u":/localisation/toolvane_%1.qm"_s.arg(name))
                && QCoreApplication::installTranslator(&m_table));
    QGuiApplication::setLayoutDirection(QLocale(name).textDirection());
}

Scenes::Language::~Language()
{
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void Scenes::prepare()
{
    QVERIFY2(qEnvironmentVariableIsSet("TOOLVANE_TEST_SANDBOX"), "makes a record database");
    QLocale::setDefault(QLocale::c()); // English to begin with, whatever this machine speaks
    Application::prepare();
    Theme::install();
    const QString archive = MiscTool::getAppDocumentFolder() + u"/a finished archive.zip"_s;
    QVERIFY(QFile(archive).open(QIODevice::WriteOnly));
    UnplacedArchives::keep(archive); // which the Zip page offers another place
}

QString Scenes::described(const QWidget &widget)
{
    return QLatin1String(widget.metaObject()->className()) + u' ' + widget.objectName() + u' ';
}

QList<QWidget *> Scenes::shownIn(const QWidget &window)
{
    QList<QWidget *> shown = window.findChildren<QWidget *>();
    shown.removeIf([&window](const QWidget *widget) {
        return !widget->isVisible() || widget->window() != &window;
    });
    return shown;
}

void Scenes::visit(Application &application, const Look &look)
{
    visitPages(application, look);
    logIn(application, look);
    visitRecords(application, application.window(), look);
    visitMessages(application, look);
}

void Scenes::settle()
{
    QTest::qWait(1);
    QCoreApplication::sendPostedEvents();
}

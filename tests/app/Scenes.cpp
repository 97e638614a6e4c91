#include "Scenes.h"

#include "Application.h"
#include "HoverTableAppDelegate.h"
#include "MiscTool.h"
#include "Theme.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace
{

template <typename Widget = QWidget>
Widget &find(const QObject &parent, const QString &name)
{
    auto *found = parent.findChild<Widget *>(name);
    if (!found)
        qFatal("nothing is called %s", qUtf8Printable(name));
    return *found;
}

void visitPages(Application &application, const Scenes::Look &look)
{
    MainWindow &window = application.window();
    look(u"welcome"_s, window);
    for (int row = 0; row < application.tools().rowCount(); ++row) {
        application.tools().selectTool(row);
        Scenes::settle();
        look(application.tools().viewItem(row)->objectName(), window);
    }
    find<QAction>(window, u"aboutItem"_s).trigger();
    Scenes::settle();
    look(u"about"_s, window);
}

void logIn(Application &application, const Scenes::Look &look)
{
    find<QAction>(application.window(), u"loginItem"_s).trigger();
    QWidget &login = *application.delegate().loginWindow;
    Scenes::settle();
    look(u"login"_s, login);
    find<QLineEdit>(login, u"userField"_s).setText(u"root"_s);
    find<QLineEdit>(login, u"passwordField"_s).setText(u"kelp"_s);
    find<QPushButton>(login, u"loginButton"_s).click();
    QTRY_VERIFY(!login.isVisible());
}

void visitRecords(const Application &, MainWindow &window, const Scenes::Look &look)
{
    for (const QString &item : {u"userGroupsItem"_s, u"usersItem"_s, u"stockItem"_s}) {
        find<QAction>(window, item).trigger();
        Scenes::settle();
        auto &records = find<QWidget>(window, u"RecordWindow"_s);
        look(item, records);
        const QWidget &page = *records.findChild<QTabWidget *>(u"pages"_s)->currentWidget();
        find<QPushButton>(page, u"addButton"_s).click();
        Scenes::settle();
        auto *sheet = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        QVERIFY2(sheet, qPrintable(item));
        look(item + u", sheet"_s, *sheet);
        sheet->reject();
    }
    find<QWidget>(window, u"RecordWindow"_s).close();
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
    auto &question = find<QMessageBox>(application.window(), u"quitQuestion"_s);
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

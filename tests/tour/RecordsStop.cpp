#include "Application.h"
#include "Stops.h"
#include "Tour.h"

#include <QAction>

using namespace Qt::StringLiterals;

void visitRecords(Tour &tour)
{
    MainWindow &window = tour.application().window();
    QWidget *login = tour.application().delegate().loginWindow;
    const auto trigger = [&](const QString &item) {
        tour.step(u"choose Records, "_s + item);
        window.findChild<QAction *>(item)->trigger();
    };
    trigger(u"loginItem"_s);
    tour.await(u"the login window is shown"_s, [login] { return login->isVisible(); });
    tour.type(login, "userField", u"root"_s);
    tour.type(login, "passwordField", u"kelp"_s);
    tour.picture(u"login"_s);
    tour.press(login, "loginButton");
    tour.await(u"the main window bears the user's name"_s,
               [&] { return window.windowTitle() == u"root"_s && !login->isVisible(); });

    trigger(u"userGroupsItem"_s);
    QWidget *records = nullptr;
    tour.await(u"the record window is shown"_s, [&] {
        records = window.findChild<QWidget *>(u"RecordWindow"_s);
        return records && records->isVisible();
    });
    tour.picture(u"records-groups"_s);
    trigger(u"usersItem"_s);
    tour.picture(u"records-users"_s);
    records->close();
}

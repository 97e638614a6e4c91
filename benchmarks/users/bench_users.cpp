// How long the record pages block the interface thread with 10,000 users in 500 groups. People
// notice a tenth of a second, so that is the limit for each step. What counts is the thread's own
// processor time, the median of the rounds. The clock time, which includes the disk, is printed
// next to it. Behind a web service, the time of the plain transfers is added to the limit.
// usage: tests/support/isolated bench_users

#include "DB.h"
#include "Global.h"
#include "Http.h"
#include "HttpPeer.h"
#include "RecordTable.h"
#include "Row.h"
#include "SchemaReflect.h"
#include "Theme.h"
#include "UserGroupSchema.h"
#include "UserGroupViewController.h"
#include "UserViewController.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>

#include <sqlite3.h>

#include <ctime>
#include <functional>
#include <vector>

using namespace Qt::StringLiterals;

namespace
{

constexpr int rounds = 7;
constexpr double maxStepTime = 100; // milliseconds

double threadTime()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) * 1e-6;
}

/// Times one step in each round; its preparation is not timed.
bool isWithin(const char *name, const std::function<void()> &prepare,
              const std::function<void()> &step, double limit = maxStepTime)
{
    std::vector<double> thread, clock;
    for (int i = 0; i < rounds; ++i) {
        prepare();
        QCoreApplication::processEvents();
        QElapsedTimer watch;
        watch.start();
        const double begin = threadTime();
        step();
        thread.push_back(threadTime() - begin);
        clock.push_back(double(watch.nsecsElapsed()) * 1e-6);
    }
    char detail[64];
    std::snprintf(detail, sizeof detail, "%.1f ms by the clock", median(clock));
    return Row{
        .work = name, .figure = median(thread), .limit = limit, .unit = "ms", .detail = detail}
        .print();
}

/// Names are unsorted, so that sorting has work to do, and have escapes, so that showing them has.
bool fillDatabase()
{
    Global::openDB();
    BLGeneral(u"User"_s).initTable();
    BLGeneral(u"UserGroup"_s).initTable();
    const bool isFilled =
        sqlite3_exec(DB::getDatabase(),
                     "BEGIN;"
                     "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<500)"
                     "INSERT INTO UserGroup(ShopID,Name,Permission,Memo)"
                     "SELECT 0,'Group%20'||(i*7919%500),'A1B1B2','%E4%BB%93%E5%BA%93' FROM n;"
                     "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<10000)"
                     "INSERT INTO User(ShopID,UserGroupID,User,Password,Memo)"
                     "SELECT 0,i%500+1,'User%20'||(i*7919%10007),'pw','Memo%20of%20'||i FROM n;"
                     "COMMIT;",
                     nullptr, nullptr, nullptr)
        == SQLITE_OK;
    Global::closeDB();
    return isFilled;
}

template <class Control>
Control &control(const QWidget &page, const char *name)
{
    return *page.findChild<Control *>(QLatin1String(name));
}

/// Makes the page and paints it, as the record window does when it opens.
template <class Page>
std::unique_ptr<Page> opened()
{
    auto page = std::make_unique<Page>();
    page->resize(760, 500);
    page->show();
    page->grab();
    return page;
}

template <class Page>
bool opensInTime(const char *name, double limit = maxStepTime)
{
    std::unique_ptr<Page> page;
    return isWithin(
        name, [&page] { page.reset(); }, [&page] { page = opened<Page>(); }, limit);
}

/// What a service replies to a select of the whole table.
template <class Record>
QByteArray replyWith(const QString &table)
{
    QByteArrayList rows;
    const auto records = BLGeneral(table).select("1=1", Record{});
    for (const Record &record : *records)
        rows.append(SchemaReflect::toJSON(record).toUtf8());
    return HttpPeer::reply("{\"RESULT\":[" + rows.join(',') + "]}");
}

double transferTime(const HttpPeer &peer)
{
    std::vector<double> times;
    for (int i = 0; i < rounds; ++i) {
        const double begin = threadTime();
        for (const char *table : {"/User?", "/UserGroup?"})
            httpPost({peer.address(table), {}, DB::webServiceLimits()}, {});
        times.push_back(threadTime() - begin);
    }
    return median(times);
}

/// The last thing that is measured: afterwards the records are behind the service.
bool opensBehindAServiceInTime()
{
    const QByteArray users = replyWith<UserSchema>(u"User"_s);
    const QByteArray groups = replyWith<UserGroupSchema>(u"UserGroup"_s);
    const HttpPeer peer([&](HttpPeer::Connection &connection) {
        connection.send(connection.request().contains("/User?") ? users : groups);
    });
    DB::reset();
    QSettings().setValue(u"Addresses/WebService"_s, QString::fromLatin1(peer.address()));
    return opensInTime<UserViewController>("opening them behind a service",
                                           maxStepTime + transferTime(peer));
}

bool sortsInTime(const QWidget &page)
{
    auto &table = control<RecordTable>(page, "table");
    return isWithin(
        "sorting the users by name", [&table] { table.sortByColumn(-1, Qt::AscendingOrder); },
        [&table] {
            table.sortByColumn(0, Qt::AscendingOrder);
            table.viewport()->grab();
        });
}

/// The table is sorted, so a new user also costs a sort.
bool addsInTime(const QWidget &page)
{
    auto &name = control<QLineEdit>(page, "userField");
    const auto press = [&page](const char *button) {
        control<QPushButton>(page, button).click();
        page.window()->repaint();
    };
    int added = 0;
    const auto openSheet = [&] { press("addButton"); };
    const auto fillIn = [&] {
        openSheet();
        name.setText(u"New user %1"_s.arg(++added));
    };
    const bool opens = isWithin(
        "opening the sheet for a new user", [&] { press("cancelButton"); }, openSheet);
    const bool saves = isWithin("saving a new user", fillIn, [&] { press("saveButton"); });
    return opens && saves;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    if (qEnvironmentVariableIsEmpty("TOOLVANE_TEST_SANDBOX")) {
        std::fprintf(stderr, "usage: tests/support/isolated %s\n", argv[0]);
        return 64;
    }
    QCoreApplication::setOrganizationName(u"Toolvane"_s);
    QCoreApplication::setApplicationName(u"Toolvane"_s);
    Theme::install();
    if (!fillDatabase())
        return 1;
    bool isGood = opensInTime<UserGroupViewController>("opening the page of 500 groups");
    isGood &= opensInTime<UserViewController>("opening the page of 10,000 users");
    const auto page = opened<UserViewController>();
    isGood &= control<RecordTable>(*page, "table").model()->rowCount() == 10'000;
    isGood &= sortsInTime(*page);
    isGood &= addsInTime(*page);
    isGood &= control<RecordTable>(*page, "table").model()->rowCount() == 10'000 + rounds;
    isGood &= opensBehindAServiceInTime();
    return isGood ? 0 : 1;
}

// Proves that the login and the record pages work behind a web service, and that the record window
// says when the service is out of reach and lets nothing be lost meanwhile.

#include "Http.h"
#include "HttpPeer.h"
#include "Login.h"
#include "RecordsTrial.h"
#include "ServiceBar.h"

#include <QAccessible>
#include <QLabel>
#include <QRegularExpression>
#include <QTranslator>

#include <atomic>

using namespace Qt::StringLiterals;
using namespace Using;
using namespace std::chrono_literals;

namespace
{

constexpr auto requestTime = 300ms;

/// A service with one group, whose rights are as given, and one user.
class Service
{
public:
    explicit Service(const QByteArray &rights = "A1A3B1")
        : m_rights(rights), m_peer([this](HttpPeer::Connection &connection) { answer(connection); })
    {
        const QString address = QString::fromLatin1(m_peer.address("/records/"));
        QSettings().setValue(u"Addresses/WebService"_s,
                             QString(address).insert(7, u"till:secret@"_s));
        DB::webServiceLimits().time = requestTime;
        ServiceBar::interval() = 50ms;
    }

    /// What /healthz is answered with; "" is no answer at all, within any time limit.
    void setHealth(const QByteArray &status)
    {
        const std::lock_guard lock(m_mutex);
        m_health = status;
    }
    QList<QByteArray> writes() const
    {
        QList<QByteArray> writes = m_peer.requests();
        writes.removeIf([](const QByteArray &request) {
            return request.startsWith("GET ") || request.contains("OPERATION=SELECT");
        });
        return writes;
    }
    bool areAllWithCredentials() const
    {
        return std::ranges::all_of(m_peer.requests(), [](const QByteArray &request) {
            return request.contains("Authorization: Basic dGlsbDpzZWNyZXQ=");
        });
    }

private:
    void answer(HttpPeer::Connection &connection)
    {
        const QByteArray &request = connection.request();
        if (!request.startsWith("GET ")) {
            connection.send(HttpPeer::reply(rows(request)));
            return;
        }
        QByteArray health;
        {
            const std::lock_guard lock(m_mutex);
            health = m_health;
        }
        if (health.isEmpty())
            connection.hasGoneWithin(10s);
        else
            connection.send(HttpPeer::reply({}, health));
    }
    QByteArray rows(const QByteArray &request) const
    {
        if (!request.contains("OPERATION=SELECT") || request.contains("/Stock?"))
            return "0";
        if (request.contains("/UserGroup?"))
            return R"({"RESULT":[{"ID":"3","Name":"Sales","Permission":")" + m_rights + R"("}]})";
        return R"({"RESULT":[{"ID":"9","UserGroupID":"3","User":"alice","Password":"pw"}]})";
    }

    const QByteArray m_rights;
    std::mutex m_mutex;
    QByteArray m_health = "200 OK";
    HttpPeer m_peer; ///< Last, because it answers from the start.
};

/// Shows what a text is filled with.
class Filled : public QTranslator
{
public:
    QString translate(const char *, const char *key, const char *, int) const override
    {
        const bool isFilled = QByteArrayView(key).startsWith("Records.Service");
        return QLatin1String(key) + (isFilled ? u" %1 %2"_s : QString());
    }
    bool isEmpty() const override { return false; }
};

QStringList enabledOn(const QWidget &page)
{
    return PageControls::enabledOf(page, {u"addButton"_s, u"editButton"_s, u"delButton"_s});
}

bool saysLost(const QWidget &window)
{
    const auto &line = control<QLabel>(window, "serviceLostLabel");
    if (line.isVisible() == control<QLabel>(window, "servicePlaceLabel").isVisible())
        qFatal("one of the two lines is shown");
    return line.isVisible();
}

} // namespace

class TestRecordService : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u"secret"_s)); }

    void loginAndPagesUseTheService()
    {
        RecordsTrial trial;
        const Service service;
        QCOMPARE(Login::matchingUsers(u"alice"_s, u"pw"_s).size(), 1);
        RecordsTrial::logIn(3);
        const QWidget &page = trial.open(UserGroups);
        QCOMPARE(names(page), QStringList{u"Sales"_s});
        QCOMPARE(enabledOn(page), QStringList{u"editButton"_s});
        edit(page, 0);
        type(page, "nameField", u"Sellers"_s);
        press(page, "saveButton");
        QCOMPARE(names(trial.open(Users)), QStringList{u"alice"_s});
        QCOMPARE(service.writes().size(), 1);
        QVERIFY(service.writes().at(0).contains(R"("ID":"3")"));
        QVERIFY(service.areAllWithCredentials());
        QVERIFY(!QFile::exists(DB::dbFilePath()));
    }

    void aServiceThatDoesNotAnswerLetsNothingBeSaved_data()
    {
        QTest::addColumn<QByteArray>("health");
        QTest::newRow("not ready") << "503 Service Unavailable"_ba;
        QTest::newRow("hangs") << ""_ba;
        QTest::newRow("leads elsewhere") << "302 Found\r\nLocation: /healthz"_ba;
    }
    void aServiceThatDoesNotAnswerLetsNothingBeSaved()
    {
        QFETCH(const QByteArray, health);
        RecordsTrial trial;
        Filled texts;
        QCoreApplication::installTranslator(&texts);
        Service service;
        RecordsTrial::logIn(3);
        const AbstractViewController &page = trial.open(UserGroups);
        const QWidget &window = *page.window();
        QVERIFY(!saysLost(window));
        const QString place = control<QLabel>(window, "servicePlaceLabel").text();
        QVERIFY2(place.contains(u"/records/"_s) && !place.contains(u"secret"_s), qPrintable(place));
        edit(page, 0); // the sheet is open when it happens
        auto &save = control<QPushButton>(page, "saveButton");
        QVERIFY(save.isEnabled());

        const QTime before = QTime::currentTime();
        service.setHealth(health);
        QTRY_VERIFY(saysLost(window));
        auto &line = control<QLabel>(window, "serviceLostLabel");
        const QString text = line.text();
        QCOMPARE(QAccessible::queryAccessibleInterface(&line)->text(QAccessible::Name), text);
        const auto shown = [](QTime time) {
            return QLocale().toString(time, QLocale::ShortFormat);
        };
        QVERIFY(text.contains(shown(before)) || text.contains(shown(QTime::currentTime())));
        QVERIFY(!text.contains(u"secret"_s));
        QVERIFY(!save.isEnabled());
        press(page, "cancelButton");
        QCOMPARE(enabledOn(page), QStringList());
        QCOMPARE(enabledOn(trial.page(Users)), QStringList());
        doubleClickRow(page, 0); // to look at it
        QVERIFY(panel(page).isVisible() && !save.isEnabled());
        press(page, "cancelButton");
        RecordWindow::open(Users, trial.owner); // which does not read the service's silence
        RecordWindow::open(UserGroups, trial.owner);
        QCOMPARE(names(page), QStringList{u"Sales"_s});
        QTest::qWait(int(2 * requestTime.count()));
        QCOMPARE(line.text(), text); // since the same time

        service.setHealth("200 OK");
        QTRY_VERIFY(!saysLost(window));
        QCOMPARE(enabledOn(page), QStringList{u"editButton"_s}); // as the rights allow
        QCOMPARE(enabledOn(trial.page(Users)), QStringList());
        edit(page, 0);
        QVERIFY(save.isEnabled());
        QVERIFY(service.writes().isEmpty());
    }

    void aQuestionOpenAtThatTimeDeletesNothing()
    {
        RecordsTrial trial;
        Service service;
        const QWidget &page = trial.open(Users);
        selectRow(page, 0);
        press(page, "delButton");
        service.setHealth("500 Oh");
        QTRY_VERIFY(saysLost(*page.window()));
        QVERIFY(!deleteQuestion(page)->defaultButton()->isEnabled());
        answerQuestion(page, Qt::Key_Escape);
        QCOMPARE(names(page), QStringList{u"alice"_s});
        QVERIFY(service.writes().isEmpty());
    }

    void anAddressWithoutTheQuestionCountsAsReachable()
    {
        RecordsTrial trial;
        Service service;
        service.setHealth("404 Not Found");
        const QWidget &page = trial.open(Users);
        QTest::qWait(200);
        QVERIFY(!saysLost(*page.window()));
        QCOMPARE(enabledOn(page).size(), 3);
    }

    void aServerThatIsDownReadsAsEmptyAndIsSaid()
    {
        RecordsTrial trial;
        {
            const Service service; // gone at once
        }
        QVERIFY(Login::matchingUsers(u"alice"_s, u"pw"_s).isEmpty());
        const QWidget &page = trial.open(Users);
        QTRY_VERIFY(saysLost(*page.window()));
        QCOMPARE(enabledOn(page), QStringList());
        RecordWindow::closeOf(trial.owner);
    }

    void theFileNeedsNoLine()
    {
        RecordsTrial trial;
        QVERIFY(!trial.open(Users).window()->findChild<ServiceBar *>());
    }
};

QTEST_MAIN(TestRecordService)
#include "tst_record_service.moc"

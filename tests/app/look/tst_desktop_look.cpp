// Proves that the look follows the desktop's preference, as the settings portal tells it, and
// survives a portal that lies, goes or never was.

#include "DesktopLook.h"
#include "SessionBus.h"

#include <QApplication>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QSettings>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using Scheme = Theme::Scheme;

namespace
{

const QString service = u"org.freedesktop.portal.Desktop"_s;
const QString path = u"/org/freedesktop/portal/desktop"_s;
const QString settings = u"org.freedesktop.portal.Settings"_s;
const QString appearance = u"org.freedesktop.appearance"_s;

// A desktop's portal that answers whatever it is told to.
class FakePortal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    QVariant answer;
    int asked = 0;

    static void change(const QString &group, const QString &key, const QVariantList &values)
    {
        QDBusMessage signal = QDBusMessage::createSignal(path, settings, u"SettingChanged"_s);
        signal.setArguments(QVariantList{group, key} + values);
        QVERIFY(QDBusConnection(u"portal"_s).send(signal));
    }

    static void changeScheme(const QVariant &value)
    {
        change(appearance, u"color-scheme"_s, {QVariant::fromValue(QDBusVariant(value))});
    }

public Q_SLOTS:
    QDBusVariant Read(const QString &group, const QString &key)
    {
        ++asked;
        if (group != appearance || key != u"color-scheme"_s)
            sendErrorReply(u"org.freedesktop.portal.Error.NotFound"_s, u"unknown"_s);
        return QDBusVariant(answer);
    }
};

QVariant wrapped(const QVariant &value)
{
    return QVariant::fromValue(QDBusVariant(value));
}

} // namespace

class TestDesktopLook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(qEnvironmentVariableIsSet("TOOLVANE_TEST_SANDBOX"), "writes settings");
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.address().toUtf8());
        QDBusConnection bus = m_bus.connect(u"portal"_s);
        QVERIFY(bus.registerObject(path, &m_portal, QDBusConnection::ExportAllSlots));
        QVERIFY(bus.registerService(service));
        QCoreApplication::setOrganizationName(u"Toolvane"_s);
        Theme::install();
    }

    void init()
    {
        QSettings().clear();
        m_portal.answer = 0U;
        m_portal.asked = 0;
        Theme::apply(Scheme::Light);
    }

    void withoutPreferenceThePlatformIsAskedAnew()
    {
        Theme::apply(Scheme::Dark); // the platform's, when the program started
        m_portal.answer = 1U;
        const DesktopLook look;
        QWidget window;
        window.show();
        QTRY_COMPARE(m_portal.asked, 1);
        QTest::qWait(50); // until the answer is there, which changes nothing
        FakePortal::changeScheme(0U); // and the platform is light by now
        QTRY_COMPARE(Theme::current(), Scheme::Light);
    }

    void theFirstAnswerCounts()
    {
        const QVariant endless = wrapped(wrapped(wrapped(wrapped(wrapped(wrapped(1U))))));
        // The answer, what the platform's palette says, and what is shown.
        for (const auto &[answer, before, shown] :
             {std::tuple(wrapped(1U), Scheme::Light, Scheme::Dark),
              std::tuple(QVariant(2U), Scheme::Dark, Scheme::Light),
              std::tuple(QVariant(77U), Scheme::Dark, Scheme::Dark),
              std::tuple(QVariant(u"1"_s), Scheme::Light, Scheme::Light),
              std::tuple(endless, Scheme::Light, Scheme::Light)}) {
            init();
            Theme::apply(before);
            m_portal.answer = answer;
            const DesktopLook look;
            QTest::qWait(10);
            QCOMPARE(Theme::current(), before);
            QCOMPARE(m_portal.asked, 0); // nothing before the first paint
            QWidget window;
            window.show();
            QTRY_COMPARE(m_portal.asked, 1);
            const auto later = QDBusMessage::createMethodCall(service, path, settings, u"Read"_s);
            const QDBusPendingCallWatcher last(QDBusConnection::sessionBus().asyncCall(later));
            QSignalSpy answered(&last, &QDBusPendingCallWatcher::finished);
            QVERIFY(answered.wait()); // answers come in order
            QCOMPARE(Theme::current(), shown);
        }
    }

    void theNextStartBeginsAsTheLastEndedAndFollowsChanges()
    {
        QSettings().setValue(u"Look/ColorScheme"_s, 1U);
        QVERIFY(QDBusConnection(u"portal"_s).unregisterService(service));
        const DesktopLook look;
        QCOMPARE(Theme::current(), Scheme::Dark); // before anything is painted
        QWidget window;
        window.show();
        QTRY_COMPARE(Theme::current(), Scheme::Light); // nobody prefers anything any more
        QVERIFY(QDBusConnection(u"portal"_s).registerService(service)); // it may also come late
        FakePortal::changeScheme(1U);
        QTRY_COMPARE(Theme::current(), Scheme::Dark);
        QCOMPARE(QSettings().value(u"Look/ColorScheme"_s).toUInt(), 1U);
        FakePortal::change(appearance, u"contrast"_s, {wrapped(2U)});
        FakePortal::change(u"org.gnome.desktop.interface"_s, u"color-scheme"_s, {wrapped(2U)});
        FakePortal::change(appearance, u"color-scheme"_s, {u"light"_s}); // not even a variant
        FakePortal::change(appearance, u"color-scheme"_s, {});
        QTest::qWait(50);
        QCOMPARE(Theme::current(), Scheme::Dark);
        FakePortal::changeScheme(2U);
        QTRY_COMPARE(Theme::current(), Scheme::Light);
    }

private:
    FakePortal m_portal;
    SessionBus m_bus;
};

QTEST_MAIN(TestDesktopLook)
#include "tst_desktop_look.moc"

// Proves that the look follows the desktop's preference, as the settings portal tells it, and
// survives a portal that lies, goes or never was.

#include "DesktopLook.h"
#include "HintLabel.h"
#include "PageTitle.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QProcess>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

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
    bool isMissing = false;
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
        if (isMissing || group != appearance || key != u"color-scheme"_s)
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
        m_bus.start(u"dbus-daemon"_s,
                    {u"--session"_s, u"--nofork"_s, u"--print-address=1"_s,
                     u"--address=unix:dir="_s + m_dir.path()});
        QVERIFY(m_bus.waitForReadyRead(10000));
        const QByteArray address = m_bus.readLine().trimmed();
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        QDBusConnection bus =
            QDBusConnection::connectToBus(QString::fromUtf8(address), u"portal"_s);
        QVERIFY(bus.isConnected());
        QVERIFY(bus.registerObject(path, &m_portal, QDBusConnection::ExportAllSlots));
        QVERIFY(bus.registerService(service));
        QCoreApplication::setOrganizationName(u"Toolvane"_s);
        Theme::install();
    }

    void init()
    {
        QSettings().clear();
        m_portal.answer = 0U;
        m_portal.isMissing = false;
        m_portal.asked = 0;
        Theme::apply(Scheme::Light);
    }

    void cleanupTestCase()
    {
        QDBusConnection::disconnectFromBus(u"portal"_s);
        QDBusConnection::disconnectFromBus(u"qt_default_session_bus"_s);
        m_bus.terminate();
        m_bus.waitForFinished();
    }

    void withoutPreferenceThePlatformIsAskedAnew()
    {
        Theme::apply(Theme::Scheme::Dark); // the platform's, when the program started
        m_portal.answer = 1U;
        const DesktopLook look;
        QWidget window;
        window.show();
        QTRY_COMPARE(m_portal.asked, 1);
        QTest::qWait(50); // until the answer is there, which changes nothing
        FakePortal::changeScheme(0U); // and the platform is light by now
        QTRY_COMPARE(Theme::current(), Theme::Scheme::Light);
    }

    void theFirstAnswerCounts_data()
    {
        QTest::addColumn<QVariant>("answer");
        QTest::addColumn<Scheme>("before"); // what the platform's palette says
        QTest::addColumn<Scheme>("shown");
        QTest::newRow("dark") << QVariant(1U) << Scheme::Light << Scheme::Dark;
        QTest::newRow("dark, wrapped twice") << wrapped(1U) << Scheme::Light << Scheme::Dark;
        QTest::newRow("light") << QVariant(2U) << Scheme::Dark << Scheme::Light;
        QTest::newRow("no preference") << QVariant(0U) << Scheme::Dark << Scheme::Dark;
        QTest::newRow("unknown") << QVariant(77U) << Scheme::Light << Scheme::Light;
        QTest::newRow("a text") << QVariant(u"1"_s) << Scheme::Light << Scheme::Light;
        QTest::newRow("a map") << QVariant(QVariantMap{{u"1"_s, 1U}}) << Scheme::Dark
                               << Scheme::Dark;
        QTest::newRow("wrapped without end")
            << wrapped(wrapped(wrapped(wrapped(wrapped(wrapped(1U)))))) << Scheme::Light
            << Scheme::Light;
    }

    void theFirstAnswerCounts()
    {
        QFETCH(Scheme, before);
        QFETCH(QVariant, answer);
        Theme::apply(before);
        m_portal.answer = answer;
        const DesktopLook look;
        QTest::qWait(10);
        QCOMPARE(Theme::current(), before);
        QCOMPARE(m_portal.asked, 0); // nothing before the first paint
        QWidget window;
        window.show();
        QTRY_COMPARE(m_portal.asked, 1);
        SettingsPortal later; // answers come in order
        QSignalSpy answered(&later, &SettingsPortal::colorSchemeTold);
        later.open();
        QVERIFY(answered.wait());
        QTEST(Theme::current(), "shown");
    }

    void changesWhileRunning()
    {
        const DesktopLook look;
        QWidget window;
        HintLabel hint(&window);
        window.show();
        QTRY_COMPARE(m_portal.asked, 1);
        for (int i = 0; i < 2; ++i) {
            FakePortal::changeScheme(1U);
            QTRY_COMPARE(Theme::current(), Scheme::Dark);
            QTRY_COMPARE(hint.palette().color(QPalette::WindowText),
                         Theme::palette(Scheme::Dark).color(QPalette::PlaceholderText));
            FakePortal::change(appearance, u"contrast"_s, {wrapped(2U)});
            FakePortal::change(u"org.gnome.desktop.interface"_s, u"color-scheme"_s, {wrapped(2U)});
            FakePortal::change(appearance, u"color-scheme"_s, {u"light"_s}); // not even a variant
            FakePortal::change(appearance, u"color-scheme"_s, {});
            QTest::qWait(50);
            QCOMPARE(Theme::current(), Scheme::Dark);
            FakePortal::changeScheme(2U);
            QTRY_COMPARE(Theme::current(), Scheme::Light);
        }
    }

    void theNextStartBeginsAsTheLastEnded()
    {
        m_portal.answer = 1U;
        {
            const DesktopLook look;
            QWidget window;
            window.show();
            QTRY_COMPARE(Theme::current(), Scheme::Dark);
        }
        Theme::apply(Scheme::Light); // as the platform's palette says
        const DesktopLook look;
        QCOMPARE(Theme::current(), Scheme::Dark); // before anything is painted
        m_portal.isMissing = true;
        QWidget window;
        window.show();
        QTRY_COMPARE(Theme::current(), Scheme::Light);
    }

    void aMissingPortalLeavesThePlatformsColours()
    {
        QVERIFY(QDBusConnection(u"portal"_s).unregisterService(service));
        const DesktopLook look;
        QWidget window;
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTest::qWait(50);
        QCOMPARE(Theme::current(), Scheme::Light);
        QVERIFY(QDBusConnection(u"portal"_s).registerService(service)); // it may also come late
        FakePortal::changeScheme(1U);
        QTRY_COMPARE(Theme::current(), Scheme::Dark);
    }

    void textsFollowTheFont()
    {
        const DesktopLook look;
        QWidget window;
        PageTitle title(&window);
        QLabel label(&window);
        window.show();
        const int before = title.fontMetrics().height();
        QVERIFY(before > label.fontMetrics().height() * 1.2);
        const QFont original = QApplication::font();
        QFont larger = original;
        larger.setPointSizeF(original.pointSizeF() * 1.5);
        Theme::setFont(larger);
        QTRY_COMPARE(label.font().pointSizeF(), larger.pointSizeF());
        QTRY_VERIFY(title.fontMetrics().height() > before * 1.3);
        QEvent changed(QEvent::ThemeChange); // as the platform sends it to each window
        Theme::setFont(original);
        QCoreApplication::sendEvent(&window, &changed);
        QTest::qWait(0);
        QCOMPARE(Theme::current(), Scheme::Light);
        QTRY_COMPARE(title.fontMetrics().height(), before);
    }

private:
    QTemporaryDir m_dir;
    QProcess m_bus;
    FakePortal m_portal;
};

QTEST_MAIN(TestDesktopLook)
#include "tst_desktop_look.moc"

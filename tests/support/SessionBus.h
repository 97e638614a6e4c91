#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

/// A session bus of the test's own, which the desktop's programs never hear of; gone with the
/// object, and with it every connection of this process.
class SessionBus
{
public:
    SessionBus()
    {
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--session"), QStringLiteral("--nofork"),
                        QStringLiteral("--print-address=1"),
                        QStringLiteral("--address=unix:dir=") + m_folder.path()});
        QVERIFY(m_daemon.waitForReadyRead(10000));
        m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
    }
    ~SessionBus()
    {
        for (const QString &name : std::as_const(m_names))
            QDBusConnection::disconnectFromBus(name);
        m_daemon.terminate();
        m_daemon.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(SessionBus)

    QString address() const { return m_address; }
    /// Makes a connection, which QDBusConnection finds by its name.
    QDBusConnection connect(const QString &name)
    {
        m_names += name;
        return QDBusConnection::connectToBus(m_address, name);
    }

private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
    QString m_address;
    QStringList m_names{QStringLiteral("qt_default_session_bus")};
};

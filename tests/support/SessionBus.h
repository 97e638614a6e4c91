#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

/// A session bus for one test, separate from the desktop's. It ends with the object, and so does
/// every connection of this process to it.
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
    /// Makes a connection. QDBusConnection finds it by this name.
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

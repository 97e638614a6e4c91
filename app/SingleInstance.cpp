#include "SingleInstance.h"

#include "Tool.h"

#include <QCryptographicHash>
#include <QDBusError>
#include <QDBusMessage>
#include <QDebug>
#include <QDir>
#include <QGuiApplication>
#include <QSettings>

#include <unistd.h>

#include <chrono>
#include <thread>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr auto startTimeout = 3s; // includes the time that a first program needs until it serves
constexpr auto retryInterval = 20ms;
constexpr qsizetype maxTokenLength = 1024;

constexpr auto busService = "org.freedesktop.DBus"_L1; // its interface, too
constexpr auto busPath = "/org/freedesktop/DBus"_L1;
constexpr uint doNotQueue = 4; // RequestName: a flag, and the reply for success
constexpr uint isOwner = 1;

constexpr auto applicationName = "example.toolvane.toolvane"_L1;
constexpr auto applicationPath = "/example/toolvane/toolvane"_L1;
constexpr auto applicationInterface = "org.freedesktop.Application"_L1;
constexpr auto tokenKey = "activation-token"_L1;

QString screen()
{
    const QString platform = QGuiApplication::platformName();
    const char *variable = platform.startsWith("wayland"_L1) ? "WAYLAND_DISPLAY" : "DISPLAY";
    return platform + u'\0' + qEnvironmentVariable(variable);
}

QString nameOfInstance()
{
    const QStringList key{QString::number(geteuid()), screen(), QDir::homePath(),
                          QSettings().fileName()};
    const QByteArray hash =
        QCryptographicHash::hash(key.join(u'\0').toUtf8(), QCryptographicHash::Sha256).toHex();
    return applicationName + u".instance"_s + QLatin1String(hash.first(16));
}

QDBusMessage callOfBus(const QString &method, const QVariantList &arguments = {})
{
    auto call = QDBusMessage::createMethodCall(busService, busPath, busService, method);
    call.setArguments(arguments);
    return call;
}

QDBusMessage answer(const QDBusConnection &bus, const QDBusMessage &call,
                    const QDeadlineTimer &deadline)
{
    return bus.call(call, QDBus::Block, static_cast<int>(deadline.remainingTime()));
}

} // namespace

SingleInstance::SingleInstance(QObject *parent)
    : QObject(parent), m_name(nameOfInstance()), m_bus(QString())
{
}

SingleInstance::~SingleInstance()
{
    QDBusConnection::disconnectFromPeer(m_bus.name());
}

bool SingleInstance::passOn(const StartRequest &request)
{
    const QDeadlineTimer deadline(startTimeout);
    if (!joinBus(deadline))
        return false;
    while (!deadline.hasExpired()) {
        if (takeName(deadline))
            return false;
        if (isShownByFirst(request, deadline))
            return true;
        std::this_thread::sleep_for(retryInterval);
    }
    qWarning("The program that runs already gives no answer.");
    return false;
}

// Qt's own way to a bus waits for the answer to its first call without a time limit. So we connect
// as if to a peer, which waits for nothing, and make that call ourselves.
bool SingleInstance::joinBus(const QDeadlineTimer &deadline)
{
    const QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    if (address.isEmpty())
        return false;
    m_bus = QDBusConnection::connectToPeer(
        address, u"SingleInstance %1"_s.arg(reinterpret_cast<quintptr>(this)));
    const QDBusMessage reply = answer(m_bus, callOfBus(u"Hello"_s), deadline);
    if (QDBusError(reply).type() == QDBusError::NoReply) { // the menu bar would hang on such a bus
        qWarning("The session bus gives no answer.");
        qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    }
    return reply.type() == QDBusMessage::ReplyMessage;
}

bool SingleInstance::takeName(const QDeadlineTimer &deadline) const
{
    const auto call = callOfBus(u"RequestName"_s, {m_name, doNotQueue});
    return answer(m_bus, call, deadline).arguments() == QVariantList{isOwner};
}

bool SingleInstance::isShownByFirst(const StartRequest &request,
                                    const QDeadlineTimer &deadline) const
{
    const bool hasPage = !request.page.isEmpty();
    auto call = QDBusMessage::createMethodCall(m_name, applicationPath, applicationInterface,
                                               hasPage ? u"ActivateAction"_s : u"Activate"_s);
    if (hasPage)
        call << request.page << QVariantList();
    call << QVariantMap{{tokenKey, request.activationToken}};
    return answer(m_bus, call, deadline).type() == QDBusMessage::ReplyMessage;
}

// Before that, calls fail because the object does not exist, and the callers try again.
void SingleInstance::serve(Handler handler)
{
    m_handler = std::move(handler);
    m_bus.registerObject(applicationPath, this, QDBusConnection::ExportAllSlots);
}

void SingleInstance::Activate(const QVariantMap &platformData)
{
    show({}, platformData);
}

void SingleInstance::ActivateAction(const QString &page, const QVariantList &,
                                    const QVariantMap &platformData)
{
    show(rowOfTool(page) ? page : QString(), platformData);
}

void SingleInstance::show(const QString &page, const QVariantMap &platformData)
{
    const QString token = platformData.value(tokenKey).toString();
    if (m_handler(
            {.page = page, .activationToken = token.size() > maxTokenLength ? QString() : token}))
        return;
    answer(m_bus, callOfBus(u"ReleaseName"_s, {m_name}), QDeadlineTimer(startTimeout));
    sendErrorReply(QDBusError::Failed); // and the caller takes the name
}

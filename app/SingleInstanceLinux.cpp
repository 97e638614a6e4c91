#include "SingleInstance.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QSettings>
#include <QSocketNotifier>
#include <QTimer>

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <chrono>
#include <cstring>
#include <optional>
#include <thread>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr auto patience = 3s; // a first one that is just starting is not there yet
constexpr auto betweenTries = 20ms;
constexpr auto peersTime = 2s;
constexpr qsizetype longestMessage = 1024;
constexpr char done = '\1';

/// One packet: a mark that names the form, the page, the token, each ended by a null byte.
constexpr QByteArrayView messageMark("toolvane-start-1");

QByteArray encoded(const StartRequest &request)
{
    QByteArray message;
    for (const QByteArray &part :
         {messageMark.toByteArray(), request.page.toUtf8(), request.activationToken.toUtf8()})
        message += part + '\0';
    if (message.size() > longestMessage) // then it comes without the token
        return encoded({.page = request.page, .activationToken = {}});
    return message;
}

std::optional<StartRequest> decoded(const QByteArray &message)
{
    const QList<QByteArray> parts = message.split('\0');
    if (parts.size() != 4 || parts.at(0) != messageMark || !parts.at(3).isEmpty())
        return std::nullopt;
    return StartRequest{.page = QString::fromUtf8(parts.at(1)),
                        .activationToken = QString::fromUtf8(parts.at(2))};
}

/// The folder that a login session gives to its user alone (XDG base directories);
/// empty where there is none that deserves the name.
QByteArray runtimeFolder()
{
    const QByteArray folder = qgetenv("XDG_RUNTIME_DIR");
    struct stat status = {};
    const bool isOurs = folder.startsWith('/') && stat(folder.constData(), &status) == 0
        && S_ISDIR(status.st_mode) && status.st_uid == geteuid() && (status.st_mode & 077U) == 0;
    return isOurs ? folder : QByteArray();
}

QByteArray screen()
{
    const QString platform = QGuiApplication::platformName();
    const char *variable = platform.startsWith("wayland"_L1) ? "WAYLAND_DISPLAY" : "DISPLAY";
    return platform.toUtf8() + '\0' + qgetenv(variable);
}

/// None for a path that does not fit, which a socket cannot have.
std::optional<sockaddr_un> addressOf(const QByteArray &path)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    if (path.size() >= qsizetype(sizeof address.sun_path))
        return std::nullopt;
    std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    return address;
}

QByteArray socketOf(const QByteArray &instance)
{
    return instance + ".socket";
}

/// Empty where every start is to stand alone: without a folder, or where its path is too long.
QByteArray pathOfInstance()
{
    const QByteArray folder = runtimeFolder();
    const QByteArray who = screen() + '\0' + QFile::encodeName(QDir::homePath()) + '\0'
        + QFile::encodeName(QSettings().fileName());
    const QByteArray name = QCryptographicHash::hash(who, QCryptographicHash::Sha256).toHex();
    const QByteArray path = folder + "/toolvane-" + name.first(16);
    return folder.isEmpty() || !addressOf(socketOf(path)) ? QByteArray() : path;
}

FileDescriptor packetSocket()
{
    return FileDescriptor(socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
}

using AddressOperation = int (*)(int, const sockaddr *, socklen_t); // bind and connect

bool withAddress(AddressOperation operation, int socket, const sockaddr_un &address)
{
    const auto *any = static_cast<const sockaddr *>(static_cast<const void *>(&address));
    return operation(socket, any, socklen_t(sizeof address)) == 0;
}

bool isSameUser(int socket)
{
    ucred peer = {};
    socklen_t size = sizeof peer;
    return getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == geteuid();
}

} // namespace

SingleInstance::SingleInstance(QObject *parent) : QObject(parent), m_path(pathOfInstance())
{
}

SingleInstance::~SingleInstance()
{
    retire();
}

bool SingleInstance::passOn(const StartRequest &request)
{
    if (m_path.isEmpty())
        return false;
    m_lock = FileDescriptor(
        open((m_path + ".lock").constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
    if (!m_lock)
        return false;
    const QByteArray message = encoded(request);
    for (QDeadlineTimer deadline(patience); !deadline.hasExpired();) {
        if (becomeFirst())
            return false;
        if (ask(message, static_cast<int>(deadline.remainingTime())))
            return true;
        std::this_thread::sleep_for(betweenTries);
    }
    qWarning("The program that runs already gives no answer.");
    m_lock.close();
    return false;
}

bool SingleInstance::becomeFirst()
{
    if (flock(m_lock.get(), LOCK_EX | LOCK_NB) != 0)
        return false;
    listen();
    return true;
}

void SingleInstance::listen()
{
    const QByteArray path = socketOf(m_path);
    const auto address = addressOf(path);
    FileDescriptor listener = packetSocket();
    if (!address || !listener)
        return;
    unlink(path.constData()); // of one that was killed
    fchmod(listener.get(), 0600); // which bind() gives to the name
    if (withAddress(::bind, listener.get(), *address) && ::listen(listener.get(), SOMAXCONN) == 0)
        m_listener = std::move(listener);
}

bool SingleInstance::ask(const QByteArray &message, int milliseconds) const
{
    const auto address = addressOf(socketOf(m_path));
    const FileDescriptor peer = packetSocket();
    if (!address || !peer || !withAddress(::connect, peer.get(), *address)
        || !isSameUser(peer.get()))
        return false;
    if (send(peer.get(), message.constData(), static_cast<std::size_t>(message.size()),
             MSG_NOSIGNAL)
        != message.size())
        return false;
    pollfd answer = {.fd = peer.get(), .events = POLLIN, .revents = 0};
    char byte = 0;
    return poll(&answer, 1, milliseconds) == 1 && recv(peer.get(), &byte, 1, 0) == 1
        && byte == done;
}

void SingleInstance::serve(Handler handler)
{
    m_handler = std::move(handler);
    if (!m_listener)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_listener.get(), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &SingleInstance::meet);
}

void SingleInstance::meet()
{
    auto peer = std::make_shared<FileDescriptor>(
        accept4(m_listener.get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    if (!*peer || !isSameUser(peer->get()))
        return;
    auto *message = new QSocketNotifier(peer->get(), QSocketNotifier::Read, this);
    connect(message, &QSocketNotifier::activated, this, [this, message, peer] {
        message->setEnabled(false);
        message->deleteLater(); // and the socket with it
        answer(peer->get());
    });
    QTimer::singleShot(peersTime, message, &QObject::deleteLater);
}

void SingleInstance::answer(int peer)
{
    QByteArray message(longestMessage, Qt::Uninitialized);
    const ssize_t size =
        recv(peer, message.data(), static_cast<std::size_t>(message.size()), MSG_TRUNC);
    if (size <= 0 || size > message.size())
        return;
    const auto request = decoded(message.first(size));
    if (!request)
        return;
    if (m_handler(*request))
        send(peer, &done, 1, MSG_NOSIGNAL);
    else
        retire(); // without an answer the other one tries to become the first, and can
}

void SingleInstance::retire()
{
    m_notifier.reset();
    if (m_listener)
        unlink(socketOf(m_path).constData()); // while nobody else can have made it
    m_listener.close();
    m_lock.close();
}

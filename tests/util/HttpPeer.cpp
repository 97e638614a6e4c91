#include "HttpPeer.h"

#include <arpa/inet.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>

namespace
{

/// Whether the socket has something to read, or has ended; false at the test's end.
bool waitForSocket(int socket, int stopSignal, int milliseconds = -1)
{
    std::array<pollfd, 2> waits{{{socket, POLLIN, 0}, {stopSignal, POLLIN, 0}}};
    return poll(waits.data(), waits.size(), milliseconds) > 0 && waits[1].revents == 0;
}

bool isStopped(int stopSignal)
{
    pollfd wait{stopSignal, POLLIN, 0};
    return poll(&wait, 1, 0) > 0;
}

qsizetype bodyLength(const QByteArray &headers)
{
    constexpr QByteArrayView name("\r\nContent-Length: ");
    const qsizetype begin = headers.indexOf(name);
    if (begin < 0)
        return 0;
    const qsizetype value = begin + name.size();
    return headers.mid(value, headers.indexOf("\r\n", value) - value).toLongLong();
}

bool isWhole(const QByteArray &request)
{
    const qsizetype end = request.indexOf("\r\n\r\n");
    return end >= 0 && request.size() >= end + 4 + bodyLength(request.first(end + 4));
}

} // namespace

bool HttpPeer::Connection::send(const QByteArray &bytes)
{
    return !isStopped(m_stopSignal)
        && ::send(m_socket, bytes.data(), std::size_t(bytes.size()), MSG_NOSIGNAL) == bytes.size();
}

bool HttpPeer::Connection::hasGoneWithin(std::chrono::milliseconds time)
{
    return waitForSocket(m_socket, m_stopSignal, int(time.count())) || isStopped(m_stopSignal);
}

void HttpPeer::Connection::readRequest()
{
    std::array<char, 4096> piece;
    while (!isWhole(m_request) && waitForSocket(m_socket, m_stopSignal)) {
        const ssize_t count = recv(m_socket, piece.data(), piece.size(), 0);
        if (count <= 0)
            return;
        m_request.append(piece.data(), count);
    }
}

HttpPeer::HttpPeer(Answer answer)
    : m_answer(std::move(answer)), m_listener(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)),
      m_stopSignal(eventfd(0, EFD_CLOEXEC))
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto *plain = reinterpret_cast<sockaddr *>(&address);
    if (bind(m_listener, plain, size) != 0 || listen(m_listener, 8) != 0
        || getsockname(m_listener, plain, &size) != 0)
        qFatal("HttpPeer: cannot listen");
    m_port = ntohs(address.sin_port);
    m_thread = std::thread(&HttpPeer::serve, this);
}

HttpPeer::HttpPeer(const QByteArray &reply)
    : HttpPeer([reply](Connection &connection) { connection.send(reply); })
{
}

HttpPeer::~HttpPeer()
{
    eventfd_write(m_stopSignal, 1);
    m_thread.join();
    close(m_listener);
    close(m_stopSignal);
}

QByteArray HttpPeer::address(const QByteArray &path) const
{
    return "http://127.0.0.1:" + QByteArray::number(m_port) + path;
}

QList<QByteArray> HttpPeer::requests() const
{
    const std::lock_guard lock(m_mutex);
    return m_requests;
}

QByteArray HttpPeer::reply(const QByteArray &body, const QByteArray &status)
{
    return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size())
        + "\r\nConnection: close\r\n\r\n" + body;
}

QByteArray HttpPeer::redirect(const QByteArray &target)
{
    return "HTTP/1.1 302 Found\r\nLocation: " + target
        + "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n";
}

void HttpPeer::serve()
{
    while (waitForSocket(m_listener, m_stopSignal)) {
        const int socket = accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
        Connection connection(socket, m_stopSignal);
        connection.readRequest();
        {
            const std::lock_guard lock(m_mutex);
            m_requests.append(connection.request());
        }
        m_answer(connection);
        close(socket);
    }
}

#pragma once

#include <QByteArray>
#include <QList>

#include <arpa/inet.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <mutex>
#include <thread>

/// A small HTTP server on 127.0.0.1 that keeps the raw bytes of every request and answers as the
/// test wants, also in wrong ways. One connection at a time, each for one request.
class HttpPeer
{
public:
    /// The peer's end of a connection whose request has been read.
    class Connection
    {
    public:
        explicit Connection(int socket) : m_socket(socket) { readRequest(); }

        /// False once the client or the test has gone.
        bool send(const QByteArray &bytes)
        {
            return ::send(m_socket, bytes.data(), std::size_t(bytes.size()), MSG_NOSIGNAL)
                == bytes.size();
        }
        /// Waits; true as soon as the client or the test has gone.
        bool hasGoneWithin(std::chrono::milliseconds time)
        {
            pollfd wait{m_socket, POLLIN, 0};
            return poll(&wait, 1, int(time.count())) > 0;
        }
        const QByteArray &request() const { return m_request; }
        /// Waits for one more request on this connection. False if the client or the test has gone.
        bool readNext()
        {
            m_request.clear();
            readRequest();
            return isWhole();
        }

    private:
        void readRequest()
        {
            std::array<char, 4096> piece;
            ssize_t count = 1;
            while (!isWhole() && count > 0) {
                count = recv(m_socket, piece.data(), piece.size(), 0);
                m_request.append(piece.data(), std::max(count, ssize_t(0)));
            }
        }
        bool isWhole() const
        {
            const qsizetype end = m_request.indexOf("\r\n\r\n");
            const qsizetype length = m_request.indexOf("\r\nContent-Length: ");
            const qsizetype body = length < 0 ? 0 : std::atoll(m_request.constData() + length + 18);
            return end >= 0 && m_request.size() >= end + 4 + body;
        }

        int m_socket;
        QByteArray m_request;
    };
    using Answer = std::function<void(Connection &)>;

    explicit HttpPeer(Answer answer)
        : m_answer(std::move(answer)), m_listener(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        m_address.sin_family = AF_INET;
        m_address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof m_address;
        auto *plain = reinterpret_cast<sockaddr *>(&m_address);
        if (bind(m_listener, plain, size) != 0 || listen(m_listener, 8) != 0
            || getsockname(m_listener, plain, &size) != 0)
            qFatal("HttpPeer: cannot listen");
        m_thread = std::thread(&HttpPeer::serve, this);
    }
    explicit HttpPeer(const QByteArray &reply)
        : HttpPeer([reply](Connection &connection) { connection.send(reply); })
    {
    }
    ~HttpPeer()
    {
        {
            const std::lock_guard lock(m_mutex);
            m_isStopped = true;
            shutdown(m_listener, SHUT_RDWR); // so that both blocking calls return
            shutdown(m_socket, SHUT_RDWR);
        }
        m_thread.join();
        close(m_listener);
    }
    Q_DISABLE_COPY_MOVE(HttpPeer)

    /// "http://127.0.0.1:<port>" and the path.
    QByteArray address(const QByteArray &path = "/") const
    {
        return "http://127.0.0.1:" + QByteArray::number(ntohs(m_address.sin_port)) + path;
    }
    QList<QByteArray> requests() const
    {
        const std::lock_guard lock(m_mutex);
        return m_requests;
    }

    /// A whole reply with the headers that it needs.
    static QByteArray reply(const QByteArray &body, const QByteArray &status = "200 OK")
    {
        return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size())
            + "\r\nConnection: close\r\n\r\n" + body;
    }
    static QByteArray redirect(const QByteArray &target)
    {
        return reply({}, "302 Found\r\nLocation: " + target);
    }

private:
    void serve()
    {
        while (accept()) {
            Connection connection(m_socket);
            {
                const std::lock_guard lock(m_mutex);
                m_requests.append(connection.request());
            }
            m_answer(connection);
            const std::lock_guard lock(m_mutex);
            close(std::exchange(m_socket, -1));
        }
    }
    bool accept()
    {
        const int socket = accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
        const std::lock_guard lock(m_mutex);
        m_socket = socket;
        if (m_isStopped)
            close(std::exchange(m_socket, -1));
        return m_socket >= 0;
    }

    Answer m_answer;
    const int m_listener;
    sockaddr_in m_address{};
    int m_socket = -1; ///< Of the connection that is served, if any.
    bool m_isStopped = false;
    mutable std::mutex m_mutex;
    QList<QByteArray> m_requests;
    std::thread m_thread;
};

#pragma once

#include <QByteArray>
#include <QList>

#include <chrono>
#include <functional>
#include <mutex>
#include <thread>

/// A small HTTP server on 127.0.0.1 that keeps the raw bytes of every request and answers as the
/// test wants, badly too. One connection at a time, each for one request.
class HttpPeer
{
public:
    /// The peer's end of a connection whose request has been read.
    class Connection
    {
    public:
        Connection(int socket, int stopSignal) : m_socket(socket), m_stopSignal(stopSignal) { }
        bool send(const QByteArray &bytes); ///< False once the client or the test has gone.
        /// Waits; true as soon as the client or the test has gone.
        bool hasGoneWithin(std::chrono::milliseconds time);
        const QByteArray &request() const { return m_request; }

    private:
        friend class HttpPeer;
        void readRequest();

        int m_socket;
        int m_stopSignal;
        QByteArray m_request;
    };
    using Answer = std::function<void(Connection &)>;

    explicit HttpPeer(Answer answer);
    explicit HttpPeer(const QByteArray &reply);
    ~HttpPeer();
    Q_DISABLE_COPY_MOVE(HttpPeer)

    /// "http://127.0.0.1:<port>" and the path.
    QByteArray address(const QByteArray &path = "/") const;
    QList<QByteArray> requests() const;

    /// A whole reply with the headers that it needs.
    static QByteArray reply(const QByteArray &body, const QByteArray &status = "200 OK");
    static QByteArray redirect(const QByteArray &target);

private:
    void serve();

    Answer m_answer;
    int m_listener;
    int m_stopSignal;
    int m_port = 0;
    mutable std::mutex m_mutex;
    QList<QByteArray> m_requests;
    std::thread m_thread;
};

#pragma once

#include "HttpPeer.h"

#include <QMap>

#include <mutex>

/// The maker's server, with an answer of its own for each path; 404 for the rest.
class MakersServer
{
public:
    using Answer = HttpPeer::Answer;

    void set(const QByteArray &path, const Answer &answer)
    {
        const std::lock_guard lock(m_mutex);
        m_answers[path] = answer;
    }
    void set(const QByteArray &path, const QByteArray &body) { set(path, serving(body)); }

    QByteArray address(const QByteArray &path) const { return m_peer.address(path); }
    /// The requested paths, in order.
    QList<QByteArray> paths() const
    {
        QList<QByteArray> paths;
        for (const QByteArray &request : m_peer.requests())
            paths += request.split(' ').value(1);
        return paths;
    }

    // Ways to answer.

    static Answer raw(const QByteArray &reply)
    {
        return [reply](HttpPeer::Connection &connection) { connection.send(reply); };
    }
    static Answer serving(const QByteArray &body) { return raw(HttpPeer::reply(body)); }
    static Answer status(const QByteArray &status)
    {
        return raw(HttpPeer::reply("an error page", status));
    }
    static Answer redirect(const QByteArray &target) { return raw(HttpPeer::redirect(target)); }
    /// Announces more than it sends, then hangs up.
    static Answer dropping(const QByteArray &body)
    {
        return raw(HttpPeer::reply(body + QByteArray(1000, ' ')).chopped(1000));
    }
    /// Sends without an end, and without saying how much.
    static Answer endless(const QByteArray &piece)
    {
        return [piece](HttpPeer::Connection &connection) {
            connection.send("HTTP/1.1 200 OK\r\n\r\n");
            while (connection.send(piece)) { }
        };
    }
    /// Sends a piece, then nothing for as long as the other side waits.
    static Answer silent(const QByteArray &piece)
    {
        return [piece](HttpPeer::Connection &connection) {
            connection.send(piece);
            connection.hasGoneWithin(std::chrono::minutes(2));
        };
    }

private:
    void answer(HttpPeer::Connection &connection)
    {
        Answer answer = status("404 Not Found");
        {
            const std::lock_guard lock(m_mutex);
            answer = m_answers.value(connection.request().split(' ').value(1), answer);
        }
        answer(connection);
    }

    std::mutex m_mutex;
    QMap<QByteArray, Answer> m_answers;
    HttpPeer m_peer{[this](HttpPeer::Connection &connection) { answer(connection); }};
};

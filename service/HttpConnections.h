#pragma once

// Of HttpServer.cpp and HttpConversation.cpp alone: everything else sees HttpServer.h.

#include "HttpServer.h"

#include <boost/asio/awaitable.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/ssl/context.hpp>

#include <list>

/// What every client is held to.
namespace HttpLimit
{

using namespace std::chrono_literals;

constexpr std::size_t headers = 64 * 1024;
constexpr std::size_t freeBuffer = 4096; ///< What each connection may hold of headers.
/// What all of them together may hold beyond that, before their requests are accepted.
constexpr std::size_t buffers = 12 * 1024 * 1024;
constexpr std::size_t replies = 256 * 1024 * 1024; ///< All that wait for their readers.
constexpr int connections = 1500;
constexpr int tlsConnections = 192; ///< Each needs about 90 KB.
constexpr auto idleTimeout = 120s;
constexpr auto handshakeTimeout = 10s;
constexpr auto headersTimeout = 10s; ///< From the first byte to the last.
constexpr auto bodyTimeout = 30s;
constexpr auto answerTimeout = 120s; ///< Of the handler.
constexpr auto writeTimeout = 30s; ///< For any progress.
constexpr auto drainTimeout = 10s;
constexpr std::size_t drained = 64 * 1024 * 1024;
constexpr auto endTimeout = 10s; ///< For what was begun before the end.

} // namespace HttpLimit

/// A client. `socket` may be closed at any time: what waits for it then fails.
struct HttpConnection {
    using Clock = std::chrono::steady_clock;

    boost::asio::ip::tcp::socket socket;
    std::string address;
    Clock::time_point deadline = Clock::time_point::max();
    Clock::time_point waitsSince = {};
    bool isWaiting = true; ///< For a request that is accepted; may be closed in favour of another.
    bool hasTls = false;
    std::size_t bufferBytes = 0; ///< Counted against HttpLimit::buffers.

    void allow(Clock::duration time) { deadline = Clock::now() + time; }
    void setWaiting(bool waits);
};

/// All clients. Server thread only.
class HttpConnections
{
public:
    std::list<HttpConnection *> all;
    bool isEnding = false;
    std::size_t replyBytes = 0; ///< Of the replies that are being written.

    /// Closes the client that has waited longest if there are too many; false if none waits.
    bool makeRoom();
    bool makeRoomForTls();
    /// Counts the capacity of a connection's buffer; false if all of them hold too much.
    bool countBuffer(HttpConnection &connection, std::size_t capacity);
    void closeLate(); ///< Those whose deadline has passed.
    void closeWaiting();
    void closeAll();

private:
    bool closeLongestWaiting(bool withTlsOnly);

    std::size_t m_bufferBytes = 0;
};

/// Talks with a client until either has enough. `tls` is null for plain HTTP.
boost::asio::awaitable<void> converse(boost::asio::ip::tcp::socket socket,
                                      boost::asio::ssl::context *tls, HttpConnections &connections,
                                      const HttpSettings &settings, HttpHandler &handler);

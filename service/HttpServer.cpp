#include "HttpServer.h"

#include "HttpConnections.h"
#include "Log.h"

#include <boost/asio/as_tuple.hpp>
#include <boost/asio/co_spawn.hpp>
#include <boost/asio/detached.hpp>
#include <boost/asio/signal_set.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <sys/resource.h>

#include <atomic>
#include <csignal>

namespace asio = boost::asio;
using asio::ip::tcp;
using namespace std::chrono_literals;

namespace
{

constexpr auto token = asio::as_tuple(asio::use_awaitable);
constexpr auto sweepInterval = 500ms;

/// The usual limit of 1,024 files would be used up by idle clients.
void allowFiles()
{
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) == 0) {
        limit.rlim_cur = std::min<rlim_t>(limit.rlim_max, HttpLimit::connections + 500);
        setrlimit(RLIMIT_NOFILE, &limit);
    }
}

} // namespace

void HttpConnection::setWaiting(bool waits)
{
    isWaiting = waits;
    waitsSince = Clock::now();
}

bool HttpConnections::closeLongestWaiting(bool withTlsOnly)
{
    HttpConnection *longest = nullptr;
    for (HttpConnection *connection : all) {
        const bool counts = connection->isWaiting && connection->socket.is_open()
            && (!withTlsOnly || connection->hasTls);
        if (counts && (!longest || connection->waitsSince < longest->waitsSince))
            longest = connection;
    }
    if (longest)
        longest->socket.close();
    return longest != nullptr;
}

bool HttpConnections::makeRoom()
{
    return int(all.size()) < HttpLimit::connections || closeLongestWaiting(false);
}

bool HttpConnections::makeRoomForTls()
{
    const auto count = std::ranges::count_if(
        all, [](const HttpConnection *connection) { return connection->hasTls; });
    return count < HttpLimit::tlsConnections || closeLongestWaiting(true);
}

bool HttpConnections::countBuffer(HttpConnection &connection, std::size_t capacity)
{
    const std::size_t counted = capacity > HttpLimit::freeBuffer ? capacity : 0;
    m_bufferBytes += counted - connection.bufferBytes;
    connection.bufferBytes = counted;
    return counted == 0 || m_bufferBytes <= HttpLimit::buffers;
}

void HttpConnections::closeLate()
{
    const auto now = HttpConnection::Clock::now();
    for (HttpConnection *connection : all) {
        if (connection->deadline < now && connection->socket.is_open())
            connection->socket.close();
    }
}

void HttpConnections::closeWaiting()
{
    while (closeLongestWaiting(false)) { }
}

void HttpConnections::closeAll()
{
    for (HttpConnection *connection : all)
        connection->socket.close();
}

class HttpServer::Implementation
{
public:
    Implementation(const HttpSettings &settings, HttpHandler &handler)
        : m_settings(settings), m_handler(handler)
    {
    }

    /// Throws what Boost throws.
    void listen()
    {
        if (!m_settings.certificateFile.empty())
            readCertificate();
        const tcp::endpoint endpoint(asio::ip::make_address(m_settings.address), m_settings.port);
        m_acceptor.open(endpoint.protocol());
        m_acceptor.set_option(tcp::acceptor::reuse_address(true));
        m_acceptor.bind(endpoint);
        m_acceptor.listen();
    }

    std::uint16_t port() const { return m_acceptor.local_endpoint().port(); }
    int connectionCount() const { return m_connectionCount; }

    void run()
    {
        allowFiles();
        asio::co_spawn(m_context, accept(), asio::detached);
        asio::co_spawn(m_context, sweep(), asio::detached);
        asio::co_spawn(m_context, awaitEnd(), asio::detached);
        m_context.run();
    }

private:
    void readCertificate()
    {
        m_tls.emplace(asio::ssl::context::tls_server);
        SSL_CTX_set_min_proto_version(m_tls->native_handle(), TLS1_2_VERSION);
        SSL_CTX_set_options(m_tls->native_handle(), SSL_OP_NO_RENEGOTIATION);
        SSL_CTX_set_mode(m_tls->native_handle(), SSL_MODE_RELEASE_BUFFERS);
        SSL_CTX_set_session_cache_mode(m_tls->native_handle(), SSL_SESS_CACHE_OFF);
        m_tls->use_certificate_chain_file(m_settings.certificateFile);
        m_tls->use_private_key_file(m_settings.keyFile, asio::ssl::context::pem);
    }

    asio::awaitable<void> accept()
    {
        while (m_acceptor.is_open()) {
            auto [error, socket] = co_await m_acceptor.async_accept(token);
            if (error) {
                m_pause.expires_after(100ms); // no file is free, say
                co_await m_pause.async_wait(token);
            } else if (m_connections.makeRoom()) {
                asio::co_spawn(m_context,
                               converse(std::move(socket), m_tls ? &*m_tls : nullptr, m_connections,
                                        m_settings, m_handler),
                               asio::detached);
            }
        }
    }

    asio::awaitable<void> sweep()
    {
        while (!m_connections.isEnding || !m_connections.all.empty()) {
            m_sweep.expires_after(sweepInterval);
            co_await m_sweep.async_wait(token);
            m_connections.closeLate();
            m_connectionCount = int(m_connections.all.size());
            if (m_connections.isEnding && HttpConnection::Clock::now() > m_end)
                m_connections.closeAll();
        }
    }

    asio::awaitable<void> awaitEnd()
    {
        co_await m_signals.async_wait(token);
        logLine("ending");
        m_end = HttpConnection::Clock::now() + HttpLimit::endTimeout;
        m_connections.isEnding = true;
        m_acceptor.close();
        m_connections.closeWaiting();
        m_sweep.cancel();
    }

    const HttpSettings m_settings;
    HttpHandler &m_handler;
    HttpConnections m_connections; ///< Outlives the context, whose coroutines take themselves out.
    asio::io_context m_context{1};
    asio::signal_set m_signals{m_context, SIGTERM, SIGINT};
    tcp::acceptor m_acceptor{m_context};
    asio::steady_timer m_pause{m_context};
    asio::steady_timer m_sweep{m_context};
    std::optional<asio::ssl::context> m_tls;
    HttpConnection::Clock::time_point m_end;
    std::atomic<int> m_connectionCount = 0;
};

std::unique_ptr<HttpServer> HttpServer::listen(const HttpSettings &settings, HttpHandler &handler,
                                               std::string &fault)
{
    auto implementation = std::make_unique<Implementation>(settings, handler);
    try {
        implementation->listen();
    } catch (const std::exception &exception) {
        fault = exception.what();
        return nullptr;
    }
    return std::unique_ptr<HttpServer>(new HttpServer(std::move(implementation)));
}

HttpServer::HttpServer(std::unique_ptr<Implementation> implementation)
    : m_implementation(std::move(implementation))
{
}

HttpServer::~HttpServer() = default;

std::uint16_t HttpServer::port() const
{
    return m_implementation->port();
}

int HttpServer::connectionCount() const
{
    return m_implementation->connectionCount();
}

void HttpServer::run()
{
    m_implementation->run();
}

// What is said on one connection, from its first byte to its last.

#include "HttpConnections.h"
#include "PendingAnswer.h"

#include <boost/asio/as_tuple.hpp>
#include <boost/asio/ssl/stream.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <boost/beast/core/buffers_suffix.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/http/error.hpp>
#include <boost/beast/http/parser.hpp>
#include <boost/beast/http/read.hpp>
#include <boost/beast/http/string_body.hpp>

#include <array>

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = beast::http;
using asio::ip::tcp;

namespace
{

using Parser = http::request_parser<http::string_body>;

constexpr auto token = asio::as_tuple(asio::use_awaitable);
constexpr std::size_t readSize = 4096;

/// The connection is known to the server as long as this exists.
class Registered
{
public:
    Registered(HttpConnections &connections, HttpConnection &connection)
        : m_connections(connections), m_connection(connection),
          m_place(connections.all.insert(connections.all.end(), &connection))
    {
    }
    ~Registered()
    {
        m_connections.countBuffer(m_connection, 0);
        m_connections.all.erase(m_place);
    }
    Registered(const Registered &) = delete;
    Registered &operator=(const Registered &) = delete;

private:
    HttpConnections &m_connections;
    HttpConnection &m_connection;
    std::list<HttpConnection *>::iterator m_place;
};

std::string_view view(beast::string_view text)
{
    return {text.data(), text.size()};
}

std::string_view reason(int status)
{
    return view(http::obsolete_reason(http::status(status)));
}

std::string headOf(const HttpReply &reply, bool isKept)
{
    std::string head = "HTTP/1.1 ";
    head.append(std::to_string(reply.status)).append(" ").append(reason(reply.status));
    head.append("\r\nContent-Type: ").append(reply.contentType);
    head.append("\r\nContent-Length: ").append(std::to_string(reply.body.size()));
    head.append("\r\nCache-Control: no-store\r\nX-Content-Type-Options: nosniff\r\n");
    head.append(reply.headers).append(isKept ? "" : "Connection: close\r\n").append("\r\n");
    return head;
}

/// Behind a proxy: the last address that it adds, which no client can choose.
std::string clientAddress(const HttpConnection &connection, const HttpSettings &settings,
                          const Parser::value_type &request)
{
    std::string_view named = view(request["X-Forwarded-For"]);
    named = named.substr(named.rfind(',') + 1);
    named.remove_prefix(std::min(named.find_first_not_of(' '), named.size()));
    beast::error_code fault;
    asio::ip::make_address(named, fault);
    return settings.isBehindProxy && !fault ? std::string(named) : connection.address;
}

/// A conversation over plain TCP or TLS.
template <class Stream>
class Conversation
{
public:
    Conversation(Stream &stream, HttpConnection &connection, HttpConnections &connections,
                 const HttpSettings &settings, HttpHandler &handler)
        : m_stream(stream), m_connection(connection), m_connections(connections),
          m_settings(settings), m_handler(handler)
    {
    }

    asio::awaitable<void> run()
    {
        bool goesOn = true;
        while (goesOn)
            goesOn = co_await exchange();
    }

private:
    /// One request and its reply; false if the connection is of no more use.
    asio::awaitable<bool> exchange()
    {
        m_connection.setWaiting(true);
        Parser parser;
        parser.header_limit(HttpLimit::headers);
        parser.body_limit(m_settings.maxBody);
        const beast::error_code error = co_await readHeaders(parser);
        if (error) {
            co_await refuse(error);
            co_return false;
        }
        HttpRequest request = requestOf(parser);
        m_isKept = parser.get().keep_alive() && parser.get().version() == 11;
        const auto refusal = co_await answerOf<std::optional<HttpReply>>(
            [this, &request](auto respond) { m_handler.admit(request, std::move(respond)); });
        m_connection.setWaiting(false);
        if (refusal)
            co_return co_await decline(*refusal, parser.is_done());
        if (!co_await readBody(parser))
            co_return false;
        request.body = std::move(parser.get().body());
        shrinkBuffer();
        m_connection.allow(HttpLimit::answerTimeout);
        const HttpReply reply = co_await answerOf<HttpReply>(
            [this, &request](auto respond) { m_handler.answer(request, std::move(respond)); });
        co_return co_await writeWithin(reply, request);
    }

    asio::awaitable<beast::error_code> readHeaders(Parser &parser)
    {
        const bool isIdle = m_buffer.size() == 0;
        m_connection.allow(isIdle ? HttpLimit::idleTimeout : HttpLimit::headersTimeout);
        beast::error_code error = http::error::need_more;
        if (!isIdle)
            error = parse(parser);
        while (error == http::error::need_more) {
            if (!m_connections.countBuffer(m_connection, m_buffer.capacity()))
                co_return http::error::buffer_overflow;
            const std::size_t room = std::min(readSize, m_buffer.max_size() - m_buffer.size());
            auto [fault, count] = co_await m_stream.async_read_some(m_buffer.prepare(room), token);
            if (fault)
                co_return fault;
            if (m_buffer.size() == 0)
                m_connection.allow(HttpLimit::headersTimeout);
            m_buffer.commit(count);
            error = parse(parser);
        }
        co_return error;
    }

    beast::error_code parse(Parser &parser)
    {
        beast::error_code error;
        m_buffer.consume(parser.put(m_buffer.cdata(), error));
        if (!error && !parser.is_header_done())
            error = http::error::need_more;
        return error;
    }

    HttpRequest requestOf(const Parser &parser) const
    {
        const auto &message = parser.get();
        return {.method = std::string(view(message.method_string())),
                .target = std::string(view(message.target())),
                .authorization = std::string(view(message[http::field::authorization])),
                .clientAddress = clientAddress(m_connection, m_settings, message),
                .hasOrigin = message.find(http::field::origin) != message.end(),
                .begin = HttpConnection::Clock::now()};
    }

    asio::awaitable<bool> readBody(Parser &parser)
    {
        if (parser.is_done())
            co_return true;
        m_connection.allow(HttpLimit::bodyTimeout);
        if (beast::iequals(parser.get()[http::field::expect], "100-continue")) {
            constexpr std::string_view goOn = "HTTP/1.1 100 Continue\r\n\r\n";
            co_await m_stream.async_write_some(asio::buffer(goOn), token);
        }
        auto [error, count] = co_await http::async_read(m_stream, m_buffer, parser, token);
        if (error)
            co_await refuse(error);
        co_return !error;
    }

    /// Says what is wrong with a request that cannot be read, if anybody listens and it is HTTP.
    asio::awaitable<void> refuse(beast::error_code error)
    {
        const std::string_view came(static_cast<const char *>(m_buffer.cdata().data()),
                                    std::min<std::size_t>(m_buffer.size(), 1024));
        HttpFault fault = HttpFault::Malformed;
        if (error == http::error::header_limit)
            fault = HttpFault::HeadersTooLong;
        else if (error == http::error::body_limit)
            fault = HttpFault::BodyTooLong;
        else if (error == http::error::buffer_overflow)
            fault = HttpFault::Overloaded;
        else if (!isHttpError(error) || !came.starts_with("POST /"))
            co_return;
        m_isKept = false;
        const HttpReply reply = m_handler.refuse(fault, came);
        if (co_await write(reply, false))
            co_await drain();
    }

    static bool isHttpError(beast::error_code error)
    {
        return error.category() == http::make_error_code(http::error::need_more).category()
            && error != http::error::end_of_stream && error != http::error::partial_message;
    }

    /// A refused request's body stays unread, so that nobody without an account can send one.
    asio::awaitable<bool> decline(const HttpReply &reply, bool isWhole)
    {
        m_isKept = m_isKept && isWhole;
        const bool isWritten = co_await write(reply, false);
        if (isWritten && !isWhole)
            co_await drain();
        co_return isWritten &&m_isKept;
    }

    asio::awaitable<bool> write(const HttpReply &reply, bool withoutBody)
    {
        asio::steady_timer pause(m_connection.socket.get_executor(), reply.notBefore);
        if (reply.notBefore > HttpConnection::Clock::now())
            co_await pause.async_wait(token);
        m_isKept = m_isKept && !m_connections.isEnding;
        const std::string head = headOf(reply, m_isKept);
        const std::array<asio::const_buffer, 2> parts = {
            asio::buffer(head),
            asio::buffer(reply.body.data(), withoutBody ? 0 : reply.body.size())};
        beast::buffers_suffix<std::array<asio::const_buffer, 2>> rest(parts);
        while (asio::buffer_size(rest) > 0) {
            m_connection.allow(HttpLimit::writeTimeout);
            auto [error, count] = co_await m_stream.async_write_some(rest, token);
            if (error)
                co_return false;
            rest.consume(count);
        }
        co_return true;
    }

    /// Writes a reply as far as all the replies that wait for their readers are not too much.
    asio::awaitable<bool> writeWithin(const HttpReply &reply, const HttpRequest &request)
    {
        const std::size_t size = reply.body.size();
        if (m_connections.replyBytes + size > HttpLimit::replies) {
            const HttpReply refusal =
                m_handler.refuse(HttpFault::Overloaded, request.target.substr(0, 1024));
            co_return co_await write(refusal, false) && m_isKept;
        }
        m_connections.replyBytes += size;
        const bool isWritten = co_await write(reply, request.method == "HEAD");
        m_connections.replyBytes -= size;
        co_return isWritten &&m_isKept;
    }

    /// Reads on for a while after a refusal. A connection that is closed with bytes unread is
    /// reset, and the client would lose the reply that it has not read yet.
    asio::awaitable<void> drain()
    {
        static std::array<char, 16 * 1024> nobodyReadsThis;
        m_connection.setWaiting(true);
        m_connection.allow(HttpLimit::drainTimeout);
        beast::error_code ignored;
        m_connection.socket.shutdown(tcp::socket::shutdown_send, ignored);
        bool goesOn = true;
        for (std::size_t sum = 0; goesOn && sum < HttpLimit::drained;) {
            auto [error, count] =
                co_await m_connection.socket.async_read_some(asio::buffer(nobodyReadsThis), token);
            sum += count;
            goesOn = !error;
        }
    }

    void shrinkBuffer()
    {
        if (m_buffer.capacity() > HttpLimit::freeBuffer)
            m_buffer.shrink_to_fit();
        m_connections.countBuffer(m_connection, 0);
    }

    Stream &m_stream;
    HttpConnection &m_connection;
    HttpConnections &m_connections;
    const HttpSettings &m_settings;
    HttpHandler &m_handler;
    beast::flat_buffer m_buffer{HttpLimit::headers + 2 * readSize};
    bool m_isKept = false;
};

/// A handshake that never begins costs a socket and no more.
asio::awaitable<void> converseOverTls(HttpConnection &connection, asio::ssl::context &tls,
                                      HttpConnections &connections, const HttpSettings &settings,
                                      HttpHandler &handler)
{
    connection.allow(HttpLimit::handshakeTimeout);
    auto [silence] = co_await connection.socket.async_wait(tcp::socket::wait_read, token);
    if (silence || !connections.makeRoomForTls())
        co_return;
    connection.hasTls = true;
    asio::ssl::stream<tcp::socket &> stream(connection.socket, tls);
    auto [error] = co_await stream.async_handshake(asio::ssl::stream_base::server, token);
    if (error)
        co_return;
    Conversation conversation(stream, connection, connections, settings, handler);
    co_await conversation.run();
}

} // namespace

asio::awaitable<void> converse(tcp::socket socket, asio::ssl::context *tls,
                               HttpConnections &connections, const HttpSettings &settings,
                               HttpHandler &handler)
{
    HttpConnection connection{.socket = std::move(socket), .address = {}};
    beast::error_code error;
    const auto peer = connection.socket.remote_endpoint(error);
    connection.address = error ? std::string() : peer.address().to_string();
    connection.socket.set_option(tcp::no_delay(true), error);
    connection.setWaiting(true);
    const Registered registered(connections, connection);
    if (tls) {
        co_await converseOverTls(connection, *tls, connections, settings, handler);
    } else {
        Conversation conversation(connection.socket, connection, connections, settings, handler);
        co_await conversation.run();
    }
}

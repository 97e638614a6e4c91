#pragma once

#include "RecordBody.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

/// What a client sends. `account` and `mayWrite` are for the handler to fill in.
struct HttpRequest {
    std::string method;
    std::string target; ///< The address without its host, byte for byte.
    std::string authorization; ///< The header's value, empty if it is missing.
    std::string clientAddress; ///< Behind a proxy the one that the proxy names.
    bool hasOrigin = false; ///< Sent by a page in a browser.
    std::string body = {};
    std::chrono::steady_clock::time_point begin = {};
    std::string account = {};
    bool mayWrite = false;
};

struct HttpReply {
    int status = 200;
    std::string body = {};
    std::string contentType = "text/plain; charset=utf-8";
    std::string headers = {}; ///< Further ones, each with its line end.
    std::chrono::steady_clock::time_point notBefore = {}; ///< It waits until then.
};

/// Why the server gives up a request before the handler saw it.
enum class HttpFault { Malformed, HeadersTooLong, BodyTooLong, Overloaded };

/// Answers requests. It is called on the server's thread, must not block there, and may call
/// `respond` on any thread, once.
class HttpHandler
{
public:
    virtual ~HttpHandler() = default;

    /// Called with the headers, before the body is read. Responds with none to accept the request.
    virtual void admit(HttpRequest &request,
                       std::function<void(std::optional<HttpReply>)> respond) = 0;
    /// Called with the whole of an accepted request.
    virtual void answer(HttpRequest &request, std::function<void(HttpReply)> respond) = 0;
    /// The reply to a request that cannot be read. `beginning` is what came of it, at most 1 KiB.
    virtual HttpReply refuse(HttpFault fault, std::string_view beginning) = 0;
};

struct HttpSettings {
    std::string address = "127.0.0.1"; ///< A number, IPv4 or IPv6.
    std::uint16_t port = 8791; ///< 0: a free one.
    std::string certificateFile = {}; ///< PEM, with its chain. Empty: no TLS.
    std::string keyFile = {};
    bool isBehindProxy = false;
    std::size_t maxBody = RecordBody::maxLength;
};

/// An HTTP/1.1 server with one thread, which holds nothing but a few kilobytes for an idle client.
/// Every time and every size that a client can influence has a limit; see HttpServer.cpp.
class HttpServer
{
public:
    /// Listens from now on. Null, and the cause in `fault`, if it cannot.
    static std::unique_ptr<HttpServer> listen(const HttpSettings &settings, HttpHandler &handler,
                                              std::string &fault);
    ~HttpServer();

    std::uint16_t port() const;
    int connectionCount() const; ///< Any thread.
    /// Serves until SIGTERM or SIGINT, then answers what it has begun.
    void run();

private:
    class Implementation;
    explicit HttpServer(std::unique_ptr<Implementation> implementation);

    const std::unique_ptr<Implementation> m_implementation;
};

#pragma once

#include <QByteArray>
#include <QList>

#include <chrono>
#include <functional>
#include <optional>
#include <stop_token>

class QIODevice;

/// Blocking HTTP requests within limits. Any thread may make them, several at a time; a thread that
/// draws windows should not.
///
/// Only http and https are used, also after a redirect; certificates and host names are checked
/// against the system's store; nothing is decompressed, no cookie or password is looked up, a proxy
/// is taken from the environment alone, and none leads to this machine itself. A request carries
/// Host, User-Agent, the length of its body, and the headers that the caller gives.

enum class HttpSchemes { Any, SecureOnly }; ///< http and https, or https alone.

/// What a request may use up. A request that passes one of these has no reply.
struct HttpLimits {
    std::chrono::milliseconds time{60'000}; ///< From the look-up of the host to the last byte.
    std::chrono::seconds silenceTimeout{0}; ///< Without a byte, or a connection. 0: not limited.
    qint64 bytes = 1024 * 1024; ///< Of the body.
    int redirects = 5; ///< With 0 a redirect is itself the reply.
    /// If set, so is a redirect with 301, 302 or 303, which would turn a POST into a GET.
    bool keepsMethod = false;
    HttpSchemes schemes = HttpSchemes::Any;
};

struct HttpRequest {
    /// Sent byte for byte: the caller has percent-escaped it; what follows a "#" is not sent. One
    /// slash behind the scheme's colon is enough, as in browsers: "https:/host/path". An address
    /// with blanks, control characters or bytes outside ASCII is refused.
    QByteArray address;
    QList<QByteArray> headers = {}; ///< "Name: value" each, without line ends.
    HttpLimits limits = {};
    std::stop_token stop = {}; ///< A request ends within about a second of a stop request.
    /// Uses the connection that the thread's last such request left open, if it leads to the same
    /// server and still exists. A request that finds it closed by then is sent again over a new
    /// one.
    bool keepsConnection = false;
    bool isLogged = true; ///< Whether httpGet() logs a failure.
    /// Called on the requesting thread with the bytes received so far.
    std::function<void(qint64 received)> progress = {};
};

struct HttpReply {
    enum class End {
        Answered, ///< The reply came whole; its status may still be an error.
        Refused, ///< The address, or one that it leads to, is not allowed.
        Garbled, ///< What came is not HTTP, is compressed on its way, or leads in circles.
        Untrusted, ///< The server's certificate is not valid.
        TimedOut,
        TooLarge,
        Cancelled,
        NotWritten, ///< The target of the body did not take it.
        Failed, ///< Host not found, connection refused, reply cut short, …
    };

    End end = End::Failed;
    int status = 0; ///< 200, 404, …; 0 if no reply came.
    QByteArray body = {}; ///< Empty unless answered, and if it went into a target.
    QByteArray message = {}; ///< English words if the request failed.
    bool isHeard = false; ///< At least a byte of HTTP came, whatever the end.

    bool answered() const { return end == End::Answered; }
    bool succeeded() const { return answered() && status >= 200 && status < 300; }
};

/// A failure leaves a line in the log, unless the request says otherwise.
HttpReply httpGet(const HttpRequest &request);

/// Writes the body into the open target piece by piece, whatever the reply's status is. The target
/// holds a part of it, or an error page, unless the reply succeeded: give a file that nobody sees
/// before then.
HttpReply httpGet(const HttpRequest &request, QIODevice &target);

/// The body is sent with its length; there is no Content-Type unless the headers hold one. Nothing
/// is logged.
HttpReply httpPost(const HttpRequest &request, QByteArrayView body);

#include "Http.h"

#include "LibrarySymbol.h"

#include <QDebug>
#include <QIODevice>
#include <QUrl>

#include <curl/curl.h>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace
{

/// libcurl, loaded when the first request is made. Linked in the usual way it would bring some
/// thirty libraries into every start of the program, whose windows rarely need one request: a
/// program that does nothing else starts in 7.1 ms with it and in 2.9 ms without.
struct CurlLibrary {
    decltype(&curl_easy_init) easyInit = nullptr;
    decltype(&curl_easy_setopt) easySetopt = nullptr;
    decltype(&curl_easy_perform) easyPerform = nullptr;
    decltype(&curl_easy_getinfo) easyGetinfo = nullptr;
    decltype(&curl_easy_reset) easyReset = nullptr;
    decltype(&curl_easy_cleanup) easyCleanup = nullptr;
    decltype(&curl_easy_strerror) easyStrerror = nullptr;
    decltype(&curl_slist_append) slistAppend = nullptr;
    decltype(&curl_slist_free_all) slistFreeAll = nullptr;
};

/// Never unloaded again: the libraries that it needs do not survive that.
bool load(CurlLibrary &curl)
{
    QLibrary library(u"curl"_s, 4);
    decltype(&curl_global_init) globalInit = nullptr;
    return resolveSymbol(library, "curl_global_init", globalInit)
        && resolveSymbol(library, "curl_easy_init", curl.easyInit)
        && resolveSymbol(library, "curl_easy_setopt", curl.easySetopt)
        && resolveSymbol(library, "curl_easy_perform", curl.easyPerform)
        && resolveSymbol(library, "curl_easy_getinfo", curl.easyGetinfo)
        && resolveSymbol(library, "curl_easy_reset", curl.easyReset)
        && resolveSymbol(library, "curl_easy_cleanup", curl.easyCleanup)
        && resolveSymbol(library, "curl_easy_strerror", curl.easyStrerror)
        && resolveSymbol(library, "curl_slist_append", curl.slistAppend)
        && resolveSymbol(library, "curl_slist_free_all", curl.slistFreeAll)
        && globalInit(CURL_GLOBAL_DEFAULT) == CURLE_OK;
}

/// The library, initialised; null if it is not installed. Any thread.
const CurlLibrary *curlLibrary()
{
    static CurlLibrary curl;
    static const bool loaded = load(curl);
    return loaded ? &curl : nullptr;
}

using EasyHandle = std::unique_ptr<CURL, decltype(&curl_easy_cleanup)>;

/// The handle of one request. The thread's own is reset after it, which leaves its connections
/// open.
EasyHandle easyHandle(const CurlLibrary &curl, bool keepsConnection)
{
    if (!keepsConnection)
        return {curl.easyInit(), curl.easyCleanup};
    thread_local const EasyHandle kept(curl.easyInit(), curl.easyCleanup);
    return {kept.get(), curl.easyReset};
}

/// The header blocks of a reply and its redirects together; libcurl remembers every line of them.
constexpr qint64 maxHeaderBytes = 256 * 1024;

bool hasScheme(const QByteArray &address, QByteArrayView scheme)
{
    return address.left(scheme.size()).compare(scheme, Qt::CaseInsensitive) == 0;
}

bool isAcceptable(const QByteArray &address, HttpSchemes schemes)
{
    const auto isPrintable = [](char byte) { return byte > ' ' && byte < '\x7f'; };
    return std::all_of(address.begin(), address.end(), isPrintable)
        && (hasScheme(address, "https:/")
            || (schemes == HttpSchemes::Any && hasScheme(address, "http:/")));
}

/// The environment's exceptions from its proxy, and this machine: what is meant for it must not be
/// led outside.
QByteArray hostsWithoutProxy()
{
    const QByteArray lower = qgetenv("no_proxy");
    const QByteArray hosts = lower.isEmpty() ? qgetenv("NO_PROXY") : lower;
    if (hosts.trimmed() == "*") // counts by itself alone
        return hosts;
    return hosts + ",localhost,127.0.0.0/8,::1";
}

bool isHeader(QByteArrayView line, QByteArrayView name)
{
    return line.size() > name.size() && line[name.size()] == ':'
        && line.first(name.size()).compare(name, Qt::CaseInsensitive) == 0;
}

/// libcurl would unpack such a body, up to five times over, although nobody requested that.
bool isCompressedTransfer(QByteArrayView line)
{
    constexpr QByteArrayView name("Transfer-Encoding");
    return isHeader(line, name)
        && line.sliced(name.size() + 1).trimmed().compare("chunked", Qt::CaseInsensitive) != 0;
}

/// A full disk takes a part without an error: the error comes with the next write.
bool writeAll(QIODevice &target, const char *data, qint64 size)
{
    qint64 written = 0;
    while (size > 0 && (written = target.write(data, size)) > 0) {
        data += written;
        size -= written;
    }
    return size == 0;
}

/// One request; libcurl hands its address to the callbacks below.
class Transfer
{
public:
    Transfer(const CurlLibrary &curl, const HttpRequest &request, QIODevice *target)
        : m_curl(curl), m_request(request), m_target(target),
          m_easy(easyHandle(curl, request.keepsConnection)), m_headers(nullptr, curl.slistFreeAll)
    {
    }

    HttpReply perform(const std::optional<QByteArrayView> &postBody)
    {
        if (!m_easy)
            return {HttpReply::End::Failed, 0, {}, "out of memory"};
        setUp();
        setHeaders();
        if (m_request.limits.keepsMethod)
            set(CURLOPT_HEADERFUNCTION, &Transfer::takeHeaderBeforeRedirect);
        if (postBody) {
            set(CURLOPT_POST, 1L);
            set(CURLOPT_POSTFIELDS, postBody->isEmpty() ? "" : postBody->data());
            set(CURLOPT_POSTFIELDSIZE_LARGE, curl_off_t(postBody->size()));
        }
        const CURLcode code = m_curl.easyPerform(m_easy.get());
        if (code != CURLE_OK)
            return {endOf(code), 0, {}, m_curl.easyStrerror(code), isHeard()};
        long status = 0;
        m_curl.easyGetinfo(m_easy.get(), CURLINFO_RESPONSE_CODE, &status);
        return {HttpReply::End::Answered, int(status), std::move(m_body), {}, true};
    }

private:
    template <class Value>
    void set(CURLoption option, Value value)
    {
        m_curl.easySetopt(m_easy.get(), option, value);
    }

    void setUp()
    {
        const HttpLimits &limits = m_request.limits;
        const char *schemes = limits.schemes == HttpSchemes::Any ? "http,https" : "https";
        set(CURLOPT_URL, m_request.address.constData());
        set(CURLOPT_PATH_AS_IS, 1L);
        set(CURLOPT_NOPROXY, hostsWithoutProxy().constData());
        set(CURLOPT_PROTOCOLS_STR, schemes);
        set(CURLOPT_REDIR_PROTOCOLS_STR, schemes);
        set(CURLOPT_FOLLOWLOCATION, limits.redirects > 0 ? 1L : 0L);
        set(CURLOPT_MAXREDIRS, long(limits.redirects));
        set(CURLOPT_TIMEOUT_MS, std::max(1L, long(limits.time.count()))); // 0 would be endless
        set(CURLOPT_CONNECTTIMEOUT, long(limits.silenceTimeout.count())); // 0 is libcurl's own
        set(CURLOPT_LOW_SPEED_TIME, long(limits.silenceTimeout.count()));
        set(CURLOPT_LOW_SPEED_LIMIT, 1L);
        set(CURLOPT_MAXFILESIZE_LARGE, curl_off_t(limits.bytes));
        set(CURLOPT_HTTP_VERSION, long(CURL_HTTP_VERSION_1_1));
        set(CURLOPT_USERAGENT, "Toolvane");
        set(CURLOPT_NOSIGNAL, 1L); // signals would end up on any thread
        set(CURLOPT_QUICK_EXIT, 1L); // does not wait for the look-up of a name that hangs
        set(CURLOPT_WRITEFUNCTION, &Transfer::takeBody);
        set(CURLOPT_WRITEDATA, this);
        set(CURLOPT_HEADERFUNCTION, &Transfer::takeHeader);
        set(CURLOPT_HEADERDATA, this);
        set(CURLOPT_NOPROGRESS, 0L);
        set(CURLOPT_XFERINFOFUNCTION, &Transfer::takeProgress);
        set(CURLOPT_XFERINFODATA, this);
    }

    /// The headers that libcurl adds by itself are removed, by a line with nothing after the colon,
    /// unless the caller gives them.
    void setHeaders()
    {
        QList<QByteArray> lines = m_request.headers;
        for (const char *name : {"Accept", "Content-Type", "Expect"}) {
            if (std::none_of(lines.cbegin(), lines.cend(),
                             [name](const QByteArray &line) { return isHeader(line, name); }))
                lines.append(QByteArray(name) + ':');
        }
        for (const QByteArray &line : std::as_const(lines)) {
            if (curl_slist *longer = m_curl.slistAppend(m_headers.get(), line.constData())) {
                std::ignore = m_headers.release();
                m_headers.reset(longer);
            }
        }
        set(CURLOPT_HTTPHEADER, m_headers.get());
    }

    HttpReply::End endOf(CURLcode code) const
    {
        switch (code) {
        case CURLE_URL_MALFORMAT:
            return HttpReply::End::Refused;
        case CURLE_UNSUPPORTED_PROTOCOL: // of a redirect; or what came is no HTTP
            return isHeard() ? HttpReply::End::Refused : HttpReply::End::Garbled;
        case CURLE_TOO_MANY_REDIRECTS:
        case CURLE_WEIRD_SERVER_REPLY:
            return HttpReply::End::Garbled;
        case CURLE_PEER_FAILED_VERIFICATION:
            return HttpReply::End::Untrusted;
        case CURLE_OPERATION_TIMEDOUT:
            return HttpReply::End::TimedOut;
        case CURLE_FILESIZE_EXCEEDED:
            return HttpReply::End::TooLarge;
        case CURLE_WRITE_ERROR: // one of the callbacks below refused
            return m_refusal;
        case CURLE_ABORTED_BY_CALLBACK:
            return HttpReply::End::Cancelled;
        default:
            return HttpReply::End::Failed;
        }
    }

    bool isHeard() const { return m_headerBytes > 0; }

    // libcurl ends the transfer if a callback returns any other number than the given size.
    static constexpr std::size_t refused = 0;

    static std::size_t takeBody(const char *data, std::size_t, std::size_t size, void *transfer)
    {
        auto *self = static_cast<Transfer *>(transfer);
        self->m_received += qint64(size);
        if (self->m_received > self->m_request.limits.bytes) {
            self->m_refusal = HttpReply::End::TooLarge;
            return refused;
        }
        if (!self->m_target) {
            self->m_body.append(data, qsizetype(size));
            return size;
        }
        if (writeAll(*self->m_target, data, qint64(size)))
            return size;
        self->m_refusal = HttpReply::End::NotWritten;
        return refused;
    }

    static std::size_t takeHeader(const char *data, std::size_t, std::size_t size, void *transfer)
    {
        auto *self = static_cast<Transfer *>(transfer);
        self->m_headerBytes += qint64(size);
        if (self->m_headerBytes > maxHeaderBytes)
            self->m_refusal = HttpReply::End::TooLarge;
        else if (isCompressedTransfer(QByteArrayView(data, qsizetype(size))))
            self->m_refusal = HttpReply::End::Garbled;
        else
            return size;
        return refused;
    }

    /// The status line comes first, so the redirect is refused before libcurl reads where it leads.
    static std::size_t takeHeaderBeforeRedirect(const char *data, std::size_t one, std::size_t size,
                                                void *transfer)
    {
        auto *self = static_cast<Transfer *>(transfer);
        long status = 0;
        self->m_curl.easyGetinfo(self->m_easy.get(), CURLINFO_RESPONSE_CODE, &status);
        if (status >= 301 && status <= 303)
            self->set(CURLOPT_FOLLOWLOCATION, 0L);
        return takeHeader(data, one, size, transfer);
    }

    static int takeProgress(void *transfer, curl_off_t, curl_off_t received, curl_off_t, curl_off_t)
    {
        auto *self = static_cast<Transfer *>(transfer);
        if (self->m_request.progress && received > 0)
            self->m_request.progress(received);
        return self->m_request.stop.stop_requested() ? 1 : 0;
    }

    const CurlLibrary &m_curl;
    const HttpRequest &m_request;
    QIODevice *m_target;
    EasyHandle m_easy;
    std::unique_ptr<curl_slist, decltype(&curl_slist_free_all)> m_headers;
    QByteArray m_body;
    qint64 m_received = 0;
    qint64 m_headerBytes = 0;
    HttpReply::End m_refusal = HttpReply::End::Failed;
};

HttpReply perform(const HttpRequest &request, QIODevice *target,
                  const std::optional<QByteArrayView> &postBody)
{
    if (!isAcceptable(request.address, request.limits.schemes))
        return {HttpReply::End::Refused, 0, {}, "not a web address"};
    const CurlLibrary *curl = curlLibrary();
    if (!curl)
        return {HttpReply::End::Failed, 0, {}, "libcurl is not installed"};
    return Transfer(*curl, request, target).perform(postBody);
}

/// The log gets the host alone: the rest of the address may be private.
HttpReply performAndLog(const HttpRequest &request, QIODevice *target)
{
    HttpReply reply = perform(request, target, std::nullopt);
    if (request.isLogged && !reply.answered() && reply.end != HttpReply::End::Cancelled)
        qWarning().noquote() << QUrl::fromEncoded(request.address).host() + u": "_s
                + QString::fromUtf8(reply.message);
    return reply;
}

} // namespace

HttpReply httpGet(const HttpRequest &request)
{
    return performAndLog(request, nullptr);
}

HttpReply httpGet(const HttpRequest &request, QIODevice &target)
{
    return performAndLog(request, &target);
}

HttpReply httpPost(const HttpRequest &request, QByteArrayView body)
{
    return perform(request, nullptr, body);
}

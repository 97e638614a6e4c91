#include "RecordService.h"

#include "Log.h"

#include <boost/asio/post.hpp>
#include <boost/asio/thread_pool.hpp>

namespace asio = boost::asio;
using namespace std::chrono_literals;

namespace
{

constexpr int readerCount = 4;
constexpr int maxWaitingSelects = 256;
constexpr int maxWaitingHashes = 32;
constexpr auto wrongPasswordDelay = 500ms; ///< From the request to the refusal.
constexpr auto healthAge = 1s; ///< Whoever asks more often gets the same answer.

constexpr std::string_view challenge =
    "WWW-Authenticate: Basic realm=\"records\", charset=\"UTF-8\"\r\n";

std::string durationText(std::chrono::nanoseconds duration)
{
    const auto tenths = duration / 100us;
    return std::to_string(tenths / 10) + '.' + std::to_string(tenths % 10) + "ms";
}

bool isSelect(const HttpRequest &request)
{
    return RecordQuery::looksLikeSelect(request.target);
}

Outcome outcomeOf(HttpFault fault)
{
    switch (fault) {
    case HttpFault::HeadersTooLong:
        return {Status::NotUnderstood, "the address or the headers are too long", 414};
    case HttpFault::BodyTooLong:
        return {Status::NotUnderstood, "the body is too long", 413};
    case HttpFault::Overloaded:
        return {Status::NotNow, "too much at once, try again later"};
    case HttpFault::Malformed:
        break;
    }
    return {Status::NotUnderstood, "not a request of HTTP"};
}

} // namespace

RecordService::RecordService(std::string base, const std::vector<TableSchema> &tables,
                             Accounts &accounts, Engine &engine)
    : m_base(std::move(base)), m_tables(tables), m_accounts(accounts), m_engine(engine),
      m_readers(std::make_unique<asio::thread_pool>(readerCount)),
      m_hashing(std::make_unique<asio::thread_pool>(1))
{
}

RecordService::~RecordService()
{
    m_readers->join();
    m_hashing->join();
}

void RecordService::admit(HttpRequest &request,
                          std::function<void(std::optional<HttpReply>)> respond)
{
    if (isFound(request, "healthz"))
        return respond(std::nullopt);
    if (request.hasOrigin)
        return respond(replyTo(request, {}, {Status::NotAllowed, "not from a web page"}));
    auto credentials = Credentials::ofHeader(request.authorization);
    if (!credentials)
        return respond(unknownAccount(request));
    Role role{};
    switch (m_accounts.look(*credentials, request.clientAddress, role)) {
    case Accounts::Known::Yes:
        request.account = std::move(credentials->name);
        request.mayWrite = role == Role::Writer;
        return respond(std::nullopt);
    case Accounts::Known::MustBeHashed:
        return hash(std::move(*credentials), request, std::move(respond));
    case Accounts::Known::TooManyFailures:
        return respond(replyTo(request, {},
                               {Status::NotNow, "too many wrong passwords, try again later", 429}));
    case Accounts::Known::No:
        return respond(unknownAccount(request));
    }
}

void RecordService::hash(Credentials credentials, HttpRequest &request,
                         std::function<void(std::optional<HttpReply>)> respond)
{
    if (++m_waitingHashes > maxWaitingHashes) {
        --m_waitingHashes;
        return respond(replyTo(request, {}, {Status::NotNow, "too many log in, try again later"}));
    }
    asio::post(
        *m_hashing,
        [this, credentials = std::move(credentials), &request, respond = std::move(respond)] {
            const auto role = m_accounts.check(credentials, request.clientAddress);
            --m_waitingHashes;
            if (!role)
                return respond(unknownAccount(request));
            request.account = credentials.name;
            request.mayWrite = *role == Role::Writer;
            respond(std::nullopt);
        });
}

/// The same, after the same time, whether the name or the password is wrong.
HttpReply RecordService::unknownAccount(const HttpRequest &request)
{
    HttpReply reply = replyTo(request, {}, {Status::NotAllowed, "name or password is wrong", 401});
    reply.headers = challenge;
    if (!request.authorization.empty())
        reply.notBefore = request.begin + wrongPasswordDelay;
    return reply;
}

void RecordService::answer(HttpRequest &request, Respond respond)
{
    if (isFound(request, "healthz"))
        return tellHealth(request, std::move(respond));
    if (isFound(request, "metrics"))
        return respond(bare(request, "METRICS",
                            {.body = m_metrics.text(connectionCount()),
                             .contentType = "text/plain; version=0.0.4; charset=utf-8"}));
    const auto query = RecordQuery::parse(m_tables, m_base, request.target);
    if (request.method != "POST") {
        const auto *fault = std::get_if<Outcome>(&query);
        HttpReply reply = replyTo(request, {},
                                  fault && fault->httpStatus == 404
                                      ? *fault
                                      : Outcome(Status::NotUnderstood, "use POST", 405));
        reply.headers = "Allow: POST\r\n";
        return respond(std::move(reply));
    }
    if (const auto *fault = std::get_if<Outcome>(&query))
        return respond(replyTo(request, {}, *fault));
    perform(request, std::get<RecordQuery>(query), std::move(respond));
}

void RecordService::perform(HttpRequest &request, const RecordQuery &query, Respond respond)
{
    if (query.operation == Operation::Select)
        return select(request, query, std::move(respond));
    if (request.mayWrite)
        return change(request, query, std::move(respond));
    respond(replyTo(request, {operationName(query.operation), query.table->name},
                    {Status::NotAllowed, "the account may only read"}));
}

namespace
{

Parsed<Change> deletion(const RecordQuery &query)
{
    auto clause = Clause::parse(*query.table, query.clause);
    if (const auto *fault = std::get_if<Outcome>(&clause))
        return *fault;
    Condition &condition = std::get<Clause>(clause).condition;
    if (!std::get<Clause>(clause).order.empty())
        return Outcome{Status::ConditionRefused, "a delete has no order"};
    if (!condition.namesColumn())
        return Outcome{Status::NotAllowed, "a delete names a column"};
    return Change{query.table, query.operation, {}, std::move(condition)};
}

Parsed<Change> writing(const RecordQuery &query, std::string_view body)
{
    auto record = RecordBody::parse(*query.table, body);
    if (const auto *fault = std::get_if<Outcome>(&record))
        return *fault;
    const bool hasKey = std::get<RecordBody>(record).key != 0;
    if (hasKey != (query.operation == Operation::Update))
        return Outcome{Status::NotUnderstood,
                       hasKey ? "a new record has ID 0" : "an update needs an ID"};
    return Change{query.table, query.operation, std::move(std::get<RecordBody>(record)), {}};
}

} // namespace

void RecordService::change(HttpRequest &request, const RecordQuery &query, Respond respond)
{
    const Subject subject{operationName(query.operation), query.table->name};
    auto change =
        query.operation == Operation::Delete ? deletion(query) : writing(query, request.body);
    if (const auto *fault = std::get_if<Outcome>(&change))
        return respond(replyTo(request, subject, *fault));
    m_engine.change(std::move(std::get<Change>(change)),
                    [this, &request, subject, respond = std::move(respond)](const Outcome &done) {
                        respond(replyTo(request, subject, done));
                    });
}

void RecordService::select(HttpRequest &request, const RecordQuery &query, Respond respond)
{
    const Subject subject{operationName(query.operation), query.table->name};
    auto clause = Clause::parse(*query.table, query.clause);
    if (const auto *fault = std::get_if<Outcome>(&clause))
        return respond(replyTo(request, subject, *fault));
    Selection selection{query.table, std::move(std::get<Clause>(clause)), query.page};
    if (auto records = m_engine.selectAtOnce(selection))
        return respond(found(request, subject, std::move(*records)));
    if (++m_waitingSelects > maxWaitingSelects) {
        --m_waitingSelects;
        return respond(replyTo(request, subject, {Status::NotNow, "too many selects wait"}));
    }
    asio::post(
        *m_readers,
        [this, &request, subject, selection = std::move(selection), respond = std::move(respond)] {
            auto result = m_engine.select(selection);
            --m_waitingSelects;
            if (const auto *fault = std::get_if<Outcome>(&result))
                return respond(replyTo(request, subject, *fault));
            respond(found(request, subject, std::move(std::get<std::string>(result))));
        });
}

HttpReply RecordService::found(const HttpRequest &request, const Subject &subject,
                               std::string records)
{
    log(request, subject, Status::Done);
    return {.body = std::move(records), .contentType = "application/json"};
}

void RecordService::tellHealth(HttpRequest &request, Respond respond)
{
    asio::post(*m_readers, [this, &request, respond = std::move(respond)] {
        bool isHealthy = false;
        {
            const std::lock_guard lock(m_healthMutex);
            if (m_healthUntil < Accounts::Clock::now()) {
                m_isHealthy = m_engine.isHealthy();
                m_healthUntil = Accounts::Clock::now() + healthAge;
            }
            isHealthy = m_isHealthy;
        }
        respond(bare(request, "HEALTHZ", {.status = isHealthy ? 200 : 503}));
    });
}

bool RecordService::isFound(const HttpRequest &request, std::string_view name) const
{
    return request.method == "GET" && request.target.size() == m_base.size() + name.size()
        && request.target.starts_with(m_base) && request.target.ends_with(name);
}

HttpReply RecordService::refuse(HttpFault fault, std::string_view beginning)
{
    std::string_view target = beginning.substr(std::min(beginning.find('/'), beginning.size()));
    target = target.substr(0, target.find(' '));
    return replyTo({.method = {},
                    .target = std::string(target),
                    .authorization = {},
                    .clientAddress = {},
                    .begin = Accounts::Clock::now()},
                   {}, outcomeOf(fault));
}

HttpReply RecordService::replyTo(const HttpRequest &request, const Subject &subject,
                                 const Outcome &outcome)
{
    log(request, subject, outcome.status);
    const std::string text = outcome.text(); // words of ours, nothing to escape
    return isSelect(request) ? HttpReply{.status = outcome.httpStatus,
                                         .body = "{\"RESULT\":[],\"ERROR\":\"" + text + "\"}",
                                         .contentType = "application/json"}
                             : HttpReply{.status = outcome.httpStatus, .body = text + "\n"};
}

HttpReply RecordService::bare(const HttpRequest &request, std::string_view operation,
                              HttpReply reply)
{
    log(request, {.operation = operation}, reply.status == 200 ? Status::Done : Status::NotNow);
    return reply;
}

void RecordService::log(const HttpRequest &request, const Subject &subject, Status status)
{
    const auto duration = Accounts::Clock::now() - request.begin;
    m_metrics.count(subject.operation, status, duration);
    std::string line = request.account.empty() ? "-" : request.account;
    line.append(" ").append(subject.operation).append(" ").append(subject.table);
    line.append(" ").append(std::to_string(int(status))).append(" ").append(durationText(duration));
    logLine(line);
}

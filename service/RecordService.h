#pragma once

#include "Accounts.h"
#include "Engine.h"
#include "HttpServer.h"
#include "Metrics.h"

#include <atomic>

namespace boost::asio
{
class thread_pool;
}

/// Answers the requests of the application's record store, see docs/records-service.md: who may do
/// it, what is asked for, the engine's answer, and a line in the log.
class RecordService : public HttpHandler
{
public:
    /// All must outlive the service. `base` is the path before a table's name: "/records/".
    RecordService(std::string base, const std::vector<TableSchema> &tables, Accounts &accounts,
                  Engine &engine);
    ~RecordService() override; ///< Waits for what was begun.

    void admit(HttpRequest &request,
               std::function<void(std::optional<HttpReply>)> respond) override;
    void answer(HttpRequest &request, std::function<void(HttpReply)> respond) override;
    HttpReply refuse(HttpFault fault, std::string_view beginning) override;

    std::function<int()> connectionCount = [] { return 0; }; ///< For the metrics.

private:
    using Respond = std::function<void(HttpReply)>;
    /// What a line of the log names beside the account.
    struct Subject {
        std::string_view operation = "-";
        std::string_view table = "-";
    };

    void hash(Credentials credentials, HttpRequest &request,
              std::function<void(std::optional<HttpReply>)> respond);
    HttpReply unknownAccount(const HttpRequest &request);
    void perform(HttpRequest &request, const RecordQuery &query, Respond respond);
    void change(HttpRequest &request, const RecordQuery &query, Respond respond);
    void select(HttpRequest &request, const RecordQuery &query, Respond respond);
    void tellHealth(HttpRequest &request, Respond respond);
    bool isFound(const HttpRequest &request, std::string_view name) const;

    HttpReply replyTo(const HttpRequest &request, const Subject &subject, const Outcome &outcome);
    HttpReply found(const HttpRequest &request, const Subject &subject, std::string records);
    HttpReply bare(const HttpRequest &request, std::string_view operation, HttpReply reply);
    void log(const HttpRequest &request, const Subject &subject, Status status);

    const std::string m_base;
    const std::vector<TableSchema> &m_tables;
    Accounts &m_accounts;
    Engine &m_engine;
    Metrics m_metrics;
    std::atomic<int> m_waitingSelects = 0;
    std::atomic<int> m_waitingHashes = 0;
    std::mutex m_healthMutex; ///< Over the two that follow.
    Accounts::Clock::time_point m_healthUntil;
    bool m_isHealthy = false;
    const std::unique_ptr<boost::asio::thread_pool> m_readers;
    const std::unique_ptr<boost::asio::thread_pool> m_hashing; ///< One thread: a hash takes 12 MB.
};

// What the record service costs: against a bare handler of its HTTP library, against SQLite used by
// hand, and how it grows. Runs in a folder of its own, see tests/support/isolated; ends with 1 when
// a limit is passed.

#include "AccountFile.h"
#include "Peers.h"
#include "Ratio.h"
#include "SqliteEngine.h"

#include <QFile>
#include <QTemporaryDir>

#include <sodium.h>
#include <sqlite3.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>

namespace
{

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

struct Place {
    QTemporaryDir folder;
    std::string path(const char *name) const
    {
        return folder.filePath(QString::fromLatin1(name)).toStdString();
    }
};

const std::vector<TableSchema> &tables()
{
    static const std::vector<TableSchema> tables = TableSchema::readAll();
    return tables;
}

const TableSchema &userTable()
{
    const auto found = std::ranges::find(tables(), "User", &TableSchema::name);
    expect(found != tables().end(), "table");
    return *found;
}

/// A file that the engine has made, with `count` users.
sqlite3 *filled(const std::string &path, int count)
{
    std::string fault;
    expect(SqliteEngine::open(path, tables(), fault) != nullptr, fault.c_str());
    sqlite3 *database = nullptr;
    sqlite3_open(path.c_str(), &database);
    const std::string sql =
        "PRAGMA synchronous=OFF; DELETE FROM User; WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL "
        "SELECT i+1 FROM n WHERE i<"
        + std::to_string(count)
        + ") INSERT INTO User SELECT i, 0, "
          "i%10, 'user%20' || i, 'secret' || i, 'a memo of some length ' || i FROM n;"
          "PRAGMA synchronous=FULL";
    expect(sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK, "fill");
    return database;
}

std::vector<std::string> serving(const Place &place)
{
    expect(AccountFile(place.path("accounts"))
               .write({{"bench", {Role::Writer, passwordHash("bench")}}}),
           "accounts");
    return {TOOLVANE_BUILD_DIR "/bin/toolvane-records",
            "serve",
            "--listen",
            "127.0.0.1:0",
            "--database",
            "sqlite:" + place.path("records"),
            "--accounts",
            place.path("accounts")};
}

/// What a server needs for a number of requests of eight clients that wait for each reply.
double serverTime(const ServerProcess &server, const std::string &request)
{
    std::vector<HttpClient> clients;
    for (int i = 0; i < 8; ++i)
        clients.emplace_back(server.port());
    const auto round = [&] {
        for (HttpClient &client : clients)
            client.send(request);
        for (HttpClient &client : clients)
            client.receive();
    };
    round();
    const double begin = server.processorTime();
    for (int i = 0; i < 1000; ++i)
        round();
    return server.processorTime() - begin;
}

bool selectsByKey(const Place &place)
{
    sqlite3_close(filled(place.path("records"), 1000));
    const std::string request = recordRequest("User?OPERATION=SELECT&CLAUSE=ID=7");
    const ServerProcess ours(serving(place));
    const ServerProcess bare({TOOLVANE_BUILD_DIR "/benchmarks/bare_handler", [&] {
                                  HttpClient client(ours.port());
                                  client.send(request);
                                  return client.receive();
                              }()});
    const auto turns = Turns<double>::taken(
        7, [&] { return serverTime(ours, request); }, [&] { return serverTime(bare, request); });
    return Row{.work = "select by ID, with a bare handler",
               .figure = turns.ratio([](double time) { return time; }),
               .limit = 2.0,
               .detail =
                   against(median(turns.ours) / 8e3 * 1e6, median(turns.peers) / 8e3 * 1e6, "us")}
        .print();
}

/// The reply by hand. Names and keys need no escape; the texts are looked through for one.
std::string builtByHand(sqlite3 *database)
{
    sqlite3_stmt *statement = nullptr;
    sqlite3_prepare_v2(database, "SELECT * FROM User ORDER BY ID", -1, &statement, nullptr);
    std::string reply = "{\"RESULT\":[";
    while (sqlite3_step(statement) == SQLITE_ROW) {
        reply += reply.back() == '[' ? "{" : ",{";
        for (int i = 0; i < 6; ++i) {
            reply.append(i > 0 ? ",\"" : "\"").append(sqlite3_column_name(statement, i)) += "\":";
            if (i < 3) {
                reply += std::to_string(sqlite3_column_int64(statement, i));
                continue;
            }
            const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(statement, i));
            reply += '"';
            for (; *text != '\0'; ++text) {
                if (*text == '"' || *text == '\\')
                    reply += '\\';
                reply += *text;
            }
            reply += '"';
        }
        reply += '}';
    }
    sqlite3_finalize(statement);
    return reply + "]}";
}

bool selectsMany(const Place &place)
{
    sqlite3 *const database = filled(place.path("many"), 10'000);
    std::string fault;
    const auto engine = SqliteEngine::open(place.path("many"), tables(), fault);
    const Selection all{&userTable(), {}, {}};
    expect(std::get<std::string>(engine->select(all)) == builtByHand(database), "the same text");
    const bool isWithin = Ratio::isWithin(
        "10,000 records as text, by hand", 1.3, 21, [&] { engine->select(all); },
        [&] { builtByHand(database); });
    sqlite3_close(database);
    return isWithin;
}

std::string userBody(int number)
{
    return R"({"ID":"0","ShopID":"0","UserGroupID":"1","User":"new)" + std::to_string(number)
        + R"(","Password":"secret","Memo":""})";
}

/// Milliseconds for each insert that 32 clients make at once, each acknowledged when it is durable.
double insertTime(const ServerProcess &server, int &number)
{
    constexpr int rounds = 50;
    std::vector<HttpClient> clients;
    for (int i = 0; i < 32; ++i)
        clients.emplace_back(server.port());
    const auto begin = Clock::now();
    for (HttpClient &client : clients)
        client.send(recordRequest("User?OPERATION=INSERT", userBody(++number)));
    for (int i = 1; i <= rounds; ++i) {
        for (HttpClient &client : clients) {
            expect(client.receive().ends_with("0 done\n"), "insert");
            if (i < rounds)
                client.send(recordRequest("User?OPERATION=INSERT", userBody(++number)));
        }
    }
    return Milliseconds(Clock::now() - begin).count() / (rounds * 32);
}

double rawInsertTime(sqlite3 *database, int &number)
{
    constexpr int count = 200;
    const auto begin = Clock::now();
    for (int i = 0; i < count; ++i) {
        const std::string sql =
            "INSERT INTO User(ShopID,UserGroupID,User,Password,Memo) VALUES(0,1,"
            "'new"
            + std::to_string(++number) + "','secret','')";
        expect(sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK, "raw");
    }
    return Milliseconds(Clock::now() - begin).count() / count;
}

bool insertsTogether(const Place &place)
{
    sqlite3_close(filled(place.path("records"), 1000));
    sqlite3 *const raw = filled(place.path("raw"), 1000);
    const ServerProcess server(serving(place));
    int number = 0;
    int rawNumber = 0;
    const auto turns = Turns<double>::taken(
        7, [&] { return insertTime(server, number); },
        [&] { return rawInsertTime(raw, rawNumber); });
    sqlite3_close(raw);
    return Row{.work = "a durable insert of 32 clients, with raw",
               .figure = turns.ratio([](double time) { return time; }),
               .limit = 0.25,
               .detail = against(median(turns.ours), median(turns.peers), "ms")}
        .print();
}

bool findsInManyRecords(const Place &place)
{
    std::vector<double> times;
    for (const int count : {1'000, 10'000, 100'000, 1'000'000}) {
        const std::string path = place.path("growing");
        sqlite3_close(filled(path, count));
        std::string fault;
        const auto engine = SqliteEngine::open(path, tables(), fault);
        std::vector<double> rounds;
        for (int round = 0; round < 15; ++round)
            rounds.push_back(Ratio::seconds([&] {
                for (int i = 0; i < 2000; ++i) {
                    auto clause = Clause::parse(
                        userTable(),
                        "User='user%20" + std::to_string(i % 500 * (count / 500) + 1) + "'");
                    expect(
                        std::get<std::string>(
                            engine->select({&userTable(), std::move(std::get<Clause>(clause)), {}}))
                                .size()
                            > 60,
                        "found");
                }
            }));
        times.push_back(median(rounds) / 2000 * 1e6);
    }
    const auto [min, max] = std::ranges::minmax_element(times);
    return Row{.work = "select by an index, 1,000 to 1,000,000",
               .figure = *max / *min,
               .limit = 1.6,
               .detail = against(*max, *min, "us")}
        .print();
}

} // namespace

int main()
{
    expect(std::getenv("TOOLVANE_TEST_SANDBOX") && sodium_init() >= 0,
           "run through tests/support/isolated");
    const Place place;
    bool isWithin = selectsByKey(place);
    isWithin = selectsMany(place) && isWithin;
    isWithin = insertsTogether(place) && isWithin;
    return findsInManyRecords(place) && isWithin ? 0 : 1;
}

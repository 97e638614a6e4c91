#include "ServiceOptions.h"

#include "AccountFile.h"

#include <QCommandLineParser>
#include <QDir>

#include <arpa/inet.h>

using namespace Qt::StringLiterals;

namespace
{

/// $STATE_DIRECTORY is set by systemd.
QString stateFolder()
{
    const QString given = qEnvironmentVariable("STATE_DIRECTORY").section(u':', 0, 0);
    if (!given.isEmpty())
        return given;
    const QString home = qEnvironmentVariable("XDG_STATE_HOME");
    return (home.startsWith(u'/') ? home : QDir::homePath() + "/.local/state"_L1)
        + "/toolvane-records"_L1;
}

bool isLoopback(const std::string &address)
{
    return address.starts_with("127.") || address == "::1";
}

bool isAddress(const std::string &address)
{
    in6_addr unused{};
    return inet_pton(AF_INET, address.c_str(), &unused) == 1
        || inet_pton(AF_INET6, address.c_str(), &unused) == 1;
}

/// "127.0.0.1:8791", "[::1]:8791" or "localhost:8791".
bool readListen(const QString &text, HttpSettings &http)
{
    bool isNumber = false;
    http.port = text.section(u':', -1).toUShort(&isNumber);
    QString host = text.section(u':', 0, -2);
    if (host.startsWith(u'[') && host.endsWith(u']'))
        host = host.sliced(1).chopped(1);
    else if (host == "localhost"_L1)
        host = u"127.0.0.1"_s;
    http.address = host.toStdString();
    return isNumber && isAddress(http.address);
}

/// What keeps the options from being served; empty if nothing does.
std::string faultOf(const ServiceOptions &options)
{
    const HttpSettings &http = options.http;
    const bool hasTls = !http.certificateFile.empty();
    if (hasTls != !http.keyFile.empty())
        return "--tls-certificate and --tls-key belong together";
    if (hasTls && http.isBehindProxy)
        return "either TLS or --behind-proxy";
    if (!hasTls && !http.isBehindProxy && !isLoopback(http.address))
        return http.address
            + " can be reached from other machines: passwords would cross the network readably. Use"
              " --tls-certificate and --tls-key, or --behind-proxy if a proxy does TLS";
    if (!options.base.starts_with('/') || !options.base.ends_with('/'))
        return "--base begins and ends with a slash";
    return {};
}

std::string readServing(const QCommandLineParser &parser, ServiceOptions &options)
{
    if (!readListen(parser.value(u"listen"_s), options.http))
        return "--listen takes an address and a port, such as 127.0.0.1:8791";
    const QString database = parser.value(u"database"_s);
    if (!database.startsWith("sqlite:"_L1) || database == "sqlite:"_L1)
        return "--database takes sqlite: and a path";
    options.databaseFile = database.sliced(7).toStdString();
    options.base = parser.value(u"base"_s).toStdString();
    options.http.certificateFile = parser.value(u"tls-certificate"_s).toStdString();
    options.http.keyFile = parser.value(u"tls-key"_s).toStdString();
    options.http.isBehindProxy = parser.isSet(u"behind-proxy"_s);
    return faultOf(options);
}

std::string readAccount(const QCommandLineParser &parser, const QStringList &words,
                        ServiceOptions &options)
{
    using Command = ServiceOptions::Command;
    const QString action = words.value(1);
    options.accountName = words.value(2).toStdString();
    options.role = parser.value(u"role"_s).toStdString();
    if (action == "list"_L1 && words.size() == 2) {
        options.command = Command::ListAccounts;
        return {};
    }
    if (words.size() != 3 || !isAccountName(options.accountName))
        return "a name has 1 to 64 letters, digits, dots, dashes and underscores";
    if (action == "remove"_L1) {
        options.command = Command::RemoveAccount;
        return {};
    }
    options.command = Command::AddAccount;
    if (action != "add"_L1)
        return "account add, account list or account remove";
    return roleNamed(options.role) ? "" : "--role reader or --role writer";
}

} // namespace

std::optional<ServiceOptions> ServiceOptions::read(const QStringList &arguments, std::string &fault)
{
    const QString folder = stateFolder();
    QCommandLineParser parser;
    parser.addOptions({
        {u"listen"_s, {}, u"address"_s, u"127.0.0.1:8791"_s},
        {u"base"_s, {}, u"path"_s, u"/records/"_s},
        {u"database"_s, {}, u"place"_s, "sqlite:"_L1 + folder + "/records.sqlite3"_L1},
        {u"accounts"_s, {}, u"file"_s, folder + "/accounts"_L1},
        {u"tls-certificate"_s, {}, u"file"_s},
        {u"tls-key"_s, {}, u"file"_s},
        {u"behind-proxy"_s, {}},
        {u"role"_s, {}, u"role"_s},
        {u"help"_s, {}},
    });
    if (!parser.parse(arguments)) {
        fault = parser.errorText().toStdString();
        return std::nullopt;
    }
    const QStringList words = parser.positionalArguments();
    ServiceOptions options;
    options.accountsFile = parser.value(u"accounts"_s).toStdString();
    if (parser.isSet(u"help"_s))
        return std::nullopt;
    if (words == QStringList(u"serve"_s))
        fault = readServing(parser, options);
    else if (words.value(0) == "account"_L1)
        fault = readAccount(parser, words, options);
    else
        fault = "serve or account is missing";
    return fault.empty() ? std::optional(options) : std::nullopt;
}

const char *ServiceOptions::usage()
{
    return "usage: toolvane-records serve [--listen 127.0.0.1:8791] [--base /records/]\n"
           "           [--database sqlite:PATH] [--accounts FILE]\n"
           "           [--tls-certificate FILE --tls-key FILE | --behind-proxy]\n"
           "       toolvane-records account add NAME --role reader|writer [--accounts FILE]\n"
           "           (the password is read from standard input)\n"
           "       toolvane-records account list | account remove NAME [--accounts FILE]\n";
}

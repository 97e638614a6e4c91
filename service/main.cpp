// toolvane-records: keeps the records that several people share. See docs/records-service.md.

#include "AccountCommands.h"
#include "Log.h"
#include "RecordService.h"
#include "SqliteEngine.h"

#include <QCoreApplication>

#include <sodium.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sysexits.h>
#include <unistd.h>

#include <csignal>
#include <iostream>

namespace
{

int fail(int status, const std::string &words)
{
    std::cerr << "toolvane-records: " << words << '\n';
    return status;
}

/// One datagram to systemd, if it started this program; the protocol of sd_notify(3).
void notifySystemd(std::string_view state)
{
    const char *const path = std::getenv("NOTIFY_SOCKET");
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    const std::string_view name = path ? path : "";
    if (name.empty() || name.size() >= sizeof address.sun_path)
        return;
    name.copy(address.sun_path, name.size());
    if (name[0] == '@')
        address.sun_path[0] = '\0';
    const FileDescriptor socket(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0));
    const auto length = socklen_t(offsetof(sockaddr_un, sun_path) + name.size());
    sendto(socket.get(), state.data(), state.size(), MSG_NOSIGNAL,
           reinterpret_cast<const sockaddr *>(&address), length);
}

std::string address(const ServiceOptions &options, std::uint16_t port,
                    const std::string &credentials)
{
    const HttpSettings &http = options.http;
    const bool isIPv6 = http.address.find(':') != std::string::npos;
    return (http.certificateFile.empty() ? "http://" : "https://") + credentials
        + (isIPv6 ? "[" + http.address + "]" : http.address) + ':' + std::to_string(port)
        + options.base;
}

int serve(const ServiceOptions &options)
{
    if (!makeFolderOf(options.accountsFile) || !makeFolderOf(options.databaseFile))
        return EX_CANTCREAT;
    const std::vector<TableSchema> tables = TableSchema::readAll();
    std::string fault;
    const auto engine = SqliteEngine::open(options.databaseFile, tables, fault);
    if (!engine)
        return fail(EX_TEMPFAIL, fault);
    const auto credentials = makeFirstAccount(options.accountsFile);
    if (!credentials)
        return EX_NOINPUT;
    Accounts accounts{AccountFile(options.accountsFile)};
    RecordService service(options.base, tables, accounts, *engine);
    const auto server = HttpServer::listen(options.http, service, fault);
    if (!server)
        return fail(EX_UNAVAILABLE, fault);
    service.connectionCount = [&server] { return server->connectionCount(); };
    if (!credentials->empty())
        std::cout << "The first account, shown this once. Paste this address into the settings of "
                     "Toolvane: "
                  << address(options, server->port(), *credentials) << '\n';
    std::cout << "toolvane-records is ready: " << address(options, server->port(), "") << std::endl;
    notifySystemd("READY=1");
    server->run();
    notifySystemd("STOPPING=1");
    return EX_OK;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    umask(S_IRWXG | S_IRWXO);
    std::signal(SIGPIPE, SIG_IGN);
    if (sodium_init() < 0)
        return fail(EX_OSERR, "libsodium cannot start");
    std::string fault;
    const auto options = ServiceOptions::read(QCoreApplication::arguments(), fault);
    if (!options) {
        std::cerr << (fault.empty() ? "" : "toolvane-records: " + fault + '\n')
                  << ServiceOptions::usage();
        return fault.empty() ? EX_OK : EX_USAGE;
    }
    return options->command == ServiceOptions::Command::Serve ? serve(*options)
                                                              : runAccountCommand(*options);
}

#pragma once

#include "HttpServer.h"

#include <QStringList>

/// What the command line asks for.
struct ServiceOptions {
    enum class Command { Serve, AddAccount, ListAccounts, RemoveAccount };

    Command command = Command::Serve;
    HttpSettings http;
    std::string base = "/records/";
    std::string databaseFile;
    std::string accountsFile;
    std::string accountName; ///< To add or to remove.
    std::string role;

    /// None, with what is wrong in `fault`, which is empty if only the usage was asked for.
    static std::optional<ServiceOptions> read(const QStringList &arguments, std::string &fault);
    static const char *usage();
};

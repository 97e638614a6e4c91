#include "AccountCommands.h"

#include "AccountFile.h"
#include "Log.h"

#include <sodium.h>
#include <sysexits.h>
#include <termios.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <iostream>

namespace
{

int fail(int status, const std::string &words)
{
    std::cerr << "toolvane-records: " << words << '\n';
    return status;
}

/// A line of standard input; a terminal does not show it.
std::string readPassword()
{
    termios shown{};
    const bool isTerminal = tcgetattr(STDIN_FILENO, &shown) == 0;
    if (isTerminal) {
        std::cerr << "Password: ";
        termios hidden = shown;
        hidden.c_lflag &= ~tcflag_t(ECHO);
        tcsetattr(STDIN_FILENO, TCSANOW, &hidden);
    }
    std::string password;
    std::getline(std::cin, password);
    if (isTerminal) {
        tcsetattr(STDIN_FILENO, TCSANOW, &shown);
        std::cerr << '\n';
    }
    return password;
}

std::string randomPassword()
{
    constexpr std::string_view characters =
        "ABCDEFGHJKLMNPQRSTUVWXYZabcdefghijkmnopqrstuvwxyz23456789"; // none that look alike
    constexpr int length = 24;
    std::string password;
    for (int i = 0; i < length; ++i)
        password += characters[randombytes_uniform(std::uint32_t(characters.size()))];
    return password;
}

int addAccount(const ServiceOptions &options, const AccountFile &file, AccountList accounts)
{
    const std::string password = readPassword();
    if (password.empty() || password.size() > 1000)
        return fail(EX_DATAERR, "a password has 1 to 1000 bytes, in one line of standard input");
    const std::string hash = passwordHash(password);
    if (hash.empty())
        return fail(EX_OSERR, "not enough memory");
    accounts[options.accountName] = {*roleNamed(options.role), hash};
    return makeFolderOf(file.path()) && file.write(accounts) ? EX_OK : EX_CANTCREAT;
}

} // namespace

int runAccountCommand(const ServiceOptions &options)
{
    const AccountFile file(options.accountsFile);
    auto accounts = file.read();
    if (!accounts)
        return EX_NOINPUT;
    if (options.command == ServiceOptions::Command::ListAccounts) {
        for (const auto &[name, account] : *accounts)
            std::cout << name << ' ' << roleName(account.role) << '\n';
        return EX_OK;
    }
    if (options.command == ServiceOptions::Command::AddAccount)
        return addAccount(options, file, std::move(*accounts));
    if (accounts->erase(options.accountName) == 0)
        return fail(EX_NOUSER, "no such account: " + options.accountName);
    return file.write(*accounts) ? EX_OK : EX_CANTCREAT;
}

std::optional<std::string> makeFirstAccount(const std::string &accountsFile)
{
    const AccountFile file(accountsFile);
    const auto accounts = file.read();
    if (!accounts)
        return std::nullopt;
    if (!accounts->empty())
        return "";
    const std::string name = "toolvane";
    const std::string password = randomPassword();
    const std::string hash = passwordHash(password);
    if (hash.empty() || !file.write({{name, {Role::Writer, hash}}}))
        return std::nullopt;
    return name + ':' + password + '@';
}

bool makeFolderOf(const std::string &path)
{
    const std::filesystem::path folder = std::filesystem::path(path).parent_path();
    std::error_code error;
    if (!folder.empty())
        std::filesystem::create_directories(folder, error); // the umask makes it the owner's
    if (error)
        logLine("cannot make " + folder.string() + ": " + error.message());
    return !error;
}

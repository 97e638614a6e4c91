#pragma once

#include <map>
#include <optional>
#include <string>

enum class Role { Reader, Writer };

struct Account {
    Role role = Role::Reader;
    std::string passwordHash; ///< libsodium's crypto_pwhash_str.
};

/// Accounts by their names.
using AccountList = std::map<std::string, Account, std::less<>>;

/// The file that holds the accounts, one in each line: "name:role:hash". For its owner alone.
class AccountFile
{
public:
    explicit AccountFile(std::string path) : m_path(std::move(path)) { }

    /// Empty if there is no file; none, with a line in the log, if it cannot be read.
    std::optional<AccountList> read() const;
    /// Replaces the file as a whole; the owner stays that of the folder. False, with a line in the
    /// log, if it cannot be written: it is then as it was.
    bool write(const AccountList &accounts) const;
    /// Changes whenever the file does.
    std::string fingerprint() const;
    const std::string &path() const { return m_path; }

private:
    const std::string m_path;
};

std::string_view roleName(Role role); ///< "reader"
std::optional<Role> roleNamed(std::string_view name);
/// 1 to 64 letters, digits, dots, dashes and underscores, which need no escape in an address.
bool isAccountName(std::string_view name);
/// Takes about 30 ms and 12 MB. Empty if there is not as much memory.
std::string passwordHash(const std::string &password);

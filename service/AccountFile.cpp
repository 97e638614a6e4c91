#include "AccountFile.h"

#include "FileDescriptor.h"
#include "Log.h"

#include <fcntl.h>
#include <sodium.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <fstream>
#include <sstream>

namespace
{

/// The weakest setting that the field recommends for Argon2id: the service promises to live in 64
/// MB.
constexpr unsigned long long hashOperations = 3;
constexpr std::size_t hashMemory = 12 * 1024 * 1024;
constexpr std::size_t maxFileLength = 1024 * 1024;

std::optional<AccountList> parsed(std::istream &text)
{
    AccountList accounts;
    std::string line;
    while (std::getline(text, line)) {
        std::istringstream parts(line);
        std::string name;
        std::string role;
        Account account;
        std::getline(parts, name, ':');
        std::getline(parts, role, ':');
        std::getline(parts, account.passwordHash);
        const auto known = roleNamed(role);
        if (!known || !isAccountName(name) || account.passwordHash.empty()
            || account.passwordHash.size() >= crypto_pwhash_STRBYTES)
            return std::nullopt;
        account.role = *known;
        accounts[name] = account;
    }
    return accounts;
}

bool writeWhole(int file, std::string_view text)
{
    while (!text.empty()) {
        const ssize_t count = ::write(file, text.data(), text.size());
        if (count <= 0)
            return false;
        text.remove_prefix(std::size_t(count));
    }
    return fsync(file) == 0;
}

/// An administrator may add accounts of a service that runs as somebody else.
bool giveToOwnerOf(const std::string &folder, int file)
{
    struct stat status {
    };
    return geteuid() != 0
        || (stat(folder.c_str(), &status) == 0 && fchown(file, status.st_uid, status.st_gid) == 0);
}

std::string folderOf(const std::string &path)
{
    const std::size_t slash = path.rfind('/');
    return slash == path.npos ? "." : path.substr(0, slash + 1);
}

} // namespace

std::string_view roleName(Role role)
{
    return role == Role::Writer ? "writer" : "reader";
}

std::optional<Role> roleNamed(std::string_view name)
{
    for (const Role role : {Role::Reader, Role::Writer}) {
        if (name == roleName(role))
            return role;
    }
    return std::nullopt;
}

bool isAccountName(std::string_view name)
{
    return !name.empty() && name.size() <= 64 && std::ranges::all_of(name, [](char character) {
        return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z')
            || (character >= '0' && character <= '9') || character == '.' || character == '-'
            || character == '_';
    });
}

std::string passwordHash(const std::string &password)
{
    std::array<char, crypto_pwhash_STRBYTES> hash{};
    if (crypto_pwhash_str(hash.data(), password.data(), password.size(), hashOperations, hashMemory)
        != 0)
        return {};
    return hash.data();
}

std::optional<AccountList> AccountFile::read() const
{
    struct stat status {
    };
    if (stat(m_path.c_str(), &status) != 0 && errno == ENOENT)
        return AccountList();
    std::ifstream file(m_path);
    auto accounts = file && S_ISREG(status.st_mode) && std::size_t(status.st_size) <= maxFileLength
        ? parsed(file)
        : std::nullopt;
    if (!accounts)
        logLine("accounts: cannot read " + m_path);
    return accounts;
}

bool AccountFile::write(const AccountList &accounts) const
{
    std::string text;
    for (const auto &[name, account] : accounts)
        text.append(name)
            .append(":")
            .append(roleName(account.role))
            .append(":")
            .append(account.passwordHash + "\n");
    const std::string temporary = m_path + ".new";
    unlink(temporary.c_str());
    const FileDescriptor file(
        open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (file && giveToOwnerOf(folderOf(m_path), file.get()) && writeWhole(file.get(), text)
        && rename(temporary.c_str(), m_path.c_str()) == 0)
        return true;
    logLine("accounts: cannot write " + m_path + ": " + std::strerror(errno));
    unlink(temporary.c_str());
    return false;
}

std::string AccountFile::fingerprint() const
{
    struct stat status {
    };
    if (stat(m_path.c_str(), &status) != 0)
        return {};
    std::ostringstream text;
    text << status.st_ino << ' ' << status.st_size << ' ' << status.st_mtim.tv_sec << ' '
         << status.st_mtim.tv_nsec;
    return text.str();
}

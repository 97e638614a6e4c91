#include "Accounts.h"

#include <sodium.h>

#include <algorithm>

using namespace std::chrono_literals;

namespace
{

constexpr auto rememberedTime = 10min;
constexpr auto lookInterval = 1s; ///< Between two looks at the file.
constexpr int freeFailures = 5; ///< Before a name at an address has to wait.
constexpr auto maxBlockTime = 60s;
constexpr auto failureMemory = 10min;
constexpr std::size_t maxFailures = 10'000;
constexpr std::size_t maxHeaderLength = 4096;

} // namespace

std::optional<Credentials> Credentials::ofHeader(std::string_view value)
{
    constexpr std::string_view scheme = "basic ";
    const bool isBasic = value.size() > scheme.size() && value.size() <= maxHeaderLength
        && std::ranges::equal(value.substr(0, scheme.size()), scheme, {},
                              [](char character) { return char(character | 0x20); });
    if (!isBasic)
        return std::nullopt;
    value.remove_prefix(scheme.size());
    std::string plain(value.size(), '\0');
    std::size_t length = 0;
    if (sodium_base642bin(reinterpret_cast<unsigned char *>(plain.data()), plain.size(),
                          value.data(), value.size(), nullptr, &length, nullptr,
                          sodium_base64_VARIANT_ORIGINAL)
        != 0)
        return std::nullopt;
    plain.resize(length);
    const std::size_t colon = plain.find(':');
    if (colon == plain.npos)
        return std::nullopt;
    return Credentials{plain.substr(0, colon), plain.substr(colon + 1)};
}

Accounts::Accounts(AccountFile file) : m_file(std::move(file))
{
    randombytes_buf(m_key.data(), m_key.size());
    reload();
}

Accounts::Known Accounts::look(const Credentials &credentials, const std::string &address,
                               Role &role)
{
    const Digest sent = digest(credentials);
    const std::lock_guard lock(m_mutex);
    reload();
    const auto account = m_accounts.find(credentials.name);
    const auto checked = m_checked.find(credentials.name);
    if (account != m_accounts.end() && checked != m_checked.end()
        && checked->second.until > Clock::now()
        && sodium_memcmp(checked->second.password.data(), sent.data(), sent.size()) == 0) {
        role = account->second.role;
        return Known::Yes;
    }
    if (isBlocked(credentials.name + '\n' + address))
        return Known::TooManyFailures;
    if (account != m_accounts.end())
        return Known::MustBeHashed;
    noteFailure(credentials.name + '\n' + address);
    return Known::No;
}

std::optional<Role> Accounts::check(const Credentials &credentials, const std::string &address)
{
    Account account;
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_accounts.find(credentials.name);
        if (found == m_accounts.end() || isBlocked(credentials.name + '\n' + address))
            return std::nullopt;
        account = found->second;
    }
    const bool isRight =
        crypto_pwhash_str_verify(account.passwordHash.c_str(), credentials.password.data(),
                                 credentials.password.size())
        == 0;
    const std::lock_guard lock(m_mutex);
    const auto found = m_accounts.find(credentials.name);
    if (!isRight || found == m_accounts.end()
        || found->second.passwordHash != account.passwordHash) {
        noteFailure(credentials.name + '\n' + address);
        return std::nullopt;
    }
    m_failures.erase(credentials.name + '\n' + address);
    m_checked[credentials.name] = {digest(credentials), Clock::now() + rememberedTime};
    return account.role;
}

void Accounts::reload()
{
    if (Clock::now() < m_nextLook)
        return;
    m_nextLook = Clock::now() + lookInterval;
    std::string fingerprint = m_file.fingerprint();
    if (fingerprint == m_fingerprint)
        return;
    m_fingerprint = std::move(fingerprint);
    m_accounts = m_file.read().value_or(AccountList());
    m_checked.clear();
}

bool Accounts::isBlocked(const std::string &place)
{
    const auto failures = m_failures.find(place);
    return failures != m_failures.end() && failures->second.blockedUntil > Clock::now();
}

/// After a few wrong passwords each further one doubles the time until the next is looked at.
void Accounts::noteFailure(const std::string &place)
{
    const auto now = Clock::now();
    if (m_failures.size() >= maxFailures) {
        std::erase_if(m_failures, [now](const auto &one) { return one.second.forgottenAt < now; });
        if (m_failures.size() >= maxFailures)
            m_failures.clear();
    }
    Failures &failures = m_failures[place];
    if (failures.forgottenAt < now)
        failures.count = 0;
    failures.forgottenAt = now + failureMemory;
    const int past = std::clamp(++failures.count - freeFailures, -1, 6);
    if (past >= 0)
        failures.blockedUntil = now + std::min<Clock::duration>(maxBlockTime, 1s * (1 << past));
}

Accounts::Digest Accounts::digest(const Credentials &credentials) const
{
    const std::string text = credentials.name + '\n' + credentials.password;
    Digest digest{};
    crypto_generichash(digest.data(), digest.size(),
                       reinterpret_cast<const unsigned char *>(text.data()), text.size(),
                       m_key.data(), m_key.size());
    return digest;
}

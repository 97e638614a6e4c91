#pragma once

#include "AccountFile.h"

#include <array>
#include <chrono>
#include <mutex>
#include <unordered_map>

/// A name and a password that a client sends.
struct Credentials {
    std::string name;
    std::string password;

    /// From the value of an Authorization header ("Basic bmFtZTpwYXNzd29yZA=="); none if it is of
    /// another form.
    static std::optional<Credentials> ofHeader(std::string_view value);
};

/// Decides who may do what. Looking a password up costs a hash once in a while; in between, a
/// keyed hash of the password is remembered, never the password. Any thread.
class Accounts
{
public:
    using Clock = std::chrono::steady_clock;

    explicit Accounts(AccountFile file);

    enum class Known { Yes, No, MustBeHashed, TooManyFailures };
    /// What is known without a hash. `role` is set with Yes. A name that does not exist is known to
    /// be wrong.
    Known look(const Credentials &credentials, const std::string &address, Role &role);
    /// Blocks for a hash. The role, none if the password is wrong.
    std::optional<Role> check(const Credentials &credentials, const std::string &address);

private:
    using Digest = std::array<unsigned char, 32>;
    struct Checked {
        Digest password;
        Clock::time_point until;
    };
    struct Failures {
        int count = 0;
        Clock::time_point blockedUntil;
        Clock::time_point forgottenAt;
    };

    void reload(); ///< With the lock held, like the two that follow.
    bool isBlocked(const std::string &place);
    void noteFailure(const std::string &place);
    Digest digest(const Credentials &credentials) const;

    const AccountFile m_file;
    Digest m_key; ///< Of this process alone.
    std::mutex m_mutex; ///< Over the members that follow.
    Clock::time_point m_nextLook;
    std::string m_fingerprint;
    AccountList m_accounts;
    std::unordered_map<std::string, Checked> m_checked; ///< By account.
    std::unordered_map<std::string, Failures> m_failures; ///< By account and address.
};

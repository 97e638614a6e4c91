#pragma once

#include <QByteArray>

/// Where versions are announced, and whose signature they must bear.
struct UpdateSource {
    QByteArray feedAddress; ///< Empty when none is set.
    QByteArray publicKey; ///< 32 bytes; empty when none was compiled in.

    /// The maker's key, compiled in and nothing else: who may change a settings file must not
    /// become the maker by it. Empty when there is none, or when it is no key.
    static QByteArray compiledInKey();
};

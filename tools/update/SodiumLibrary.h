#pragma once

#include <sodium.h>

/// libsodium, loaded when the first signature is checked: the program starts without it, as it does
/// without libcurl. What is listed here is what SignatureCheck needs.
struct SodiumLibrary {
    decltype(&crypto_hash_sha512_init) hashInit = nullptr;
    decltype(&crypto_hash_sha512_update) hashUpdate = nullptr;
    decltype(&crypto_hash_sha512_final) hashFinal = nullptr;
    decltype(&crypto_core_ed25519_scalar_reduce) scalarReduce = nullptr;
    decltype(&crypto_scalarmult_ed25519_noclamp) multiply = nullptr;
    decltype(&crypto_scalarmult_ed25519_base_noclamp) multiplyBase = nullptr;
    decltype(&crypto_core_ed25519_sub) subtract = nullptr;

    /// The library, initialised; null where it is not installed. Any thread.
    static const SodiumLibrary *get();
};

#include "SodiumLibrary.h"

#include "LibrarySymbol.h"

using namespace Qt::StringLiterals;

namespace
{

bool load(SodiumLibrary &sodium)
{
    QLibrary library(u"sodium"_s, 23);
    decltype(&sodium_init) init = nullptr;
    return resolveSymbol(library, "sodium_init", init)
        && resolveSymbol(library, "crypto_hash_sha512_init", sodium.hashInit)
        && resolveSymbol(library, "crypto_hash_sha512_update", sodium.hashUpdate)
        && resolveSymbol(library, "crypto_hash_sha512_final", sodium.hashFinal)
        && resolveSymbol(library, "crypto_core_ed25519_scalar_reduce", sodium.scalarReduce)
        && resolveSymbol(library, "crypto_scalarmult_ed25519_noclamp", sodium.multiply)
        && resolveSymbol(library, "crypto_scalarmult_ed25519_base_noclamp", sodium.multiplyBase)
        && resolveSymbol(library, "crypto_core_ed25519_sub", sodium.subtract) && init() >= 0;
}

} // namespace

const SodiumLibrary *SodiumLibrary::get()
{
    static SodiumLibrary sodium;
    static const bool loaded = load(sodium);
    return loaded ? &sodium : nullptr;
}

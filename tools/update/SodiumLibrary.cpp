#include "SodiumLibrary.h"

#include <QLibrary>

using namespace Qt::StringLiterals;

namespace
{

template <class Function>
bool resolve(QLibrary &library, const char *name, Function &function)
{
    function = reinterpret_cast<Function>(library.resolve(name));
    return function != nullptr;
}

bool load(SodiumLibrary &sodium)
{
    QLibrary library(u"sodium"_s, 23);
    decltype(&sodium_init) init = nullptr;
    return resolve(library, "sodium_init", init)
        && resolve(library, "crypto_hash_sha512_init", sodium.hashInit)
        && resolve(library, "crypto_hash_sha512_update", sodium.hashUpdate)
        && resolve(library, "crypto_hash_sha512_final", sodium.hashFinal)
        && resolve(library, "crypto_core_ed25519_scalar_reduce", sodium.scalarReduce)
        && resolve(library, "crypto_scalarmult_ed25519_noclamp", sodium.multiply)
        && resolve(library, "crypto_scalarmult_ed25519_base_noclamp", sodium.multiplyBase)
        && resolve(library, "crypto_core_ed25519_sub", sodium.subtract) && init() >= 0;
}

} // namespace

const SodiumLibrary *SodiumLibrary::get()
{
    static SodiumLibrary sodium;
    static const bool loaded = load(sodium);
    return loaded ? &sodium : nullptr;
}

#include "CurlLibrary.h"

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

/// Never unloaded again: the libraries beneath do not stand it.
bool load(CurlLibrary &curl)
{
    QLibrary library(u"curl"_s, 4);
    decltype(&curl_global_init) globalInit = nullptr;
    return resolve(library, "curl_global_init", globalInit)
        && resolve(library, "curl_easy_init", curl.easyInit)
        && resolve(library, "curl_easy_setopt", curl.easySetopt)
        && resolve(library, "curl_easy_perform", curl.easyPerform)
        && resolve(library, "curl_easy_getinfo", curl.easyGetinfo)
        && resolve(library, "curl_easy_cleanup", curl.easyCleanup)
        && resolve(library, "curl_easy_strerror", curl.easyStrerror)
        && resolve(library, "curl_slist_append", curl.slistAppend)
        && resolve(library, "curl_slist_free_all", curl.slistFreeAll)
        && globalInit(CURL_GLOBAL_DEFAULT) == CURLE_OK;
}

} // namespace

const CurlLibrary *CurlLibrary::get()
{
    static CurlLibrary curl;
    static const bool loaded = load(curl);
    return loaded ? &curl : nullptr;
}

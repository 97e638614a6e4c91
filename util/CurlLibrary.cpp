#include "CurlLibrary.h"

#include "LibrarySymbol.h"

using namespace Qt::StringLiterals;

namespace
{

/// Never unloaded again: the libraries beneath do not stand it.
bool load(CurlLibrary &curl)
{
    QLibrary library(u"curl"_s, 4);
    decltype(&curl_global_init) globalInit = nullptr;
    return resolveSymbol(library, "curl_global_init", globalInit)
        && resolveSymbol(library, "curl_easy_init", curl.easyInit)
        && resolveSymbol(library, "curl_easy_setopt", curl.easySetopt)
        && resolveSymbol(library, "curl_easy_perform", curl.easyPerform)
        && resolveSymbol(library, "curl_easy_getinfo", curl.easyGetinfo)
        && resolveSymbol(library, "curl_easy_cleanup", curl.easyCleanup)
        && resolveSymbol(library, "curl_easy_strerror", curl.easyStrerror)
        && resolveSymbol(library, "curl_slist_append", curl.slistAppend)
        && resolveSymbol(library, "curl_slist_free_all", curl.slistFreeAll)
        && globalInit(CURL_GLOBAL_DEFAULT) == CURLE_OK;
}

} // namespace

const CurlLibrary *CurlLibrary::get()
{
    static CurlLibrary curl;
    static const bool loaded = load(curl);
    return loaded ? &curl : nullptr;
}

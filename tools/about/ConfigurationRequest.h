#pragma once

#include "Http.h"

/// A request to the maker's configuration server. What begins with https stays with https, whereto
/// the server may redirect.
inline HttpRequest configurationRequest(const QByteArray &address, std::chrono::milliseconds time,
                                        qint64 bytes, const std::stop_token &stop)
{
    const bool isSecure = address.left(6).compare("https:", Qt::CaseInsensitive) == 0;
    return {.address = address,
            .limits = {.time = time,
                       .bytes = bytes,
                       .schemes = isSecure ? HttpSchemes::SecureOnly : HttpSchemes::Any},
            .stop = stop};
}

#include "Failure.h"

#include <algorithm>
#include <cstring>

namespace standin
{

std::string printable(std::string text)
{
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; };
    std::replace_if(text.begin(), text.end(), isControl, '?');
    return text;
}

void fail(const std::string &path, const std::string &reason)
{
    throw Failure(Failed, (path.empty() ? "(no name)" : path) + ": " + reason);
}

void failWithError(const std::string &path, int error)
{
    fail(path, std::strerror(error));
}

} // namespace standin

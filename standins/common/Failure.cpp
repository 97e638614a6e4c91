#include "Failure.h"

#include <cstring>

namespace standin
{

void fail(const std::string &path, const std::string &reason)
{
    throw Failure(Failed, (path.empty() ? "(no name)" : path) + ": " + reason);
}

void failWithError(const std::string &path, int error)
{
    fail(path, std::strerror(error));
}

} // namespace standin

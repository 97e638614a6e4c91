#include "Checks.h"

#include "Failure.h"
#include "FileDescriptor.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <filesystem>

namespace standin
{

std::string resolved(const std::string &path)
{
    std::error_code error;
    const std::filesystem::path real = std::filesystem::canonical(path, error);
    if (error)
        failWithError(path, error.value());
    return real.string();
}

void requireRegularFile(const std::string &path)
{
    struct stat status;
    if (::stat(path.c_str(), &status) != 0)
        failWithError(path, errno);
    if (S_ISDIR(status.st_mode))
        failWithError(path, EISDIR);
    if (!S_ISREG(status.st_mode))
        fail(path, "Not a regular file");
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!file.isOpen())
        failWithError(path, errno);
}

void requireDifferentFiles(const std::string &source, const std::string &target)
{
    std::error_code error; // either does not exist
    if (std::filesystem::equivalent(source, target, error))
        fail(target, "Source and output are the same file");
}

} // namespace standin

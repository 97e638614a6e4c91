#include "OutputFile.h"

#include "EndOnSignal.h"
#include "Failure.h"

#include <fcntl.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <sys/statvfs.h>

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <filesystem>

namespace standin
{

namespace
{

constexpr int maxLinks = 40; // as many as the system follows

// Also a link that leads to a name which does not exist yet.
std::string followLinks(const std::string &target)
{
    if (target.empty())
        failWithError(target, ENOENT);
    std::filesystem::path path = target;
    std::error_code error;
    for (int links = 0; std::filesystem::is_symlink(path, error); ++links) {
        if (links == maxLinks)
            failWithError(target, ELOOP);
        path = path.parent_path() / std::filesystem::read_symlink(path, error);
    }
    const auto real = std::filesystem::canonical(path, error);
    return error ? path.string() : real.string();
}

std::string folderOf(const std::filesystem::path &target)
{
    return target.has_parent_path() ? target.parent_path().string() : ".";
}

void requireReplaceable(const std::string &target)
{
    struct stat status;
    if (target.ends_with('/') || (::stat(target.c_str(), &status) == 0 && S_ISDIR(status.st_mode)))
        failWithError(target, EISDIR);
    if (::lstat(target.c_str(), &status) != 0)
        return;
    if (!S_ISREG(status.st_mode) && !S_ISLNK(status.st_mode))
        fail(target, "Not a regular file");
    if (S_ISREG(status.st_mode) && ::access(target.c_str(), W_OK) != 0)
        failWithError(target, errno);
}

std::string randomName(const std::string &folder)
{
    std::uint64_t number = 0;
    if (::getrandom(&number, sizeof number, 0) != sizeof number)
        failWithError(folder, errno);
    return folder + "/.toolvane-" + std::to_string(number);
}

mode_t modeOfNewFiles()
{
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

} // namespace

OutputFile::OutputFile(const std::string &target, Temporary temporary)
    : m_target(followLinks(target)), m_folder(folderOf(m_target))
{
    requireReplaceable(m_target);
    if (::access((m_folder + "/.").c_str(), W_OK | X_OK) != 0)
        failWithError(m_folder, errno);
    if (temporary == Temporary::NamelessIfPossible)
        openNameless();
    if (!m_file.isOpen())
        openNamed();
}

OutputFile::~OutputFile()
{
    if (m_temporaryPath.empty())
        return;
    ::unlink(m_temporaryPath.c_str());
    forgetTemporary();
}

// Any refusal means "not on this file system"; a real fault comes back when openNamed() tries.
void OutputFile::openNameless()
{
    m_file = FileDescriptor(::open(m_folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600));
}

void OutputFile::openNamed()
{
    const EndingHeldBack held;
    const std::string path = randomName(m_folder);
    m_file = FileDescriptor(::open(path.c_str(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, 0600));
    if (!m_file.isOpen())
        failWithError(m_folder, errno);
    takeName(path);
}

void OutputFile::takeName(const std::string &path)
{
    m_temporaryPath = path;
    rememberTemporary(m_temporaryPath.c_str());
}

std::string OutputFile::descriptorPath() const
{
    return "/proc/self/fd/" + std::to_string(m_file.number());
}

std::vector<std::string> OutputFile::names() const
{
    std::vector<std::string> names{std::filesystem::path(m_target).filename()};
    if (!m_temporaryPath.empty())
        names.push_back(std::filesystem::path(m_temporaryPath).filename());
    return names;
}

void OutputFile::write(const void *data, std::size_t size)
{
    const char *position = static_cast<const char *>(data);
    while (size > 0) {
        const auto written = ::write(m_file.number(), position, size);
        if (written < 0 && errno != EINTR)
            failWithError(m_target, errno);
        if (written > 0) {
            position += written;
            size -= static_cast<std::size_t>(written);
        }
    }
}

void OutputFile::failWithWords(const std::string &path, const std::string &words) const
{
    struct statvfs room;
    if (::fstatvfs(m_file.number(), &room) == 0 && room.f_bavail == 0)
        failWithError(m_target, ENOSPC);
    fail(path, words);
}

// linkat() cannot replace a file, so the file first gets a name that is free.
void OutputFile::giveName()
{
    const EndingHeldBack held;
    const std::string path = randomName(m_folder);
    if (::linkat(AT_FDCWD, descriptorPath().c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW)
        != 0)
        failWithError(m_target, errno);
    takeName(path);
}

void OutputFile::commit()
{
    if (::fchmod(m_file.number(), modeOfNewFiles()) != 0 && errno != EPERM) // EPERM: no modes there
        failWithError(m_target, errno);
    if (replacesFile() && ::fsync(m_file.number()) != 0)
        failWithError(m_target, errno);
    if (m_temporaryPath.empty())
        giveName();
    if (std::rename(m_temporaryPath.c_str(), m_target.c_str()) != 0)
        failWithError(m_target, errno);
    forgetTemporary();
    m_temporaryPath.clear();
}

bool OutputFile::replacesFile() const
{
    struct stat status;
    return ::lstat(m_target.c_str(), &status) == 0;
}

} // namespace standin

#include "NewArchive.h"

#include "EndOnSignal.h"
#include "System.h"
#include "ZipStatus.h"

#include <fcntl.h>
#include <sys/random.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

using standin::FileDescriptor;

namespace
{

std::string folderOf(const std::string &target)
{
    const auto slash = target.rfind('/');
    if (slash == std::string::npos)
        return ".";
    return slash == 0 ? "/" : target.substr(0, slash);
}

std::string ownDescriptorPath(const FileDescriptor &file)
{
    return "/proc/self/fd/" + std::to_string(file.number());
}

} // namespace

NewArchive::NewArchive(const std::string &target, Temporary temporary)
    : m_target(target), m_folder(folderOf(target))
{
    const standin::EndingHeldBack held;
    if (temporary == Temporary::NamelessIfPossible)
        m_file = openNameless();
    if (m_file.isOpen())
        return;
    m_file = openNamed(m_temporaryPath);
    standin::rememberTemporary(m_temporaryPath.c_str());
}

NewArchive::~NewArchive()
{
    dropName();
}

void NewArchive::failToCreate(int error) const
{
    failAs(archive::isLackOfRoom(error) ? NoRoom : CannotCreate, m_target, std::strerror(error));
}

// Any refusal means "not on this file system"; a real fault comes back when openNamed() tries.
FileDescriptor NewArchive::openNameless() const
{
    if (::access("/proc/self/fd", X_OK) != 0) // without it the file could never get a name
        return {};
    return FileDescriptor(::open(m_folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600));
}

FileDescriptor NewArchive::openNamed(std::string &path) const
{
    std::uint64_t number = 0;
    if (::getrandom(&number, sizeof number, 0) != sizeof number)
        failToCreate(errno);
    path = m_folder + "/.toolvane-" + std::to_string(number);
    FileDescriptor file(::open(path.c_str(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, 0600));
    if (!file.isOpen())
        failToCreate(errno);
    return file;
}

FileDescriptor NewArchive::scratchFile() const
{
    const standin::EndingHeldBack held;
    FileDescriptor file = openNameless();
    if (!file.isOpen()) {
        std::string path;
        file = openNamed(path);
        ::unlink(path.c_str());
    }
    return file;
}

struct stat NewArchive::status() const
{
    struct stat status = {};
    if (::fstat(m_file.number(), &status) != 0)
        failToCreate(errno);
    return status;
}

void NewArchive::write(std::uint64_t offset, std::string_view bytes) const
{
    write(m_file, offset, bytes, m_target);
}

void NewArchive::write(const FileDescriptor &file, std::uint64_t offset, std::string_view bytes,
                       const std::string &target)
{
    while (!bytes.empty()) {
        const auto written =
            ::pwrite(file.number(), bytes.data(), bytes.size(), static_cast<off_t>(offset));
        if (written < 0 && errno != EINTR)
            failAs(NoRoom, target, std::strerror(errno));
        if (written > 0) {
            bytes.remove_prefix(static_cast<std::size_t>(written));
            offset += static_cast<std::uint64_t>(written);
        }
    }
}

void NewArchive::publish(std::uint64_t size)
{
    if (::ftruncate(m_file.number(), static_cast<off_t>(size)) != 0)
        failToCreate(errno);
    if (::fchmod(m_file.number(), 0666 & ~archive::currentMask()) != 0
        && errno != EPERM) // EPERM: no modes there
        failToCreate(errno);
    const standin::EndingHeldBack held;
    const int error = rename();
    if (error == EEXIST)
        failAs(CannotCreate, m_target, "Something appeared there meanwhile");
    if (error != 0)
        failToCreate(error);
    if (!m_temporaryPath.empty())
        standin::forgetTemporary();
    m_temporaryPath.clear();
}

// An error number, 0 for success. Some file systems cannot rename without replacing: what is
// replaced there is our own empty file.
int NewArchive::rename() const
{
    const auto errorOf = [](int result) { return result == 0 ? 0 : errno; };
    const char *target = m_target.c_str();
    if (m_temporaryPath.empty())
        return errorOf(::linkat(AT_FDCWD, ownDescriptorPath(m_file).c_str(), AT_FDCWD, target,
                                AT_SYMLINK_FOLLOW));
    const char *temporary = m_temporaryPath.c_str();
    const int error = errorOf(::renameat2(AT_FDCWD, temporary, AT_FDCWD, target, RENAME_NOREPLACE));
    if (error != EINVAL && error != ENOSYS)
        return error;
    if (!FileDescriptor(::open(target, O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0600)).isOpen())
        return errno;
    const int failure = errorOf(std::rename(temporary, target));
    if (failure != 0)
        ::unlink(target);
    return failure;
}

void NewArchive::dropName()
{
    if (m_temporaryPath.empty())
        return;
    ::unlink(m_temporaryPath.c_str());
    standin::forgetTemporary();
}

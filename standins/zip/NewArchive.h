#pragma once

#include "FileDescriptor.h"

#include <sys/stat.h>

#include <cstdint>
#include <string>
#include <string_view>

/// The archive's file, which takes its name when it is complete and replaces nothing. Until then
/// nothing of it can be seen, and nothing is left of it when the program is ended, also by KILL, if
/// the file system has files without a name; elsewhere a hidden temporary lies beside the target.
class NewArchive
{
public:
    enum class Temporary {
        NamelessIfPossible,
        Named, ///< for tests: what other file systems get
    };

    /// Fails with CannotCreate, or NoRoom.
    explicit NewArchive(const std::string &target,
                        Temporary temporary = Temporary::NamelessIfPossible);
    ~NewArchive();
    NewArchive(const NewArchive &) = delete;
    NewArchive &operator=(const NewArchive &) = delete;

    /// Of the file itself, also while it has no name.
    struct stat status() const;

    /// Fails with NoRoom, whatever keeps it from being written.
    void write(std::uint64_t offset, std::string_view bytes) const;

    /// A file beside the archive for what will belong into it, gone with the program.
    standin::FileDescriptor scratchFile() const;
    static void write(const standin::FileDescriptor &file, std::uint64_t offset,
                      std::string_view bytes, const std::string &target);

    /// Cuts what was written beyond the size, and gives the file its name and the mode 0666 less
    /// the umask. Fails with CannotCreate if anything has that name by now.
    void publish(std::uint64_t size);

    const std::string &target() const { return m_target; }

private:
    standin::FileDescriptor openNameless() const;
    standin::FileDescriptor openNamed(std::string &path) const;
    [[noreturn]] void failToCreate(int error) const;
    int rename() const;
    void dropName();

    std::string m_target;
    std::string m_folder;
    std::string m_temporaryPath; ///< empty: it has no name
    standin::FileDescriptor m_file;
};

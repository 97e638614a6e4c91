#pragma once

#include "FileDescriptor.h"

#include <string>
#include <vector>

namespace standin
{

/// A file that takes its name only when it is complete. Until commit() an older file of that name
/// stays as it was; without commit() nothing is left behind, also if TERM, INT or HUP ends the
/// program. If the file system has files without a name (O_TMPFILE), not even KILL or a power cut
/// leaves anything; elsewhere (FAT, most network file systems) there is a hidden temporary file
/// beside the target. One at a time in a program. Every member that fails throws a Failure.
class OutputFile
{
public:
    enum class Temporary {
        NamelessIfPossible,
        Named, ///< for tests: what other file systems get
    };

    /// Fails, before anything is written, if the folder is missing or may not be written, or if the
    /// target is a folder, not a regular file (a device), or write-protected. A target that is a
    /// link is followed, so that the link stays one.
    explicit OutputFile(const std::string &target,
                        Temporary temporary = Temporary::NamelessIfPossible);
    ~OutputFile();
    OutputFile(const OutputFile &) = delete;
    OutputFile &operator=(const OutputFile &) = delete;

    /// Open for reading and writing. The file stays the owner.
    int descriptor() const { return m_file.number(); }

    /// A path by which a child that inherits the descriptor can open the file.
    std::string descriptorPath() const;

    /// The target with its links followed.
    const std::string &target() const { return m_target; }

    /// Where the target is; "." if it has no folder in its path.
    const std::string &folder() const { return m_folder; }

    /// The names in folder() that are not to be read as a source: the target's and, if there is
    /// one, the temporary file's.
    std::vector<std::string> names() const;

    /// Empty while the file has no name.
    const std::string &temporaryPath() const { return m_temporaryPath; }

    /// Writes all of it at the current position.
    void write(const void *data, std::size_t size);

    /// Fails after a child that wrote to the file: for want of room if there is none left, which
    /// says more than the last words of most programs, else with these words about `path`.
    [[noreturn]] void failWithWords(const std::string &path, const std::string &words) const;

    /// Gives the file the mode 0666 less the umask and renames it. If it replaces an older file it
    /// is flushed to the disk first, so that a power cut cannot leave neither of the two; a new
    /// file need not wait for the disk.
    void commit();

private:
    void openNameless();
    void openNamed();
    void giveName();
    void takeName(const std::string &path);
    bool replacesFile() const;

    std::string m_target;
    std::string m_folder;
    std::string m_temporaryPath;
    FileDescriptor m_file;
};

} // namespace standin

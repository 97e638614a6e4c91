#pragma once

#include "FileDescriptor.h"

#include <string>

namespace standin
{

// A file that takes its name only when it is complete. Until commit() an older file of that name
// stays as it was; without commit() nothing is left behind, also when the program is ended by TERM,
// INT or HUP. Where the file system has files without a name (O_TMPFILE) not even KILL or a power
// cut leaves anything; elsewhere (FAT, most network file systems) a hidden temporary stands beside
// the target. One at a time in a program.
class OutputFile
{
public:
    enum class Temporary {
        NamelessIfPossible,
        Named, // for tests: what other file systems get
    };

    // Fails, before anything is written, when the folder is missing or may not be written, or when
    // the target is a folder, something else than a regular file (a device), or write-protected.
    // A target that is a link is followed, so that the link stays one.
    explicit OutputFile(const std::string &target,
                        Temporary temporary = Temporary::NamelessIfPossible);
    ~OutputFile();
    OutputFile(const OutputFile &) = delete;
    OutputFile &operator=(const OutputFile &) = delete;

    int descriptor() const { return m_file.number(); }

    // A name under which a child that inherits the descriptor can open the file.
    std::string descriptorPath() const;

    // The target with its links followed.
    const std::string &target() const { return m_target; }

    // Empty when the file has no name yet.
    const std::string &temporaryPath() const { return m_temporaryPath; }

    // Writes at the current position; a short write goes on, an error fails.
    void write(const void *data, std::size_t size);

    // For a child that wrote to the file and failed: that there is no room left says more than the
    // last words of most programs, which are given for `path` otherwise.
    [[noreturn]] void failWithWords(const std::string &path, const std::string &words) const;

    // Gives the file the mode 0666 less the umask and renames it. Where it replaces an older file
    // it is flushed to the disk first, so that not even a power cut leaves neither of the two; a
    // new file need not wait for the disk.
    void commit();

private:
    void openNameless();
    void openNamed();
    void giveName();
    void dropName();
    bool replacesFile() const;

    std::string m_target;
    std::string m_folder;
    std::string m_temporaryPath;
    FileDescriptor m_file;
};

} // namespace standin

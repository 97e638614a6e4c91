#pragma once

#include <QString>

#include <optional>
#include <stop_token>

// What will not work, or will surprise, about a path that was typed, before a run shows it.

/// What a path is for.
enum class PathUse {
    SourceFolder,
    SourceFile,
    OutputFolder, ///< Made if it is missing. Empty: the current folder.
    NewFile, ///< Never in place of anything.
    ReplacedFile, ///< A file of that name is replaced.
};

/// What the user has typed, and what is known of the source.
struct PathQuestion {
    PathUse use = PathUse::SourceFolder;
    QString path;
    QString made = {}; ///< For a folder: the new item in it; empty if that is not known yet.
    std::optional<qint64> needed = {}; ///< The source's size in bytes.

    bool operator==(const PathQuestion &) const = default;
};

/// What the file system says about it.
struct PathFacts {
    bool exists = false; ///< Anything of that name, a link that leads nowhere included.
    bool isFolder = false;
    bool isReadable = false; ///< For a folder: can be entered and listed.
    bool hasFolder = false; ///< The folder that the item is in, or will be in, exists.
    bool isWritable = false; ///< Something new can be written at the path.
    bool isMadeTaken = false; ///< Something of the new item's name exists.
    std::optional<qint64> available = {}; ///< Bytes; none if the file system does not say.
};

/// Can block for as long as the file system does; any thread.
PathFacts pathFacts(const PathQuestion &question);

/// One sentence for the user; empty if there is nothing to say.
QString pathAdvice(const PathQuestion &question, const PathFacts &facts);

/// The size of a source, which is a file or a folder, in bytes. Can block; any thread. After a stop
/// request it soon returns what it has so far.
qint64 sourceSize(const QString &path, const std::stop_token &stop);

/// The path with the home folder in place of a leading "~/".
QString withHomeFolder(const QString &path);

#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>

/// Trees for the tests of walks over folders, made inside the test run's own sandbox. Paths are
/// bytes.
namespace SampleTree
{

namespace fs = std::filesystem;

inline fs::path native(const QByteArray &path)
{
    return fs::path(path.toStdString());
}

inline void require(bool success, const QByteArray &what)
{
    if (!success)
        qFatal("cannot make the sample tree: %s: %s", what.constData(), strerror(errno));
}

/// Empty if this process may destroy things: the sandbox exists and the home folder of the user
/// database is in it. Otherwise what is wrong.
inline QString whyUnsafe()
{
    const QByteArray sandbox = qgetenv("TOOLVANE_TEST_SANDBOX");
    if (!sandbox.startsWith('/') || sandbox.size() < 2)
        return QStringLiteral("no sandbox: run this through tests/support/isolated");
    const passwd *const user = getpwuid(getuid());
    if (!user || !QByteArray(user->pw_dir).startsWith(sandbox + '/'))
        return QStringLiteral("the user database names a home folder outside the sandbox");
    return {};
}

/// A new empty folder in the sandbox. It is removed with the sandbox.
inline QByteArray makeRoot()
{
    if (!whyUnsafe().isEmpty())
        qFatal("%s", qPrintable(whyUnsafe()));
    QByteArray path = qgetenv("TOOLVANE_TEST_SANDBOX") + "/tmp/tree.XXXXXX";
    require(mkdtemp(path.data()) != nullptr, path);
    return path;
}

/// With its parents.
inline void makeFolder(const QByteArray &path)
{
    fs::create_directories(native(path));
}

/// With its parents.
inline void makeFile(const QByteArray &path, const QByteArray &content)
{
    fs::create_directories(native(path).parent_path());
    std::ofstream file(native(path), std::ios::binary);
    file.write(content.constData(), content.size());
    file.close();
    require(file.good(), path);
}

inline void makeLink(const QByteArray &path, const QByteArray &target)
{
    require(symlink(target.constData(), path.constData()) == 0, path);
}

/// Some folders and files two levels deep.
inline void makeNested(const QByteArray &top, int folders, int filesEach)
{
    for (int i = 0; i < folders; ++i) {
        const QByteArray folder = top + "/d" + QByteArray::number(i);
        makeFolder(folder + "/inner");
        for (int j = 0; j < filesEach; ++j)
            makeFile(folder + (j % 2 == 0 ? "/inner/f" : "/f") + QByteArray::number(j), "content");
    }
}

/// A chain of folders, each named by name and holding one file "f" of one byte.
inline void makeChain(const QByteArray &top, int levels, const QByteArray &name)
{
    makeFolder(top);
    int folder = open(top.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    for (int i = 0; i < levels; ++i) {
        require(mkdirat(folder, name.constData(), 0700) == 0, name);
        const int inner = openat(folder, name.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        close(folder);
        folder = inner;
        const int file = openat(folder, "f", O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
        require(write(file, "x", 1) == 1, name);
        close(file);
    }
    close(folder);
}

inline bool exists(const QByteArray &path) ///< Of a link itself.
{
    struct stat status = {};
    return lstat(path.constData(), &status) == 0;
}

/// Everything below a folder by relative path, with kind, mode, number of names and the content or
/// the link's target.
using Snapshot = QMap<QByteArray, QByteArray>;
inline Snapshot snapshot(const QByteArray &top)
{
    Snapshot items;
    for (const fs::directory_entry &entry : fs::recursive_directory_iterator(native(top))) {
        struct stat status = {};
        require(lstat(entry.path().c_str(), &status) == 0, "snapshot");
        std::string content;
        if (entry.is_symlink())
            content = fs::read_symlink(entry.path()).string();
        else if (std::ifstream file(entry.path(), std::ios::binary); entry.is_regular_file())
            content.assign(std::istreambuf_iterator<char>(file), {});
        const QByteArray name = QByteArray::fromStdString(entry.path().string()).mid(top.size());
        items[name] = QByteArray::number(status.st_mode, 8) + ' '
            + (entry.is_directory() ? "" : QByteArray::number(status.st_nlink)) + ' '
            + QByteArray::fromStdString(content);
    }
    return items;
}

/// The relative paths that only one of them has or that differ.
inline QList<QByteArray> difference(const Snapshot &before, const Snapshot &after)
{
    Snapshot all = before;
    all.insert(after);
    QList<QByteArray> names = all.keys();
    names.removeIf([&](const QByteArray &name) {
        return before.value(name, "missing") == after.value(name, "missing");
    });
    return names;
}

} // namespace SampleTree

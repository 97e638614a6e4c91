#include "SampleTree.h"

#include <QCryptographicHash>
#include <QFile>

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace fs = std::filesystem;
using namespace Qt::StringLiterals;

namespace
{

fs::path native(const QByteArray &path)
{
    return fs::path(path.toStdString());
}

void require(bool success, const QByteArray &what)
{
    if (!success)
        qFatal("cannot make the sample tree: %s: %s", what.constData(), strerror(errno));
}

QByteArray contentOf(const fs::directory_entry &entry)
{
    if (entry.is_symlink())
        return QByteArray::fromStdString(fs::read_symlink(entry.path()).string());
    if (!entry.is_regular_file())
        return {};
    std::ifstream file(entry.path(), std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(file), {});
    return QCryptographicHash::hash(QByteArray::fromStdString(bytes), QCryptographicHash::Sha256);
}

} // namespace

QString SampleTree::whyUnsafe()
{
    const QByteArray sandbox = qgetenv("TOOLVANE_TEST_SANDBOX");
    if (!sandbox.startsWith('/') || sandbox.size() < 2)
        return u"no sandbox: run this through tests/support/isolated"_s;
    const passwd *const user = getpwuid(getuid());
    if (!user || !QByteArray(user->pw_dir).startsWith(sandbox + '/'))
        return u"the user database names a home folder outside the sandbox"_s;
    return {};
}

QByteArray SampleTree::makeRoot()
{
    if (!whyUnsafe().isEmpty())
        qFatal("%s", qPrintable(whyUnsafe()));
    QByteArray path = qgetenv("TOOLVANE_TEST_SANDBOX") + "/tmp/tree.XXXXXX";
    require(mkdtemp(path.data()) != nullptr, path);
    return path;
}

void SampleTree::makeFolder(const QByteArray &path)
{
    fs::create_directories(native(path));
}

void SampleTree::makeFile(const QByteArray &path, const QByteArray &content)
{
    fs::create_directories(native(path).parent_path());
    std::ofstream file(native(path), std::ios::binary);
    file.write(content.constData(), content.size());
    file.close();
    require(file.good(), path);
}

void SampleTree::makeLink(const QByteArray &path, const QByteArray &target)
{
    require(symlink(target.constData(), path.constData()) == 0, path);
}

int SampleTree::makeNested(const QByteArray &top, int folders, int filesEach)
{
    for (int i = 0; i < folders; ++i) {
        const QByteArray folder = top + "/d" + QByteArray::number(i);
        makeFolder(folder + "/inner");
        for (int j = 0; j < filesEach; ++j)
            makeFile(folder + (j % 2 == 0 ? "/inner/f" : "/f") + QByteArray::number(j), "content");
    }
    return folders * (2 + filesEach);
}

void SampleTree::makeChain(const QByteArray &top, int levels, const QByteArray &name)
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

bool SampleTree::exists(const QByteArray &path)
{
    struct stat status = {};
    return lstat(path.constData(), &status) == 0;
}

SampleTree::Snapshot SampleTree::snapshot(const QByteArray &top)
{
    Snapshot items;
    for (const fs::directory_entry &entry : fs::recursive_directory_iterator(native(top))) {
        struct stat status = {};
        require(lstat(entry.path().c_str(), &status) == 0, "snapshot");
        const QByteArray name = QByteArray::fromStdString(entry.path().string()).mid(top.size());
        items[name] = QByteArray::number(status.st_mode, 8) + ' '
            + (entry.is_directory() ? "" : QByteArray::number(status.st_nlink)) + ' '
            + contentOf(entry).toHex();
    }
    return items;
}

QList<QByteArray> SampleTree::difference(const Snapshot &before, const Snapshot &after)
{
    Snapshot all = before;
    all.insert(after);
    QList<QByteArray> names = all.keys();
    names.removeIf([&](const QByteArray &name) {
        return before.value(name, "missing") == after.value(name, "missing");
    });
    return names;
}

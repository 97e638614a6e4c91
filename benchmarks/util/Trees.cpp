#include "Trees.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <deque>

namespace
{

constexpr int filesEach = 20;
constexpr int foldersEach = 10;

void require(bool success, const std::string &what)
{
    if (success)
        return;
    std::fprintf(stderr, "cannot make %s: %s\n", what.c_str(), std::strerror(errno));
    std::exit(2);
}

int makeFolder(int parent, const std::string &name)
{
    require(mkdirat(parent, name.c_str(), 0700) == 0, name);
    const int folder = openat(parent, name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    require(folder >= 0, name);
    return folder;
}

void makeFiles(int folder, int count)
{
    for (int i = 0; i < count; ++i) {
        const std::string name = "file number " + std::to_string(i);
        const int file = openat(folder, name.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
        require(file >= 0 && write(file, "content", 7) == 7, name);
        close(file);
    }
}

} // namespace

void Trees::makeNested(const std::string &top, int files)
{
    std::deque<std::string> waiting = {top};
    int planned = 1;
    for (int left = files; left > 0; left -= filesEach) {
        const std::string path = waiting.front();
        waiting.pop_front();
        const int folder = makeFolder(AT_FDCWD, path);
        makeFiles(folder, left < filesEach ? left : filesEach);
        close(folder);
        for (int i = 0; i < foldersEach && planned * filesEach < files; ++i, ++planned)
            waiting.push_back(path + "/folder " + std::to_string(i));
    }
}

void Trees::makeFlat(const std::string &top, int files)
{
    const int folder = makeFolder(AT_FDCWD, top);
    makeFiles(folder, files);
    close(folder);
}

void Trees::makeChain(const std::string &top, int levels)
{
    int folder = makeFolder(AT_FDCWD, top);
    for (int i = 0; i < levels; ++i) {
        makeFiles(folder, 1);
        const int inner = makeFolder(folder, "level");
        close(folder);
        folder = inner;
    }
    close(folder);
}

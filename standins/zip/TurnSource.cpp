#include "TurnSource.h"

#include "ZipStatus.h"

#include <fcntl.h>
#include <malloc.h>

#include <cerrno>

namespace
{

std::size_t memoryFor(const Turn &turn)
{
    const auto size = static_cast<std::uint64_t>(turn.item.status.st_size);
    const std::size_t names = turnOverhead + turn.item.name.size();
    if (turn.large)
        return names + LargeFile::pieceSize;
    if (!turn.item.folder)
        return names;
    if (size > TurnSource::maxSmallSize)
        return names + 2 * size; // as it is and packed
    return names + (size > 0 ? size : TurnSource::maxSmallSize);
}

} // namespace

standin::FileDescriptor openFile(FoundItem &item)
{
    standin::FileDescriptor file(::openat(::dirfd(item.folder.get()), item.leaf.c_str(),
                                          O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    struct stat status;
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0)
        return {};
    if (!S_ISREG(status.st_mode)) {
        errno = ESTALE;
        return {};
    }
    status.st_size = item.status.st_size; // for which memory was set aside
    item.status = status;
    return file;
}

std::shared_ptr<LargeFile> TurnSource::open(FoundItem &item)
{
    auto file = openFile(item);
    if (file.isOpen())
        return std::make_shared<LargeFile>(item.name, std::move(file), item.status.st_size);
    m_report.leftOut(SomethingMissing, item.name, errno);
    return nullptr;
}

std::optional<Turn> TurnSource::find()
{
    while (!m_large) {
        auto item = m_walk.next();
        if (!item)
            return std::nullopt;
        const bool isLarge =
            item->folder && static_cast<std::uint64_t>(item->status.st_size) > maxWholeSize;
        if (!isLarge)
            return Turn{.item = std::move(*item), .large = nullptr};
        m_large = open(*item);
        if (m_large)
            return Turn{.item = std::move(*item), .large = m_large};
    }
    return Turn{.item = {}, .large = m_large};
}

std::optional<Turn> TurnSource::next(Buffer &buffer)
{
    const std::scoped_lock lock(m_mutex);
    auto turn = find();
    if (!turn)
        return std::nullopt;
    turn->reserved = memoryFor(*turn);
    if (turn->reserved > 2 * maxSmallSize)
        ::malloc_trim(0); // what small files needed
    if (!m_budget.take(turn->reserved))
        return std::nullopt;
    turn->number = m_count++;
    if (turn->large) {
        turn->piece = turn->large->read(buffer);
        if (turn->piece.isLast)
            m_large = nullptr;
    }
    return turn;
}

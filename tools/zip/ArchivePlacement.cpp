#include "ArchivePlacement.h"

#include "FilePlacement.h"
#include "UnplacedArchives.h"

#include <QCoroFuture>
#include <QtConcurrentRun>

#include <cerrno>

JobOutcome Placement::outcome() const
{
    if (error == 0)
        return JobOutcome::Succeeded;
    return error == ECANCELED ? JobOutcome::Stopped : JobOutcome::Failed;
}

QCoro::Task<Placement> placeArchive(QString archive, QString output, std::stop_token stop)
{
    const int error = co_await QtConcurrent::run(placeFile, archive, output, stop);
    if (error != 0)
        co_return Placement{error, UnplacedArchives::keep(archive)};
    UnplacedArchives::remove(archive); // the folder that it was kept in
    co_return Placement{};
}

QString unplacedText(int error)
{
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return qtTrId("Zip.NotSaved.NoFolder");
    case EEXIST:
        return qtTrId("Zip.NotSaved.Taken");
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return qtTrId("Zip.NotSaved.NoRoom");
    case EACCES:
    case EPERM:
    case EROFS:
        return qtTrId("Zip.NotSaved.Unwritable");
    case ECANCELED:
        return qtTrId("Zip.NotSaved.Stopped");
    default: // also one that was kept when the program ended
        return qtTrId("Zip.NotSaved");
    }
}

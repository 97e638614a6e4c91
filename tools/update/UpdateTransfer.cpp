#include "UpdateTransfer.h"

#include "Http.h"
#include "UnpublishedFile.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QUrl>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Kind = UpdateProblem::Kind;

namespace
{

constexpr auto feedTimeout = 30s;
constexpr auto fileTimeout = 6h;
constexpr auto silenceTimeout = 60s; // else a silent server would hold a download for hours
constexpr int maxNames = 1000;

// A safe address with plain http leads to this machine, so no redirect is followed there.
HttpLimits limitsFor(const QByteArray &address, std::chrono::milliseconds timeout, qint64 maxBytes)
{
    const bool isSecure = address.left(6).compare("https:", Qt::CaseInsensitive) == 0;
    return {.time = timeout,
            .silenceTimeout = silenceTimeout,
            .bytes = maxBytes,
            .redirects = isSecure ? 5 : 0,
            .schemes = isSecure ? HttpSchemes::SecureOnly : HttpSchemes::Any};
}

UpdateProblem problemOf(const HttpReply &reply)
{
    using End = HttpReply::End;
    static const QMap<End, Kind> kinds{
        {End::Refused, Kind::UnsafeAddress}, {End::Garbled, Kind::Garbled},
        {End::Untrusted, Kind::Certificate}, {End::TimedOut, Kind::TimedOut},
        {End::TooLarge, Kind::TooLarge},     {End::Cancelled, Kind::Stopped},
        {End::NotWritten, Kind::NotWritten}, {End::Failed, Kind::BrokenOff},
    };
    if (!reply.isHeard && (reply.end == End::Failed || reply.end == End::TimedOut))
        return {Kind::Unreachable};
    if (!reply.answered())
        return {kinds.value(reply.end, Kind::BrokenOff)};
    return reply.status == 200 ? UpdateProblem{}
                               : UpdateProblem{Kind::Status, QString::number(reply.status)};
}

UpdateProblem problemOf(const SignedFeed &signedFeed, const QByteArray &publicKey)
{
    if (!signedFeed.feed.contains("<rss")) // a page of the network's, perhaps
        return {Kind::NotAFeed};
    if (publicKey.isEmpty())
        return {};
    if (!UpdateSignature::isAvailable())
        return {Kind::NoSignatureLibrary};
    if (signedFeed.signature.isEmpty())
        return {Kind::Unsigned};
    return {UpdateSignature::isValid(signedFeed.feed, publicKey, signedFeed.signature)
                ? Kind::None
                : Kind::WrongSignature};
}

UpdateProblem problemOf(const UpdateFeed &feed, const UpdateSource &source,
                        const QDateTime &newestSeen)
{
    if (source.publicKey.isEmpty())
        return {};
    if (!feed.date.isValid())
        return {Kind::NoDate};
    return {newestSeen.isValid() && feed.date < newestSeen ? Kind::Older : Kind::None};
}

UpdateProblem notWritten(int error)
{
    return {Kind::NotWritten, qt_error_string(error)};
}

UpdateProblem receive(const UpdateItem &item, QFile &target, std::atomic<qint64> &received,
                      const std::stop_token &stop)
{
    HttpRequest request{.address = item.address,
                        .limits = limitsFor(item.address, fileTimeout, item.length),
                        .stop = stop};
    request.progress = [&received](qint64 bytes) { received = bytes; };
    UpdateProblem problem = problemOf(httpGet(request, target));
    if (problem.kind == Kind::NotWritten)
        problem.detail = target.errorString();
    if (problem)
        return problem;
    if (fsync(target.handle()) != 0)
        return notWritten(errno);
    return {target.size() == item.length ? Kind::None : Kind::Incomplete};
}

QString numbered(const QString &name, int number)
{
    if (number == 1)
        return name;
    // "name-1.2.tar.gz" becomes "name-1.2 2.tar.gz": no suffix begins with a digit.
    static const QRegularExpression suffixes(uR"((\.[A-Za-z][A-Za-z0-9]*)+\z)"_s);
    const qsizetype suffix = name.indexOf(suffixes, 1);
    const QString extra = u" %1"_s.arg(number);
    return suffix < 0 ? name + extra : QString(name).insert(suffix, extra);
}

// What is checked is what the file holds, not what came over the wire.
CheckedFile checkedFile(QFile &file, const UpdateItem &item, const QByteArray &publicKey)
{
    struct stat status = {};
    const QByteArray hash = UpdateSignature::hashIfValid(file, publicKey, item.signature);
    if (hash.isEmpty() || fstat(file.handle(), &status) != 0)
        return {};
    return {.path = {}, .device = status.st_dev, .inode = status.st_ino, .hash = hash};
}

FetchedFile publish(UnpublishedFile &file, CheckedFile checked, const QString &folder,
                    const QString &name)
{
    int error = EEXIST;
    for (int number = 1; error == EEXIST && number <= maxNames; ++number) {
        const QString free = numbered(name, number);
        error = file.publish(QFile::encodeName(free));
        if (error == 0) {
            checked.path = QDir(folder).absoluteFilePath(free);
            return {.problem = {}, .file = checked};
        }
    }
    return {.problem = notWritten(error)};
}

} // namespace

QString UpdateProblem::sentence() const
{
    static const QMap<Kind, const char *> keys{
        {Kind::UnsafeAddress, QT_TRID_NOOP("Update.Problem.UnsafeAddress")},
        {Kind::Unreachable, QT_TRID_NOOP("Update.Problem.Unreachable")},
        {Kind::BrokenOff, QT_TRID_NOOP("Update.Problem.BrokenOff")},
        {Kind::Garbled, QT_TRID_NOOP("Update.Problem.Garbled")},
        {Kind::Certificate, QT_TRID_NOOP("Update.Problem.Certificate")},
        {Kind::TimedOut, QT_TRID_NOOP("Update.Problem.TimedOut")},
        {Kind::TooLarge, QT_TRID_NOOP("Update.Problem.TooLarge")},
        {Kind::Status, QT_TRID_NOOP("Update.Problem.Status")},
        {Kind::NotAFeed, QT_TRID_NOOP("Update.Problem.NotAFeed")},
        {Kind::Unsigned, QT_TRID_NOOP("Update.Problem.Unsigned")},
        {Kind::WrongSignature, QT_TRID_NOOP("Update.Problem.WrongSignature")},
        {Kind::NoDate, QT_TRID_NOOP("Update.Problem.NoDate")},
        {Kind::Older, QT_TRID_NOOP("Update.Problem.Older")},
        {Kind::NoSignatureLibrary, QT_TRID_NOOP("Update.Problem.NoSignatureLibrary")},
        {Kind::Incomplete, QT_TRID_NOOP("Update.Problem.Incomplete")},
        {Kind::NotWritten, QT_TRID_NOOP("Update.Problem.NotWritten")},
        {Kind::Changed, QT_TRID_NOOP("Update.Problem.Changed")},
        {Kind::NothingOpens, QT_TRID_NOOP("Update.Problem.NothingOpens")},
        {Kind::Stopped, QT_TRID_NOOP("Update.Problem.Stopped")},
    };
    if (kind == Kind::None)
        return {};
    const QString text = qtTrId(keys.value(kind));
    return kind == Kind::Status || kind == Kind::NotWritten ? text.arg(detail) : text;
}

FetchedFeed fetchFeed(const UpdateSource &source, const QDateTime &newestSeen,
                      const std::stop_token &stop)
{
    if (!isSafeAddress(source.feedAddress))
        return {{Kind::UnsafeAddress}};
    const HttpReply reply =
        httpGet({.address = source.feedAddress,
                 .limits = limitsFor(source.feedAddress, feedTimeout, UpdateFeed::maxBytes),
                 .stop = stop});
    if (const UpdateProblem problem = problemOf(reply))
        return {problem};
    const SignedFeed signedFeed = SignedFeed::split(reply.body);
    if (const UpdateProblem problem = problemOf(signedFeed, source.publicKey))
        return {problem};
    const std::optional<UpdateFeed> feed = UpdateFeed::read(signedFeed.feed);
    if (!feed)
        return {{Kind::NotAFeed}};
    if (const UpdateProblem problem = problemOf(*feed, source, newestSeen))
        return {problem};
    return {{}, *feed};
}

FetchedFile fetchFile(const UpdateItem &item, const QByteArray &publicKey, const QString &folder,
                      std::atomic<qint64> &received, const std::stop_token &stop)
{
    if (!UpdateSignature::isAvailable())
        return {{Kind::NoSignatureLibrary}};
    if (!isSafeAddress(item.address))
        return {{Kind::UnsafeAddress}};
    QDir().mkpath(folder);
    UnpublishedFile file(QFile::encodeName(folder));
    if (file.error() != 0)
        return {notWritten(file.error())};
    QFile target;
    // Unbuffered: a full disk is not reported while a part of the buffer still fits.
    if (!target.open(file.descriptor(), QIODevice::ReadWrite | QIODevice::Unbuffered))
        return {notWritten(EIO)};
    if (const UpdateProblem problem = receive(item, target, received, stop))
        return {problem};
    const CheckedFile checked = checkedFile(target, item, publicKey);
    if (checked.hash.isEmpty())
        return {{Kind::WrongSignature}};
    fchmod(file.descriptor(), 0644); // the package manager of some systems reads as another user
    return publish(file, checked, folder, fileNameOf(item));
}

bool CheckedFile::isUnchanged(const std::stop_token &stop) const
{
    // A pipe would wait for somebody to write into it.
    const FileDescriptor descriptor(::open(QFile::encodeName(path).constData(),
                                           O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat status = {};
    QFile file;
    return descriptor && fstat(descriptor.get(), &status) == 0 && S_ISREG(status.st_mode)
        && status.st_dev == device && status.st_ino == inode
        && file.open(descriptor.get(), QIODevice::ReadOnly | QIODevice::Unbuffered)
        && UpdateSignature::hash(file, stop) == hash;
}

QString fileNameOf(const UpdateItem &item)
{
    static const QRegularExpression plain(uR"(\A[A-Za-z0-9][A-Za-z0-9._+~-]{0,119}\z)"_s);
    const QString last = QUrl::fromEncoded(item.address).fileName();
    return plain.match(last).hasMatch() ? last : u"Toolvane-"_s + item.version.toString();
}

#include "UpdateTransfer.h"

#include "SignatureCheck.h"
#include "UnpublishedFile.h"
#include "UpdateOffer.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QUrl>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Kind = UpdateProblem::Kind;

namespace
{

constexpr auto feedTime = 30s;
constexpr auto fileTime = 6h;
constexpr int mostNames = 1000;

// Plain http is spoken with this machine alone, so no redirect is followed there.
HttpLimits limitsFor(const QByteArray &address, std::chrono::milliseconds time, qint64 bytes)
{
    const bool isPlain = isPlainHttp(address);
    return {.time = time,
            .bytes = bytes,
            .redirects = isPlain ? 0 : 5,
            .schemes = isPlain ? HttpSchemes::Any : HttpSchemes::SecureOnly};
}

UpdateProblem problemOf(const SignedFeed &signedFeed, const QByteArray &publicKey)
{
    if (publicKey.isEmpty())
        return {};
    if (!SignatureCheck::isAvailable())
        return {Kind::NoSignatureLibrary};
    if (signedFeed.signature.isEmpty())
        return {Kind::Unsigned};
    return {SignatureCheck::isValid(signedFeed.feed, publicKey, signedFeed.signature)
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
                        .limits = limitsFor(item.address, fileTime, item.length),
                        .stop = stop};
    request.progress = [&received](qint64 bytes) { received = bytes; };
    if (const UpdateProblem problem = UpdateProblem::of(httpGet(request, target)))
        return problem.kind == Kind::NotWritten
            ? UpdateProblem{Kind::NotWritten, target.errorString()}
            : problem;
    if (!target.flush())
        return {Kind::NotWritten, target.errorString()};
    if (fsync(target.handle()) != 0)
        return notWritten(errno);
    return {target.size() == item.length ? Kind::None : Kind::Incomplete};
}

QString numbered(const QString &name, int number)
{
    if (number == 1)
        return name;
    // "name-1.2.tar.gz" becomes "name-1.2 2.tar.gz": a suffix begins with a letter.
    static const QRegularExpression suffixes(uR"((\.[A-Za-z][A-Za-z0-9]*)+\z)"_s);
    const qsizetype suffix = name.indexOf(suffixes, 1);
    const QString extra = u" %1"_s.arg(number);
    return suffix < 0 ? name + extra : QString(name).insert(suffix, extra);
}

FetchedFile publish(UnpublishedFile &file, const QString &folder, const QString &name)
{
    int error = EEXIST;
    for (int number = 1; error == EEXIST && number <= mostNames; ++number) {
        const QString free = numbered(name, number);
        error = file.publish(QFile::encodeName(free));
        if (error == 0)
            return {.problem = {}, .path = QDir(folder).filePath(free)};
    }
    return {.problem = notWritten(error)};
}

} // namespace

FetchedFeed fetchFeed(const UpdateSource &source, const QDateTime &newestSeen,
                      const std::stop_token &stop)
{
    if (!isSafeAddress(source.feedAddress))
        return {{Kind::UnsafeAddress}};
    const HttpReply reply =
        httpGet({.address = source.feedAddress,
                 .limits = limitsFor(source.feedAddress, feedTime, UpdateFeed::mostBytes),
                 .stop = stop});
    if (const UpdateProblem problem = UpdateProblem::of(reply))
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
    if (!SignatureCheck::isAvailable())
        return {{Kind::NoSignatureLibrary}};
    if (!isSafeAddress(item.address))
        return {{Kind::UnsafeAddress}};
    QDir().mkpath(folder);
    UnpublishedFile file(QFile::encodeName(folder));
    if (file.error() != 0)
        return {notWritten(file.error())};
    QFile target;
    // Unbuffered, because a buffer that only fits in part has no word for it.
    if (!target.open(file.descriptor(), QIODevice::ReadWrite | QIODevice::Unbuffered))
        return {notWritten(EIO)};
    if (const UpdateProblem problem = receive(item, target, received, stop))
        return {problem};
    // What is checked is what stands in the file, not what came over the wire.
    if (!target.seek(0) || !SignatureCheck::isValid(target, publicKey, item.signature))
        return {{Kind::WrongSignature}};
    fchmod(file.descriptor(), 0644); // the package manager of some systems reads as another user
    return publish(file, folder, fileNameOf(item));
}

QString fileNameOf(const UpdateItem &item)
{
    static const QRegularExpression decent(uR"(\A[A-Za-z0-9][A-Za-z0-9._+~-]{0,119}\z)"_s);
    const QString last = QUrl::fromEncoded(item.address).fileName();
    return decent.match(last).hasMatch() ? last : u"Toolvane-"_s + item.version.toString();
}

#include "UpdateTexts.h"

#include "MiscTool.h"
#include "UpdateChecker.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QSettings>
#include <QTextDocumentFragment>

using Phase = UpdateChecker::Phase;
using Kind = UpdateProblem::Kind;

namespace
{

QString versionText(const UpdateChecker &checker)
{
    return checker.offer() ? checker.offer()->shortVersion : QString();
}

QString size(qint64 bytes)
{
    return MiscTool::convertBytes(static_cast<std::uint64_t>(bytes));
}

} // namespace

QString UpdateTexts::headline(const UpdateChecker &checker)
{
    switch (checker.phase()) {
    case Phase::Unasked:
        return checker.hasFeedAddress() ? qtTrId("Update.Unasked") : qtTrId("Update.NoFeed");
    case Phase::Checking:
        return qtTrId("Update.Checking");
    case Phase::UpToDate:
        return qtTrId("Update.Result.UpToDate");
    case Phase::Available:
        return qtTrId("Update.Result.Available").arg(versionText(checker));
    case Phase::Skipped:
        return qtTrId("Update.Result.Skipped").arg(versionText(checker));
    case Phase::NotChecked:
        return qtTrId(UpdateMemory::lastCheck().result.toLatin1().constData());
    case Phase::Downloading:
        return qtTrId("Update.Downloading").arg(versionText(checker));
    case Phase::Downloaded:
        return qtTrId("Update.Downloaded").arg(versionText(checker));
    case Phase::NotDownloaded:
        return qtTrId("Update.NotDownloaded").arg(versionText(checker));
    }
    Q_UNREACHABLE();
}

QString UpdateTexts::detail(const UpdateChecker &checker)
{
    switch (checker.phase()) {
    case Phase::Unasked:
        return checker.hasFeedAddress()
            ? QString()
            : qtTrId("Update.NoFeed.Help").arg(QDir::toNativeSeparators(QSettings().fileName()));
    case Phase::Available:
        return checker.hasKey() ? QString() : qtTrId("Update.NoKey");
    case Phase::NotChecked:
    case Phase::NotDownloaded:
        return checker.problem().sentence();
    case Phase::Downloaded:
        return qtTrId("Update.Downloaded.Where").arg(QFileInfo(checker.file()).fileName());
    default:
        return {};
    }
}

QString UpdateTexts::lastCheck(const UpdateChecker &checker)
{
    const UpdateMemory::LastCheck last = UpdateMemory::lastCheck();
    if (!last.time.isValid())
        return {};
    const QString time = QLocale().toString(last.time.toLocalTime(), QLocale::ShortFormat);
    if (checker.phase() != Phase::Unasked)
        return qtTrId("Update.LastCheck").arg(time);
    QString result = qtTrId(last.result.toUtf8().constData());
    if (!last.argument.isEmpty())
        result = result.arg(last.argument);
    return qtTrId("Update.LastCheck.Result").arg(time, result);
}

QString UpdateTexts::progress(const UpdateChecker &checker)
{
    if (checker.phase() != Phase::Downloading || !checker.offer())
        return {};
    return qtTrId("Update.Progress").arg(size(checker.received()), size(checker.offer()->length));
}

QString UpdateTexts::notes(const UpdateItem &item)
{
    const QString text = item.notesFormat == UpdateItem::NotesFormat::Plain
        ? item.notes
        : QTextDocumentFragment::fromHtml(item.notes).toPlainText();
    return text.trimmed();
}

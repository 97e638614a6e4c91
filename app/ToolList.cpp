#include "AVConvertViewController.h"
#include "DMGViewController.h"
#include "ISOViewController.h"
#include "SynthesisViewController.h"
#include "Tool.h"
#include "UNZIPViewController.h"
#include "UpdateViewController.h"
#include "UserCacheViewController.h"
#include "ZIPViewController.h"

#include <QtGlobal>

namespace
{

template <typename Page>
QWidget *makePage(JobList &jobs, QWidget *parent)
{
    return new Page(jobs, parent);
}

} // namespace

QList<Tool> allTools()
{
    return {
        {QT_TRID_NOOP("AV Convert"), "video", "video", makePage<AVConvertViewController>},
        {QT_TRID_NOOP("UserCache"), "clear", "cache", makePage<UserCacheViewController>},
        {QT_TRID_NOOP("Speech Synthesis"), "synthesis", "speech",
         makePage<SynthesisViewController>},
        {QT_TRID_NOOP("Zip"), "zip", "zip", makePage<ZIPViewController>},
        {QT_TRID_NOOP("Unzip"), "unzip", "unzip", makePage<UNZIPViewController>},
        {QT_TRID_NOOP("DMG"), "image", "dmg", makePage<DMGViewController>},
        {QT_TRID_NOOP("ISO"), "image", "iso", makePage<ISOViewController>},
        {QT_TRID_NOOP("Update"), "update", "update", makePage<UpdateViewController>},
    };
}

QStringList toolCommandNames()
{
    QStringList names;
    for (const Tool &tool : allTools())
        names << QString::fromLatin1(tool.commandName);
    return names;
}

std::optional<int> rowOfTool(const QString &commandName)
{
    const qsizetype row = toolCommandNames().indexOf(commandName);
    return row < 0 ? std::nullopt : std::optional(static_cast<int>(row));
}

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
        {QT_TRID_NOOP("AV Convert"), "video", makePage<AVConvertViewController>},
        {QT_TRID_NOOP("UserCache"), "clear", makePage<UserCacheViewController>},
        {QT_TRID_NOOP("Speech Synthesis"), "synthesis", makePage<SynthesisViewController>},
        {QT_TRID_NOOP("Zip"), "zip", makePage<ZIPViewController>},
        {QT_TRID_NOOP("Unzip"), "unzip", makePage<UNZIPViewController>},
        {QT_TRID_NOOP("DMG"), "image", makePage<DMGViewController>},
        {QT_TRID_NOOP("ISO"), "image", makePage<ISOViewController>},
        {QT_TRID_NOOP("Update"), "update", makePage<UpdateViewController>},
    };
}

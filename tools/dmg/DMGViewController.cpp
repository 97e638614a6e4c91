#include "DMGViewController.h"

#include "ui_DMGViewController.h"

using namespace Qt::StringLiterals;

DMGViewController::DMGViewController(JobList &jobs, QWidget *parent)
    : ImageViewController(
        jobs, {.nameKey = "DMG", .suffix = u"dmg"_s, .fileSystem = FileSystem::Hfs}, parent)
{
    Ui::DMGViewController page;
    page.setupUi(this);
    awakeFromNib(*page.formPlace);
}

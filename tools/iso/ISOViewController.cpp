#include "ISOViewController.h"

#include "ui_ISOViewController.h"

using namespace Qt::StringLiterals;

ISOViewController::ISOViewController(JobList &jobs, QWidget *parent)
    : ImageViewController(
        jobs, {.nameKey = "ISO", .suffix = u"iso"_s, .fileSystem = FileSystem::Hybrid}, parent)
{
    Ui::ISOViewController page;
    page.setupUi(this);
    awakeFromNib(*page.formPlace);
}

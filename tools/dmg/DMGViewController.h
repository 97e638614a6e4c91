#pragma once

#include "ImageViewController.h"

/// Makes a disk image of a folder: one HFS volume.
class DMGViewController : public ImageViewController
{
    Q_OBJECT

public:
    explicit DMGViewController(JobList &jobs, QWidget *parent = nullptr);
};

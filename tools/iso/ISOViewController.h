#pragma once

#include "ImageViewController.h"

/// Makes a CD image of a folder that every desktop system can read.
class ISOViewController : public ImageViewController
{
    Q_OBJECT

public:
    explicit ISOViewController(JobList &jobs, QWidget *parent = nullptr);
};

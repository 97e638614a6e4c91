#pragma once

#include <QList>

class JobList;
class QWidget;

/// One entry of the sidebar: what it is called, its image, and how its page is made.
struct Tool {
    const char *nameKey; ///< Key in the table of texts.
    const char *imageName; ///< Name of one of the application's own images.
    QWidget *(*makePage)(JobList &jobs, QWidget *parent);
};

/// All tools in the order of the sidebar. The one place that names them.
QList<Tool> allTools();

#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class JobList;
class QWidget;

/// One entry of the sidebar: what it is called, its image, how the command line calls it, and how
/// its page is made.
struct Tool {
    const char *nameKey; ///< Key in the table of texts.
    const char *imageName; ///< Name of one of the application's own images.
    const char *commandName; ///< One word that stays the same in every language.
    QWidget *(*makePage)(JobList &jobs, QWidget *parent);
};

/// All tools in the order of the sidebar: the one place in the program that names them. What a
/// desktop shows of them stands in packaging/desktop.
QList<Tool> allTools();

QStringList toolCommandNames(); ///< In the same order.
/// Where the tool with this command name stands in the list; none for any other text.
std::optional<int> rowOfTool(const QString &commandName);

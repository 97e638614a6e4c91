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
    /// The parent owns the page; the list must outlive it.
    QWidget *(*makePage)(JobList &jobs, QWidget *parent);
};

/// All tools in the order of the sidebar: the one place in the program that names them. The names
/// for the desktop entry are in packaging/desktop.
QList<Tool> allTools();

QStringList toolCommandNames(); ///< In the same order.
/// The row of the tool with this command name in the list; none for any other text.
std::optional<int> rowOfTool(const QString &commandName);

#pragma once

#include <QCache>
#include <QIcon>
#include <QObject>
#include <QSet>
#include <QString>
#include <QThreadPool>

#include <stop_token>

class QImage;

/// The icons of the listed applications, by name: the program's own image of that name, else a file
/// in the folder, which is fetched from the server when missing. Files are read and fetched on
/// threads of the cache's own, those asked for last first; until then an icon is null. Interface
/// thread only.
class IconCache : public QObject
{
    Q_OBJECT

public:
    /// Logical size of an icon; images are kept for screens of twice the density.
    static constexpr int side = 32;
    static constexpr qsizetype mostBytes = 16 * 1024 * 1024; ///< Of all images in memory.

    explicit IconCache(const QString &folder, QObject *parent = nullptr);
    ~IconCache() override; ///< Waits for what is being fetched to break off, about a second.

    /// The server's address; empty: nothing is fetched. Forgets which icons could not be had.
    void setServer(const QString &server);

    /// Null while the icon is on its way, and for a name that leads to none.
    QIcon icon(const QString &name);

Q_SIGNALS:
    void arrived(const QString &name); ///< icon(name) is no longer null.

private:
    void request(const QString &name);
    void readOrFetch(const QString &name, const QString &server, int priority);
    void fetch(const QString &name, const QString &server, bool isShown);
    void post(const QString &name, const QImage &image);
    void take(const QString &name, const QImage &image);

    QString m_folder;
    QString m_server;
    QCache<QString, QIcon> m_icons{mostBytes};
    QSet<QString> m_requested; ///< On their way.
    QSet<QString> m_missing; ///< Could not be had: not asked for again with every repaint.
    int m_requests = 0;
    std::stop_source m_stop;
    // Last, because their destructors wait for the threads. Two, so that a server which does not
    // answer keeps no icon away that is in the folder; the readers start the fetchers.
    QThreadPool m_fetchers;
    QThreadPool m_readers;
};

#pragma once

#include <QHash>
#include <QIcon>
#include <QObject>
#include <QString>
#include <QThreadPool>

#include <stop_token>

class QImage;

/// The icons of the listed applications, by name: the program's own image of that name, else a file
/// in the folder, which is fetched from the server when missing. An icon has two files there,
/// `name` and, twice as dense, `name@2x`; the second one is fetched and kept, and never read. Files
/// are read and fetched on threads of their own, those requested last first; until then an icon is
/// null. Interface thread only.
class AppIcons : public QObject
{
    Q_OBJECT

public:
    /// Logical size of an icon; images are kept for screens of twice the density. All images of
    /// the longest list take up 16 MB, so none is ever dropped.
    static constexpr int side = 32;

    explicit AppIcons(const QString &folder, QObject *parent = nullptr);
    ~AppIcons() override; ///< Waits for what is being fetched to break off, about a second.

    /// The server's address; empty: nothing is fetched. Icons that could not be had are tried
    /// again.
    void setServer(const QString &server);

    /// Null while the icon is on its way, and for a name that leads to none.
    QIcon icon(const QString &name);

Q_SIGNALS:
    void arrived(const QString &name); ///< icon(name) is no longer null.

private:
    void readOrFetch(const QString &name, const QString &server, int priority);
    void fetch(const QString &name, const QString &server, bool isShown);
    void fetchFile(const QString &file, const QString &server) const;
    QImage read(const QString &name) const;
    QString pathOf(const QString &file) const;
    void post(const QString &name, const QImage &image);

    QString m_folder;
    QString m_server;
    QHash<QString, QIcon> m_icons; ///< With null icons for those on their way or not to be had.
    int m_requests = 0;
    std::stop_source m_stop;
    // Last, because their destructors wait for the threads. Two, so that a server which does not
    // answer holds up no icon that is in the folder; the readers start the fetchers.
    QThreadPool m_fetchers;
    QThreadPool m_readers;
};

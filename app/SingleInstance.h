#pragma once

#include "FileDescriptor.h"
#include "StartRequest.h"

#include <QObject>

#include <functional>
#include <memory>

class QSocketNotifier;

/// Makes a second start of the program turn to the first one's window. One program runs for a user,
/// a screen, a home folder and a set of settings: a window on another screen would help nobody, and
/// with another home folder it would work on other records.
///
/// The first start holds a lock, which goes with its process however that ends, and listens on a
/// socket beside it in the user's run-time folder. Only processes of the same user are heard.
/// Without such a folder, or when the first one gives no answer in time, every start stands alone.
/// Interface thread only.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    /// Does what a later start asks for. False: this program is about to end, so the later start
    /// is to take its place.
    using Handler = std::function<bool(const StartRequest &)>;

    /// Needs the application object: the screen is part of the name.
    explicit SingleInstance(QObject *parent = nullptr);
    ~SingleInstance() override;

    /// Hands the request to the program that runs already; true when that has done it, and nothing
    /// is left to do here. Else this program is the first from now on, if it can be. Blocks for
    /// three seconds at most.
    bool passOn(const StartRequest &request);
    /// From now on, what later starts ask for goes to the handler. Those who asked since passOn()
    /// have waited.
    void serve(Handler handler);

private:
    bool becomeFirst();
    void listen();
    bool ask(const QByteArray &message, int milliseconds) const;
    void meet();
    void answer(int peer);
    void retire();

    QByteArray m_path; ///< Of lock and socket, without their endings; empty: stand alone.
    FileDescriptor m_lock;
    FileDescriptor m_listener;
    std::unique_ptr<QSocketNotifier> m_notifier;
    Handler m_handler;
};

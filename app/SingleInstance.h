#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDeadlineTimer>
#include <QObject>
#include <QString>
#include <QVariant>

#include <functional>

/// What a start of the program is to show.
struct StartRequest {
    QString page; ///< Command name of a tool; empty: whatever is shown.
    /// With which the desktop lets the window take the focus; may be empty.
    QString activationToken;
};

/// Makes a second start of the program turn to the first one's window. One program runs for a user,
/// a screen, a home folder and a set of settings: a window on another screen would help nobody, and
/// with another home folder it would work on other records.
///
/// The first start owns a name on the session bus, which goes with its process however that ends,
/// and serves `org.freedesktop.Application` (Desktop Entry Specification, D-Bus activation).
/// Without a bus, or if the bus or the first program does not answer in time, every start is a
/// program of its own. Interface thread only.
class SingleInstance : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    /// Shows what a later start wants. False: this program is about to end, so the later start is
    /// to take its place.
    using Handler = std::function<bool(const StartRequest &)>;

    /// Needs the application object: the screen is part of the name.
    explicit SingleInstance(QObject *parent = nullptr);
    ~SingleInstance() override;

    /// Hands the request to the program that runs already. True if that program has shown it, and
    /// nothing is left to do here; else this program is the first from now on, if it can be. Call
    /// once, before the first window. Blocks for three seconds at most.
    bool passOn(const StartRequest &request);

    /// From now on, what later starts want goes to the handler. Those that came since passOn() have
    /// waited.
    void serve(Handler handler);

public Q_SLOTS: // called over the bus, by any program of this user
    void Activate(const QVariantMap &platformData);
    void ActivateAction(const QString &page, const QVariantList &parameters,
                        const QVariantMap &platformData);

private:
    bool joinBus(const QDeadlineTimer &deadline);
    bool takeName(const QDeadlineTimer &deadline) const;
    bool isShownByFirst(const StartRequest &request, const QDeadlineTimer &deadline) const;
    void show(const QString &page, const QVariantMap &platformData);

    QString m_name; ///< On the bus.
    QDBusConnection m_bus; ///< Not Qt's shared one, which may wait for its bus without end.
    Handler m_handler;
};

#include "WindowActivation.h"

#include "MiscTool.h"

#include <QApplication>
#include <QWidget>
#include <QWindow>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

using namespace Qt::StringLiterals;

namespace
{

template <typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

bool wasEverActive = false;

bool isWayland()
{
    return QGuiApplication::platformName().startsWith("wayland"_L1);
}

/// Null if the windows are on no X server.
xcb_connection_t *xConnection()
{
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

xcb_window_t rootWindow(xcb_connection_t *x)
{
    return xcb_setup_roots_iterator(xcb_get_setup(x)).data->root;
}

xcb_atom_t atom(xcb_connection_t *x, QLatin1StringView name)
{
    const auto asked = xcb_intern_atom(x, 0, static_cast<uint16_t>(name.size()), name.data());
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(x, asked, nullptr),
                                               &std::free);
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

xcb_window_t windowNamedBy(xcb_connection_t *x, xcb_window_t window, xcb_atom_t property)
{
    const auto asked = xcb_get_property(x, 0, window, property, XCB_ATOM_WINDOW, 0, 1);
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(x, asked, nullptr),
                                                &std::free);
    const bool isThere =
        reply && xcb_get_property_value_length(reply.get()) == sizeof(xcb_window_t);
    return isThere ? *static_cast<xcb_window_t *>(xcb_get_property_value(reply.get()))
                   : xcb_window_t(XCB_WINDOW_NONE);
}

// Extended Window Manager Hints: the root names a window of the window manager's, which names
// itself. Of a window manager that is gone, only the root's word is left.
bool hasWindowManager(xcb_connection_t *x)
{
    const xcb_atom_t check = atom(x, "_NET_SUPPORTING_WM_CHECK"_L1);
    const xcb_window_t manager = windowNamedBy(x, rootWindow(x), check);
    return manager != XCB_WINDOW_NONE && windowNamedBy(x, manager, check) == manager;
}

// A startup notification id ends with "_TIME" and the server's milliseconds.
xcb_timestamp_t timeOf(const QString &startupId)
{
    const qsizetype at = startupId.lastIndexOf("_TIME"_L1);
    return at < 0 ? XCB_CURRENT_TIME : startupId.mid(at + 5).toUInt();
}

// Qt's own request bears the time of our last key or click, for which window managers refuse it.
void requestActivation(xcb_connection_t *x, xcb_window_t window, xcb_timestamp_t time)
{
    constexpr uint32_t userWantsIt = 2; // not the program by itself
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = atom(x, "_NET_ACTIVE_WINDOW"_L1);
    message.data.data32[0] = userWantsIt;
    message.data.data32[1] = time;
    xcb_send_event(x, 0, rootWindow(x),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char *>(&message));
    xcb_flush(x);
}

} // namespace

void WindowActivation::watch()
{
    QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, qGuiApp,
                     [](const QWindow *window) { wasEverActive = wasEverActive || window; });
}

bool WindowActivation::isReported()
{
    xcb_connection_t *x = xConnection();
    return wasEverActive && (x ? hasWindowManager(x) : isWayland());
}

void WindowActivation::bringToFront(QWidget &window, const QString &token)
{
    // Qt reads the token from the environment with the request that follows.
    if (!token.isEmpty() && isWayland())
        qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    MiscTool::showWindow(&window);
    if (xcb_connection_t *x = xConnection())
        requestActivation(x, static_cast<xcb_window_t>(window.winId()), timeOf(token));
}

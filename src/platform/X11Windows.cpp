#include "X11Windows.h"

#include <QGuiApplication>
#include <xcb/xcb.h>

#include <cstring>
#include <memory>

namespace {

xcb_connection_t* connection()
{
    // Not qGuiApp: that casts a command-line tool's QCoreApplication as well.
    auto* app = qobject_cast<QGuiApplication*>(QCoreApplication::instance());
    if (!app) return nullptr;
    auto* x11 = app->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

struct FreeReply
{
    void operator()(void* reply) const { std::free(reply); }
};
template <typename T> using Reply = std::unique_ptr<T, FreeReply>;

xcb_atom_t atom(xcb_connection_t* c, const char* name)
{
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        c, xcb_intern_atom(c, 0, static_cast<uint16_t>(std::strlen(name)), name), nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

QByteArray property(xcb_connection_t* c, xcb_window_t window, xcb_atom_t name, xcb_atom_t type)
{
    const Reply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(c, xcb_get_property(c, 0, window, name, type, 0, 1 << 16), nullptr));
    if (!reply || reply->type == XCB_ATOM_NONE) return {};
    return QByteArray(static_cast<const char*>(xcb_get_property_value(reply.get())),
                      xcb_get_property_value_length(reply.get()));
}

xcb_window_t rootWindow(xcb_connection_t* c)
{
    const xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(c));
    return screens.rem > 0 ? screens.data->root : xcb_window_t(XCB_WINDOW_NONE);
}

// The window manager's list of managed windows; without a window manager, the root's children.
QList<xcb_window_t> topLevelWindows(xcb_connection_t* c, xcb_atom_t clientList)
{
    const xcb_window_t root = rootWindow(c);
    const QByteArray list = property(c, root, clientList, XCB_ATOM_WINDOW);
    QList<xcb_window_t> windows(list.size() / qsizetype(sizeof(xcb_window_t)));
    if (!windows.isEmpty()) {
        std::memcpy(windows.data(), list.constData(), windows.size() * sizeof(xcb_window_t));
        return windows;
    }
    const Reply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(c, xcb_query_tree(c, root), nullptr));
    if (!tree) return {};
    const xcb_window_t* children = xcb_query_tree_children(tree.get());
    return QList<xcb_window_t>(children, children + xcb_query_tree_children_length(tree.get()));
}

} // namespace

bool X11Windows::available()
{
    return connection() != nullptr;
}

quintptr X11Windows::find(const QString& title, const QString& className)
{
    xcb_connection_t* c = connection();
    if (!c) return 0;
    const xcb_atom_t wmName = atom(c, "_NET_WM_NAME");
    const xcb_atom_t utf8 = atom(c, "UTF8_STRING");
    const QList<xcb_window_t> windows = topLevelWindows(c, atom(c, "_NET_CLIENT_LIST"));
    for (const xcb_window_t window : windows) {
        QByteArray name = property(c, window, wmName, utf8);
        if (name.isEmpty()) name = property(c, window, XCB_ATOM_WM_NAME, XCB_ATOM_STRING);
        if (QString::fromUtf8(name) != title) continue;
        if (!className.isEmpty()) {
            // WM_CLASS holds the instance and then the class, each ended by a zero byte.
            const QList<QByteArray> parts =
                property(c, window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING).split('\0');
            if (parts.size() < 2 || QString::fromLocal8Bit(parts.at(1)) != className) continue;
        }
        return window;
    }
    return 0;
}

bool X11Windows::requestClose(quintptr window)
{
    xcb_connection_t* c = connection();
    if (!c || window == 0) return false;
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = static_cast<xcb_window_t>(window);
    message.type = atom(c, "WM_PROTOCOLS");
    message.data.data32[0] = atom(c, "WM_DELETE_WINDOW");
    message.data.data32[1] = XCB_CURRENT_TIME;
    xcb_send_event(c, 0, message.window, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char*>(&message));
    xcb_flush(c);
    return true;
}

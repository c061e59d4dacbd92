#include "platform/desk/DesktopWindows.h"

#include <QGuiApplication>
#include <QList>
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace {

struct Free {
    void operator()(void *reply) const { std::free(reply); }
};
template <class Reply>
using ReplyPointer = std::unique_ptr<Reply, Free>;

xcb_connection_t *Connection()
{
    // A program without windows has no application to ask.
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return nullptr;
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

xcb_window_t RootWindow(xcb_connection_t *connection)
{
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

xcb_atom_t Atom(xcb_connection_t *connection, const QByteArray &name)
{
    const ReplyPointer<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 0, quint16(name.size()), name.constData()), nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

QByteArray Property(xcb_connection_t *connection, xcb_window_t window, const QByteArray &name)
{
    constexpr quint32 greatestLength = 16384; // in units of four bytes
    const ReplyPointer<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        connection,
        xcb_get_property(connection, 0, window, Atom(connection, name), XCB_GET_PROPERTY_TYPE_ANY, 0, greatestLength),
        nullptr));
    if (!reply)
        return {};
    return QByteArray(static_cast<const char *>(xcb_get_property_value(reply.get())),
                      xcb_get_property_value_length(reply.get()));
}

/// A property that lists windows, atoms or numbers.
QList<quint32> NumbersProperty(xcb_connection_t *connection, xcb_window_t window, const QByteArray &name)
{
    const QByteArray bytes = Property(connection, window, name);
    QList<quint32> numbers(bytes.size() / qsizetype(sizeof(quint32)));
    std::copy_n(bytes.constData(), numbers.size() * qsizetype(sizeof(quint32)),
                reinterpret_cast<char *>(numbers.data()));
    return numbers;
}

/// The tree's answer for a window; its children stand bottom-most first.
ReplyPointer<xcb_query_tree_reply_t> Tree(xcb_connection_t *connection, xcb_window_t window)
{
    return ReplyPointer<xcb_query_tree_reply_t>(
        xcb_query_tree_reply(connection, xcb_query_tree(connection, window), nullptr));
}

ReplyPointer<xcb_get_geometry_reply_t> Geometry(xcb_connection_t *connection, xcb_window_t window)
{
    return ReplyPointer<xcb_get_geometry_reply_t>(
        xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
}

bool HasWindowManager(xcb_connection_t *connection)
{
    return !Property(connection, RootWindow(connection), "_NET_SUPPORTING_WM_CHECK").isEmpty();
}

/// The windows of all programs, oldest first where a window manager keeps the list.
QList<quint32> ProgramWindows(xcb_connection_t *connection)
{
    if (HasWindowManager(connection))
        return NumbersProperty(connection, RootWindow(connection), "_NET_CLIENT_LIST");
    const auto tree = Tree(connection, RootWindow(connection));
    if (!tree)
        return {};
    const xcb_window_t *children = xcb_query_tree_children(tree.get());
    return QList<quint32>(children, children + xcb_query_tree_children_length(tree.get()));
}

void Send(xcb_connection_t *connection, xcb_window_t receiver, quint32 mask, const xcb_client_message_event_t &event)
{
    xcb_send_event(connection, 0, receiver, mask, reinterpret_cast<const char *>(&event));
    // The program may end right after this; the answer to any question tells that the message has arrived.
    const ReplyPointer<xcb_get_input_focus_reply_t> arrived(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
}

xcb_client_message_event_t MessageTo(xcb_window_t window, xcb_atom_t type, quint32 first)
{
    xcb_client_message_event_t event = {};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = type;
    event.data.data32[0] = first;
    return event;
}

} // namespace

bool DesktopWindowsReachable()
{
    return Connection() != nullptr;
}

DesktopWindow FindDesktopWindow(qint64 processId, const QByteArray &instanceName)
{
    xcb_connection_t *connection = Connection();
    if (!connection)
        return 0;
    for (const quint32 window : ProgramWindows(connection)) {
        if (NumbersProperty(connection, window, "_NET_WM_PID") == QList<quint32>{quint32(processId)})
            return window;
        // The class property holds the instance name, a zero byte and the class name.
        if (Property(connection, window, "WM_CLASS").startsWith(instanceName + '\0'))
            return window;
    }
    return 0;
}

DesktopWindow ActiveDesktopWindow()
{
    xcb_connection_t *connection = Connection();
    return connection ? NumbersProperty(connection, RootWindow(connection), "_NET_ACTIVE_WINDOW").value(0) : 0;
}

void MoveDesktopWindow(DesktopWindow window, QPoint distance)
{
    xcb_connection_t *connection = Connection();
    if (!connection)
        return;
    // What stands on the desktop is the frame that the window manager has put around the window.
    const xcb_window_t root = RootWindow(connection);
    xcb_window_t frame = window;
    for (auto tree = Tree(connection, frame); tree && tree->parent != root && tree->parent != XCB_NONE;
         tree = Tree(connection, frame))
        frame = tree->parent;
    const auto place = Geometry(connection, frame);
    const auto desktop = Geometry(connection, root);
    if (!place || !desktop)
        return;
    const qint32 position[] = {
        qMax<qint32>(place->x, qMin(place->x + distance.x(), desktop->width - place->width)),
        qMax<qint32>(place->y, qMin(place->y + distance.y(), desktop->height - place->height)),
    };
    xcb_configure_window(connection, window, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, position);
    xcb_flush(connection);
}

void ActivateDesktopWindow(DesktopWindow window)
{
    xcb_connection_t *connection = Connection();
    if (!connection)
        return;
    if (!HasWindowManager(connection)) {
        const quint32 above = XCB_STACK_MODE_ABOVE;
        xcb_configure_window(connection, window, XCB_CONFIG_WINDOW_STACK_MODE, &above);
        xcb_set_input_focus(connection, XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
        xcb_flush(connection);
        return;
    }
    constexpr quint32 onBehalfOfTheUser = 2; // a wish of the program alone may be refused
    Send(connection, RootWindow(connection), XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
         MessageTo(window, Atom(connection, "_NET_ACTIVE_WINDOW"), onBehalfOfTheUser));
}

bool CloseDesktopWindow(DesktopWindow window)
{
    xcb_connection_t *connection = Connection();
    if (!connection)
        return false;
    const xcb_atom_t closing = Atom(connection, "WM_DELETE_WINDOW");
    if (!NumbersProperty(connection, window, "WM_PROTOCOLS").contains(closing))
        return false;
    Send(connection, window, XCB_EVENT_MASK_NO_EVENT, MessageTo(window, Atom(connection, "WM_PROTOCOLS"), closing));
    return true;
}

#include "platform/desk/DesktopWindows.h"

#include <QGuiApplication>
#include <QList>
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>
#include <xcb/xcb_ewmh.h>
#include <xcb/xcb_icccm.h>

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

constexpr int FirstScreen = 0;

xcb_window_t RootWindow(xcb_connection_t *connection)
{
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

/// The connection together with the names that window managers go by.
xcb_ewmh_connection_t *Manager(xcb_connection_t *connection)
{
    static xcb_ewmh_connection_t manager = {};
    if (manager.connection != connection)
        xcb_ewmh_init_atoms_replies(&manager, xcb_ewmh_init_atoms(connection, &manager), nullptr);
    return &manager;
}

xcb_atom_t Atom(xcb_connection_t *connection, const QByteArray &name)
{
    const ReplyPointer<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 0, quint16(name.size()), name.constData()), nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
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
    xcb_ewmh_connection_t *manager = Manager(connection);
    xcb_window_t window = 0;
    return xcb_ewmh_get_supporting_wm_check_reply(
        manager, xcb_ewmh_get_supporting_wm_check(manager, RootWindow(connection)), &window, nullptr);
}

/// The windows of all programs, oldest first where a window manager keeps the list.
QList<xcb_window_t> ProgramWindows(xcb_connection_t *connection)
{
    if (HasWindowManager(connection)) {
        xcb_ewmh_connection_t *manager = Manager(connection);
        xcb_ewmh_get_windows_reply_t list = {};
        if (!xcb_ewmh_get_client_list_reply(manager, xcb_ewmh_get_client_list(manager, FirstScreen), &list, nullptr))
            return {};
        const QList<xcb_window_t> windows(list.windows, list.windows + list.windows_len);
        xcb_ewmh_get_windows_reply_wipe(&list);
        return windows;
    }
    const auto tree = Tree(connection, RootWindow(connection));
    if (!tree)
        return {};
    const xcb_window_t *children = xcb_query_tree_children(tree.get());
    return QList<xcb_window_t>(children, children + xcb_query_tree_children_length(tree.get()));
}

bool IsOfProcess(xcb_connection_t *connection, xcb_window_t window, qint64 processId)
{
    xcb_ewmh_connection_t *manager = Manager(connection);
    quint32 process = 0;
    return xcb_ewmh_get_wm_pid_reply(manager, xcb_ewmh_get_wm_pid(manager, window), &process, nullptr) &&
           process == quint32(processId);
}

bool HasInstanceName(xcb_connection_t *connection, xcb_window_t window, const QByteArray &name)
{
    xcb_icccm_get_wm_class_reply_t names = {};
    if (!xcb_icccm_get_wm_class_reply(connection, xcb_icccm_get_wm_class(connection, window), &names, nullptr))
        return false;
    const bool same = names.instance_name == name;
    xcb_icccm_get_wm_class_reply_wipe(&names);
    return same;
}

/// Whether a window understands a message of the protocols between programs and window managers.
bool Understands(xcb_connection_t *connection, xcb_window_t window, xcb_atom_t message)
{
    xcb_icccm_get_wm_protocols_reply_t protocols = {};
    const auto question = xcb_icccm_get_wm_protocols(connection, window, Manager(connection)->WM_PROTOCOLS);
    if (!xcb_icccm_get_wm_protocols_reply(connection, question, &protocols, nullptr))
        return false;
    xcb_atom_t *const end = protocols.atoms + protocols.atoms_len;
    const bool understands = std::find(protocols.atoms, end, message) != end;
    xcb_icccm_get_wm_protocols_reply_wipe(&protocols);
    return understands;
}

/// The program may end right after a message; the answer to any question tells that the message has arrived.
void WaitForArrival(xcb_connection_t *connection)
{
    const ReplyPointer<xcb_get_input_focus_reply_t> arrived(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
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
    for (const xcb_window_t window : ProgramWindows(connection))
        if (IsOfProcess(connection, window, processId) || HasInstanceName(connection, window, instanceName))
            return window;
    return 0;
}

DesktopWindow ActiveDesktopWindow()
{
    xcb_connection_t *connection = Connection();
    if (!connection)
        return 0;
    xcb_ewmh_connection_t *manager = Manager(connection);
    xcb_window_t active = 0;
    xcb_ewmh_get_active_window_reply(manager, xcb_ewmh_get_active_window(manager, FirstScreen), &active, nullptr);
    return active;
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
    // A wish of the program alone may be refused, so it is told as the user's.
    xcb_ewmh_request_change_active_window(Manager(connection), FirstScreen, window, XCB_EWMH_CLIENT_SOURCE_TYPE_OTHER,
                                          XCB_CURRENT_TIME, XCB_NONE);
    WaitForArrival(connection);
}

bool CloseDesktopWindow(DesktopWindow window)
{
    xcb_connection_t *connection = Connection();
    if (!connection)
        return false;
    const xcb_atom_t closing = Atom(connection, "WM_DELETE_WINDOW");
    if (!Understands(connection, window, closing))
        return false;
    xcb_client_message_event_t event = {};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = Manager(connection)->WM_PROTOCOLS;
    event.data.data32[0] = closing;
    xcb_send_event(connection, 0, window, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char *>(&event));
    WaitForArrival(connection);
    return true;
}

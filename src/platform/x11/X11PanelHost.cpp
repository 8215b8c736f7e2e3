#include "platform/x11/X11PanelHost.h"

#include "platform/x11/WindowConnection.h"

#include <QGuiApplication>

#include <xcb/shape.h>
#include <xcb/xfixes.h>

#include <array>
#include <utility>
#include <vector>

namespace vantle {

namespace {

xcb_window_t focus(xcb_connection_t* connection) {
    const XcbOwned<xcb_get_input_focus_reply_t> answer(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    return answer ? answer->focus : XCB_NONE;
}

/// Returns whether the window could take the focus.
bool setFocus(xcb_connection_t* connection, xcb_window_t window) {
    const XcbOwned<xcb_generic_error_t> error(xcb_request_check(
        connection,
        xcb_set_input_focus_checked(connection, XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME)));
    return !error;
}

/// A Wayland compositor assigns the keyboard when a window is mapped.
void remap(xcb_connection_t* connection, xcb_window_t window) {
    xcb_unmap_window(connection, window);
    xcb_map_window(connection, window);
    xcb_flush(connection);
}

/// Rounds outward to device pixels.
QRect toDevice(const QRect& rect, double ratio) {
    const int left = qRound(rect.x() * ratio);
    const int top = qRound(rect.y() * ratio);
    const int right = qRound((rect.x() + rect.width()) * ratio);
    const int bottom = qRound((rect.y() + rect.height()) * ratio);
    return {left, top, right - left, bottom - top};
}

xcb_rectangle_t toXcb(const QRect& rect) {
    return {static_cast<std::int16_t>(rect.x()), static_cast<std::int16_t>(rect.y()),
            static_cast<std::uint16_t>(rect.width()), static_cast<std::uint16_t>(rect.height())};
}

} // namespace

X11PanelHost::X11PanelHost(X11Connection& x11, Scheduler& scheduler, X11RawPresses& presses,
                           const XwaylandTraits& xwayland)
    : m_x11(x11)
    , m_scheduler(scheduler)
    , m_presses(presses)
    , m_xwayland(xwayland) {
    if (m_xwayland.isXwayland)
        m_composited = true;
    else if (m_x11.isAlive())
        followCompositor();
}

void X11PanelHost::followCompositor() {
    const xcb_atom_t selection = atom("_NET_WM_CM_S" + QByteArray::number(m_x11.screen()));
    if (const auto* const fixes = m_x11.extension(xcb_xfixes_id)) {
        // The extension must be negotiated before the server sends events.
        (void)m_x11.reply<xcb_xfixes_query_version_reply>(
            xcb_xfixes_query_version(m_x11.xcb(), 1, 0));
        const auto type =
            static_cast<std::uint8_t>(fixes->first_event + XCB_XFIXES_SELECTION_NOTIFY);
        m_compositorChanges = m_x11.subscribe(type, [this, selection](const auto& event) {
            const auto& change =
                reinterpret_cast<const xcb_xfixes_selection_notify_event_t&>(event);
            if (change.selection == selection) setComposited(change.owner != XCB_NONE);
        });
        // A compositor that crashes does not release the selection; its window or connection goes.
        xcb_xfixes_select_selection_input(
            m_x11.xcb(), m_x11.root(), selection,
            XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    }
    const auto owner =
        m_x11.reply<xcb_get_selection_owner_reply>(xcb_get_selection_owner(m_x11.xcb(), selection));
    m_composited = owner && owner->owner != XCB_NONE;
}

void X11PanelHost::setComposited(bool composited) {
    if (std::exchange(m_composited, composited) != composited) Q_EMIT compositedChanged();
}

/// Override-redirect: a window manager would frame it, list it, put it on a workspace and focus it
/// at each click, and not raise it above full-screen windows.
Qt::WindowFlags X11PanelHost::flagsFor(const Placement& placement) const {
    return PanelHost::flagsFor(placement) | Qt::X11BypassWindowManagerHint;
}

QRect X11PanelHost::place(QWindow& window, const Placement& placement) {
    const bool isNew = window.handle() == nullptr;
    const QRect part = PanelHost::place(window, placement);
    // X11 window managers ignore these windows. Some Wayland compositors focus each of them unless
    // its type never takes the keyboard.
    if (isNew && m_xwayland.isXwayland) setType(window, "_NET_WM_WINDOW_TYPE_NOTIFICATION");
    return part;
}

void X11PanelHost::setType(QWindow& window, const QByteArray& name) {
    xcb_connection_t* const connection = windowConnection();
    if (connection == nullptr) return;
    const xcb_atom_t type = atom(name);
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE,
                        static_cast<xcb_window_t>(window.winId()), atom("_NET_WM_WINDOW_TYPE"),
                        XCB_ATOM_ATOM, 32, 1, &type);
    xcb_flush(connection);
}

void X11PanelHost::setInputRegion(QWindow& window, const QRegion& region) {
    xcb_connection_t* const connection = windowConnection();
    if (connection == nullptr) return;
    const auto* shape = xcb_get_extension_data(connection, &xcb_shape_id);
    if (shape == nullptr || shape->present == 0) return;
    std::vector<xcb_rectangle_t> rectangles;
    for (const QRect& rect : region)
        rectangles.push_back(toXcb(toDevice(rect, window.devicePixelRatio())));
    xcb_shape_rectangles(connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT,
                         XCB_CLIP_ORDERING_UNSORTED, static_cast<xcb_window_t>(window.winId()), 0,
                         0, static_cast<std::uint32_t>(rectangles.size()), rectangles.data());
    xcb_flush(connection);
}

std::unique_ptr<PointerSensor> X11PanelHost::senseAt(const Placement& panel, const QRect& part,
                                                     std::function<void()> rested) {
    // Xwayland knows the pointer only over X11 windows, and ignores input-only windows.
    if (!m_x11.isAlive() || m_xwayland.isXwayland) return nullptr;
    const QRect place =
        toDevice(part.translated(panel.ground().topLeft()), qGuiApp->devicePixelRatio());
    if (!std::exchange(m_pointerIdleIsKnown, true))
        m_pointerIdle = X11PointerIdle::of(m_x11, m_presses);
    if (!m_pointerIdle) return std::make_unique<X11WindowSensor>(m_x11, place, std::move(rested));
    return std::make_unique<X11RestSensor>(m_x11, m_scheduler, m_presses, *m_pointerIdle, place,
                                           std::move(rested));
}

void X11PanelHost::takeKeyboard(QWindow& window) {
    xcb_connection_t* const connection = windowConnection();
    if (connection == nullptr) return;
    const auto id = static_cast<xcb_window_t>(window.winId());
    if (m_xwayland.isXwayland) return takeKeyboardFromCompositor(window);
    const xcb_window_t before = focus(connection);
    if (before == id || !setFocus(connection, id)) return;
    m_before[window.winId()] = before;
}

void X11PanelHost::returnKeyboard(QWindow& window) {
    xcb_connection_t* const connection = windowConnection();
    const auto found = m_before.find(window.winId());
    if (found == m_before.end()) return;
    const xcb_window_t before = found->second;
    m_before.erase(found);
    if (m_xwayland.isXwayland) return returnKeyboardToCompositor(window);
    if (connection == nullptr || focus(connection) != static_cast<xcb_window_t>(window.winId()))
        return;
    if (before == XCB_NONE || !setFocus(connection, before)) {
        const xcb_window_t active = activeWindow();
        if (active == XCB_NONE || !setFocus(connection, active))
            (void)setFocus(connection, XCB_INPUT_FOCUS_POINTER_ROOT);
    }
}

void X11PanelHost::takeKeyboardFromCompositor(QWindow& window) {
    xcb_connection_t* const connection = windowConnection();
    const auto id = static_cast<xcb_window_t>(window.winId());
    // It has the keyboard already.
    if (!m_before.try_emplace(window.winId(), XCB_NONE).second) return;
    setType(window, "_NET_WM_WINDOW_TYPE_NORMAL");
    remap(connection, id);
    // The grab tells Qt's window that it has the focus. Compositors that focus only managed windows
    // would take the X focus back at once.
    const XcbOwned<xcb_grab_keyboard_reply_t> grabbed(
        xcb_grab_keyboard_reply(connection,
                                xcb_grab_keyboard(connection, 1, id, XCB_CURRENT_TIME,
                                                  XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
                                nullptr));
}

void X11PanelHost::returnKeyboardToCompositor(QWindow& window) {
    xcb_connection_t* const connection = windowConnection();
    if (connection == nullptr) return;
    xcb_ungrab_keyboard(connection, XCB_CURRENT_TIME);
    setType(window, "_NET_WM_WINDOW_TYPE_NOTIFICATION");
    if (window.isVisible()) remap(connection, static_cast<xcb_window_t>(window.winId()));
}

xcb_atom_t X11PanelHost::atom(const QByteArray& name) {
    return m_x11.atoms(std::array{name.constData()}).front();
}

xcb_window_t X11PanelHost::activeWindow() {
    const auto answer = m_x11.reply<xcb_get_property_reply>(xcb_get_property(
        m_x11.xcb(), 0, m_x11.root(), atom("_NET_ACTIVE_WINDOW"), XCB_ATOM_WINDOW, 0, 1));
    const auto active = numbersOf(answer.get());
    return active.empty() ? static_cast<xcb_window_t>(XCB_NONE) : active.front();
}

} // namespace vantle

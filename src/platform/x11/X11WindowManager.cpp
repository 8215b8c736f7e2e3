#include "platform/x11/X11WindowManager.h"

#include "platform/x11/WindowConnection.h"

#include <QByteArrayView>

#include <algorithm>
#include <utility>

namespace vantle {

namespace {

/// Longest property read, in 32-bit units. Lists of supported features have some hundred.
constexpr std::uint32_t kLongestList = 1024;

/// "All desktops" in _NET_WM_DESKTOP.
constexpr std::uint32_t kAllDesktops = 0xFFFFFFFF;

/// Source indication: an application, not a pager.
constexpr std::uint32_t kFromApplication = 1;

constexpr std::array<const char*, 8> kManagerAtoms{
    "_NET_SUPPORTED",       "_NET_SUPPORTING_WM_CHECK", "_NET_WM_NAME",
    "_NET_WM_STATE_HIDDEN", "_NET_WM_ACTION_MINIMIZE",  "_NET_ACTIVE_WINDOW",
    "_NET_CURRENT_DESKTOP", "_NET_WM_DESKTOP",
};

/// Window managers that minimise without listing the action. Others, such as i3 and bspwm, list
/// only the hidden state and refuse the request.
constexpr std::array<QByteArrayView, 2> kMinimiseSilently{"awesome", "qtile"};

} // namespace

X11WindowManager::X11WindowManager(X11Connection& x11) : m_x11(x11) {
    if (!m_x11.isAlive()) return;
    static_assert(kManagerAtoms.size() == AtomCount);
    m_atoms = m_x11.atoms(kManagerAtoms);
    m_properties = m_x11.subscribe(XCB_PROPERTY_NOTIFY, [this](const auto& event) {
        handleProperty(reinterpret_cast<const xcb_property_notify_event_t&>(event));
    });
    // A crashed window manager leaves its properties on the root window.
    m_ends = m_x11.subscribe(XCB_DESTROY_NOTIFY, [this](const auto& event) {
        if (reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window == m_check) refresh();
    });
    m_x11.followRootProperties();
    refresh();
}

void X11WindowManager::handleProperty(const xcb_property_notify_event_t& change) {
    if (change.window == m_clock && m_clock != XCB_NONE) return activate(change.time);
    if (change.window != m_x11.root() && change.window != m_check) return;
    if (change.atom == m_atoms[Supported] || change.atom == m_atoms[SupportingCheck] ||
        change.atom == m_atoms[Name])
        refresh();
}

void X11WindowManager::refresh() {
    m_supported = isThere() ? numbers(m_x11.root(), Supported) : std::vector<std::uint32_t>();
    const bool can = servesMinimise();
    if (std::exchange(m_canMinimise, can) != can) Q_EMIT changed();
}

bool X11WindowManager::isThere() {
    const auto named = numbers(m_x11.root(), SupportingCheck);
    m_check = named.empty() ? XCB_NONE : named.front();
    if (m_check == XCB_NONE) return false;
    const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(m_x11.xcb(), m_check, XCB_CW_EVENT_MASK, &mask);
    return numbers(m_check, SupportingCheck) == named; // otherwise it is a leftover
}

bool X11WindowManager::servesMinimise() {
    const auto lists = [this](Atom name) {
        return std::ranges::find(m_supported, m_atoms[name]) != m_supported.end();
    };
    if (lists(ActionMinimise)) return true;
    if (!lists(StateHidden)) return false;
    const auto answer = m_x11.reply<xcb_get_property_reply>(
        xcb_get_property(m_x11.xcb(), 0, m_check, m_atoms[Name], XCB_GET_PROPERTY_TYPE_ANY, 0, 16));
    const QByteArrayView name = bytesOf(answer.get());
    return std::ranges::any_of(kMinimiseSilently, [&](QByteArrayView known) {
        return name.size() == known.size() &&
               qstrnicmp(name.data(), known.data(), static_cast<std::size_t>(name.size())) == 0;
    });
}

std::vector<std::uint32_t> X11WindowManager::numbers(xcb_window_t window, Atom name) {
    const auto answer = m_x11.reply<xcb_get_property_reply>(xcb_get_property(
        m_x11.xcb(), 0, window, m_atoms[name], XCB_GET_PROPERTY_TYPE_ANY, 0, kLongestList));
    const auto found = numbersOf(answer.get());
    return {found.begin(), found.end()};
}

void X11WindowManager::bringToUser(QWindow& window) {
    const bool serves = m_x11.isAlive() && !m_supported.empty();
    if (serves && window.handle() != nullptr)
        moveToCurrentDesktop(static_cast<xcb_window_t>(window.winId()));
    WindowManager::bringToUser(window);
    if (!serves) return;
    // Qt's request has the time of the last event that it received. If the user has typed into
    // another application since, window managers treat it as focus stealing.
    m_activated = &window;
    askForTime();
}

void X11WindowManager::moveToCurrentDesktop(xcb_window_t window) {
    const auto current = numbers(m_x11.root(), CurrentDesktop);
    const auto own = numbers(window, DesktopOfWindow);
    if (current.empty() || own.empty() || own == current || own.front() == kAllDesktops) return;
    send(window, DesktopOfWindow, {current.front(), kFromApplication, 0, 0, 0});
}

void X11WindowManager::askForTime() {
    if (m_clock == XCB_NONE) {
        const std::array<std::uint32_t, 2> values = {1, XCB_EVENT_MASK_PROPERTY_CHANGE};
        m_clock = xcb_generate_id(m_x11.xcb());
        xcb_create_window(m_x11.xcb(), XCB_COPY_FROM_PARENT, m_clock, m_x11.root(), -1, -1, 1, 1, 0,
                          XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT,
                          XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values.data());
    }
    // An empty append is reported with the server's time too.
    xcb_change_property(m_x11.xcb(), XCB_PROP_MODE_APPEND, m_clock, XCB_ATOM_WM_NAME,
                        XCB_ATOM_STRING, 8, 0, nullptr);
    m_x11.flush();
}

void X11WindowManager::activate(xcb_timestamp_t time) {
    const QPointer<QWindow> window = std::exchange(m_activated, nullptr);
    if (!window || window->handle() == nullptr || !window->isVisible()) return;
    send(static_cast<xcb_window_t>(window->winId()), ActiveWindow,
         {kFromApplication, time, XCB_NONE, 0, 0});
}

void X11WindowManager::send(xcb_window_t window, Atom name,
                            const std::array<std::uint32_t, 5>& data) {
    xcb_connection_t* const connection = windowConnection();
    if (connection == nullptr) return;
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = m_atoms[name];
    std::ranges::copy(data, message.data.data32);
    xcb_send_event(connection, 0, m_x11.root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&message));
    xcb_flush(connection);
}

} // namespace vantle

#include "platform/x11/X11FrontmostApp.h"

namespace vantle {

X11FrontmostApp::X11FrontmostApp(X11Connection& connection, Scheduler& scheduler,
                                 IdentityResolver resolve, AppCoverage most)
    : m_connection(connection)
    , m_scheduler(scheduler)
    , m_reader(connection)
    , m_resolve(std::move(resolve))
    , m_most(most) {
    follow();
    refreshCoverage();
    refresh(); // no listener yet
    connect(&m_connection, &X11Connection::broken, this, [this] {
        m_none.reset();
        setCoverage(AppCoverage::None);
        adopt(std::nullopt);
    });
}

void X11FrontmostApp::follow() {
    if (!m_connection.isAlive()) return;
    m_properties = m_connection.subscribe(XCB_PROPERTY_NOTIFY, [this](const auto& event) {
        handleProperty(reinterpret_cast<const xcb_property_notify_event_t&>(event));
    });
    m_ends = m_connection.subscribe(XCB_DESTROY_NOTIFY, [this](const auto& event) {
        const auto& end = reinterpret_cast<const xcb_destroy_notify_event_t&>(event);
        if (end.window != m_window) return;
        m_window = XCB_NONE;
        waitForNone(); // the window manager may set another one shortly
    });
    m_connection.followRootProperties();
}

void X11FrontmostApp::followWindow(xcb_window_t window) {
    // An error for a destroyed window is ignored, so nothing waits for it.
    const auto select = [this](xcb_window_t of, std::uint32_t mask) {
        if (of == XCB_NONE || of == m_connection.root()) return;
        xcb_change_window_attributes(m_connection.xcb(), of, XCB_CW_EVENT_MASK, &mask);
    };
    if (window != m_window) select(m_window, XCB_EVENT_MASK_NO_EVENT);
    // Even with the same number as before: that window may be gone and this one new.
    select(window, XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    m_window = window;
}

void X11FrontmostApp::handleProperty(const xcb_property_notify_event_t& change) {
    if (change.window == m_connection.root()) {
        if (change.atom == m_reader.activeWindowAtom()) refresh();
        if (change.atom == m_reader.supportedAtom()) refreshCoverage();
    } else if (change.window == m_window && m_reader.isIdentity(change.atom)) {
        refresh();
    }
}

void X11FrontmostApp::refresh() {
    const xcb_window_t window = m_reader.activeWindow();
    if (window == XCB_NONE) {
        waitForNone();
        return;
    }
    m_none.reset();
    followWindow(window); // before reading, so that no change is missed
    adopt(applicationOf(window));
}

void X11FrontmostApp::waitForNone() {
    if (m_none || !m_connection.isAlive()) return;
    m_none = m_scheduler.scheduleOnce(noneIsBelievedAfter, [this] {
        m_none.reset();
        const xcb_window_t window = m_reader.activeWindow();
        if (window != XCB_NONE) return adopt(applicationOf(window));
        followWindow(XCB_NONE);
        if (!oursHasTheKeyboard()) adopt(std::nullopt);
    });
}

void X11FrontmostApp::adopt(std::optional<Application> application) {
    const auto former = std::exchange(m_application, std::move(application));
    if (!sameApplication(former, m_application)) Q_EMIT activated(m_application);
}

std::optional<Application> X11FrontmostApp::frontmost() {
    const xcb_window_t window = m_reader.activeWindow();
    if (window == XCB_NONE) return oursHasTheKeyboard() ? m_application : std::nullopt;
    return window == m_window ? m_application : applicationOf(window);
}

bool X11FrontmostApp::oursHasTheKeyboard() {
    const auto hints = m_reader.readFocus();
    return hints && isOurs(*hints);
}

void X11FrontmostApp::refreshCoverage() {
    setCoverage(m_reader.tellsActiveWindow() ? m_most : AppCoverage::None);
}

void X11FrontmostApp::setCoverage(AppCoverage coverage) {
    if (std::exchange(m_coverage, coverage) != coverage) Q_EMIT coverageChanged();
}

std::optional<Application> X11FrontmostApp::applicationOf(xcb_window_t window) {
    const auto hints = m_reader.read(window);
    if (!hints) return std::nullopt;
    if (isOurs(*hints)) return ourselves();
    return m_resolve(*hints);
}

} // namespace vantle

#include "platform/x11/X11FrontmostApp.h"

#include <QCoreApplication>

namespace vantle {

namespace {

Application ourselves() {
    return {QStringLiteral("local.vantle.Vantle"), QStringLiteral("Vantle")};
}

/// Two applications that the tables know as one are one: a switch between them is none.
bool sameApplication(const std::optional<Application>& a, const std::optional<Application>& b) {
    if (!a || !b) return a.has_value() == b.has_value();
    return a->bundleId == b->bundleId;
}

} // namespace

X11FrontmostApp::X11FrontmostApp(X11Connection& connection, IdentityResolver resolve)
    : m_connection(connection)
    , m_reader(connection)
    , m_resolve(std::move(resolve)) {
    follow();
    refreshCoverage();
    refresh(); // nobody listens yet
    connect(&m_connection, &X11Connection::broken, this, [this] {
        setCoverage(AppCoverage::None);
        if (!std::exchange(m_application, std::nullopt)) return;
        Q_EMIT activated(std::nullopt);
    });
}

void X11FrontmostApp::follow() {
    if (!m_connection.isAlive()) return;
    m_properties =
        m_connection.subscribe(XCB_PROPERTY_NOTIFY, [this](const xcb_generic_event_t& event) {
            const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
            if (change.window != m_connection.root()) return;
            if (change.atom == m_reader.activeWindowAtom()) refresh();
            if (change.atom == m_reader.supportedAtom()) refreshCoverage();
        });
    const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(m_connection.xcb(), m_connection.root(), XCB_CW_EVENT_MASK, &mask);
    m_connection.flush();
}

void X11FrontmostApp::refresh() {
    const xcb_window_t window = m_reader.activeWindow();
    if (window == XCB_NONE) return;
    const auto former = std::exchange(m_application, applicationOf(window));
    if (!sameApplication(former, m_application)) Q_EMIT activated(m_application);
}

void X11FrontmostApp::refreshCoverage() {
    setCoverage(m_reader.tellsActiveWindow() ? AppCoverage::All : AppCoverage::None);
}

void X11FrontmostApp::setCoverage(AppCoverage coverage) {
    if (std::exchange(m_coverage, coverage) != coverage) Q_EMIT coverageChanged();
}

std::optional<Application> X11FrontmostApp::applicationOf(xcb_window_t window) {
    const auto hints = m_reader.read(window);
    if (!hints) return std::nullopt;
    if (hints->processId == QCoreApplication::applicationPid()) return ourselves();
    return m_resolve(*hints);
}

} // namespace vantle

#include "platform/x11/X11HotKey.h"

namespace vantle {

namespace {

constexpr int kBadAccess = 10; ///< X error: another client holds the grab
constexpr Seconds kRetryInterval{10.0};
constexpr Seconds kRetryTolerance{2.0};

template <typename Event>
const Event& as(const xcb_generic_event_t& event) {
    return reinterpret_cast<const Event&>(event);
}

} // namespace

X11HotKey::X11HotKey(X11Connection& connection, Scheduler& scheduler)
    : m_connection(connection)
    , m_scheduler(scheduler) {}

X11HotKey::~X11HotKey() { unregisterKey(); }

int X11HotKey::installHandler(std::function<void()> pressed) {
    if (!m_connection.isAlive()) return kNoConnection;
    m_pressed = std::make_shared<std::function<void()>>(std::move(pressed));
    m_presses = m_connection.subscribe(XCB_KEY_PRESS, [this](const auto& event) {
        handlePress(as<xcb_key_press_event_t>(event));
    });
    m_releases = m_connection.subscribe(XCB_KEY_RELEASE, [this](const auto& event) {
        handleRelease(as<xcb_key_release_event_t>(event));
    });
    return 0;
}

void X11HotKey::removeHandler() {
    m_presses = {};
    m_releases = {};
    m_pressed.reset();
}

HotKeyPort::Outcome X11HotKey::registerKey() {
    if (m_grabbed) return {Registration::Registered, 0};
    m_outcome = grabAtItsPlace();
    if (!m_grabbed) return m_outcome;
    m_registered = true;
    m_retry.reset();
    m_mappings = m_connection.subscribe(XCB_MAPPING_NOTIFY, [this](const auto& event) {
        if (as<xcb_mapping_notify_event_t>(event).request != XCB_MAPPING_POINTER) handleMapping();
    });
    return m_outcome;
}

void X11HotKey::unregisterKey() {
    m_registered = false;
    m_mappings = {};
    m_retry.reset();
    ungrab();
}

HotKeyPort::Outcome X11HotKey::grabAtItsPlace() {
    if (!m_connection.isAlive()) return {Registration::Failed, kNoConnection};
    const auto combination = X11KeyCombination::altSuperB(m_connection);
    if (!combination) return {Registration::Failed, kNoSuchKey};
    return grab(*combination);
}

HotKeyPort::Outcome X11HotKey::grab(const X11KeyCombination& combination) {
    m_grabbed = combination; // set first, so that a failure half-way releases what was grabbed
    for (const auto code : combination.codes) {
        for (const auto locks : combination.lockStates) {
            const int status = m_connection.check(xcb_grab_key_checked(
                m_connection.xcb(), 0, m_connection.root(), combination.modifiers | locks, code,
                XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
            if (status == 0) continue;
            ungrab();
            if (status == kBadAccess) return {Registration::HeldByAnother, 0};
            return {Registration::Failed, status};
        }
    }
    m_repeats = {};
    return {Registration::Registered, 0};
}

void X11HotKey::ungrab() {
    if (!m_grabbed) return;
    for (const auto code : m_grabbed->codes)
        for (const auto locks : m_grabbed->lockStates)
            xcb_ungrab_key(m_connection.xcb(), code, m_connection.root(),
                           m_grabbed->modifiers | locks);
    m_connection.flush();
    m_grabbed.reset();
}

void X11HotKey::handleMapping() {
    if (m_grabbed && X11KeyCombination::altSuperB(m_connection) == m_grabbed) return;
    ungrab();
    regrab();
}

void X11HotKey::regrab() {
    const Outcome outcome = grabAtItsPlace();
    if (m_grabbed)
        m_retry.reset();
    else if (!m_retry)
        m_retry = m_scheduler.scheduleRepeatingTimer(kRetryInterval, kRetryTolerance,
                                                     [this] { regrab(); });
    if (std::exchange(m_outcome, outcome) != outcome && onOutcomeChanged) onOutcomeChanged(outcome);
}

void X11HotKey::handlePress(const xcb_key_press_event_t& event) {
    // While the combination is held, all keys arrive here; others are ignored.
    if (!m_grabbed || !m_grabbed->matches(event.detail, event.state)) return;
    if (!m_repeats.pressed(event.detail, event.time)) return;
    m_scheduler.post([handler = std::weak_ptr(m_pressed)] {
        if (const auto pressed = handler.lock()) (*pressed)();
    });
}

void X11HotKey::handleRelease(const xcb_key_release_event_t& event) {
    // Regardless of modifiers, which may be released before the letter.
    if (m_grabbed && m_grabbed->hasCode(event.detail)) m_repeats.released(event.detail, event.time);
}

} // namespace vantle

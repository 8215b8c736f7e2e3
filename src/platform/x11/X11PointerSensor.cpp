#include "platform/x11/X11PointerSensor.h"

#include <xcb/xinput.h>

#include <array>
#include <cstddef>
#include <limits>
#include <string>
#include <string_view>
#include <utility>

namespace vantle {

namespace {

constexpr double kMsInSecond = 1000;
constexpr std::uint16_t kAnyButton = XCB_BUTTON_MASK_1 | XCB_BUTTON_MASK_2 | XCB_BUTTON_MASK_3 |
                                     XCB_BUTTON_MASK_4 | XCB_BUTTON_MASK_5;
constexpr std::uint32_t kLastButton = 3; // higher buttons are the wheel

/// The counter's name from the raw reply: xcb's accessor misses two letters.
std::string_view nameOf(const xcb_sync_systemcounter_t& counter) {
    const auto* const start = reinterpret_cast<const char*>(&counter);
    return {start + offsetof(xcb_sync_systemcounter_t, name_len) + sizeof counter.name_len,
            counter.name_len};
}

/// Returns the id of the first master pointer; 0 when there is none.
std::uint16_t firstPointer(const xcb_input_xi_query_device_reply_t& devices) {
    auto each = xcb_input_xi_query_device_infos_iterator(&devices);
    for (; each.rem > 0; xcb_input_xi_device_info_next(&each))
        if (each.data->type == XCB_INPUT_DEVICE_TYPE_MASTER_POINTER) return each.data->deviceid;
    return 0;
}

} // namespace

std::optional<X11PointerIdle> X11PointerIdle::of(X11Connection& x11, X11RawPresses& presses) {
    if (!presses.isAvailable()) return std::nullopt;
    const auto* const sync = x11.extension(xcb_sync_id);
    if (sync == nullptr) return std::nullopt;
    // The extension's required first request.
    (void)x11.reply<xcb_sync_initialize_reply>(xcb_sync_initialize(x11.xcb(), 3, 1));
    const auto counters =
        x11.reply<xcb_sync_list_system_counters_reply>(xcb_sync_list_system_counters(x11.xcb()));
    const auto devices = x11.reply<xcb_input_xi_query_device_reply>(
        xcb_input_xi_query_device(x11.xcb(), XCB_INPUT_DEVICE_ALL_MASTER));
    if (!counters || !devices) return std::nullopt;
    const std::string name = "DEVICEIDLETIME " + std::to_string(firstPointer(*devices));
    auto each = xcb_sync_list_system_counters_counters_iterator(counters.get());
    for (; each.rem > 0; xcb_sync_systemcounter_next(&each))
        if (nameOf(*each.data) == name)
            return X11PointerIdle{
                each.data->counter,
                static_cast<std::uint8_t>(sync->first_event + XCB_SYNC_ALARM_NOTIFY)};
    return std::nullopt;
}

X11RestSensor::X11RestSensor(X11Connection& x11, Scheduler& scheduler, X11RawPresses& presses,
                             const X11PointerIdle& idle, const QRect& part,
                             std::function<void()> rested)
    : m_x11(x11)
    , m_scheduler(scheduler)
    , m_idle(idle)
    , m_part(part)
    , m_rested(std::move(rested))
    , m_alarm(xcb_generate_id(x11.xcb()))
    , m_unmapped(xcb_generate_id(x11.xcb()))
    , m_next(scheduler.scheduleOnce(Seconds(0), [this] { look(false); }))
    , m_alarms(x11.subscribe(idle.alarmEvent,
                             [this](const xcb_generic_event_t& event) {
                                 const auto& alarm =
                                     reinterpret_cast<const xcb_sync_alarm_notify_event_t&>(event);
                                 if (alarm.alarm == m_alarm) look(false);
                             }))
    , m_presses(presses.watch([this](std::uint32_t button) {
        if (button <= kLastButton || m_isInside) look(true);
    })) {
    makeAlarm();
    xcb_create_window(m_x11.xcb(), XCB_COPY_FROM_PARENT, m_unmapped, m_x11.root(), 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    m_x11.flush();
}

X11RestSensor::~X11RestSensor() {
    xcb_sync_destroy_alarm(m_x11.xcb(), m_alarm);
    xcb_destroy_window(m_x11.xcb(), m_unmapped);
    m_x11.flush();
}

/// An alarm for the first use of the pointer after a rest.
void X11RestSensor::makeAlarm() {
    xcb_sync_create_alarm_value_list_t values{};
    values.counter = m_idle.counter;
    values.valueType = XCB_SYNC_VALUETYPE_ABSOLUTE;
    values.value.lo = static_cast<std::uint32_t>(rest.count() * kMsInSecond);
    values.testType = XCB_SYNC_TESTTYPE_NEGATIVE_TRANSITION;
    values.events = 1;
    xcb_sync_create_alarm_aux(m_x11.xcb(), m_alarm,
                              XCB_SYNC_CA_COUNTER | XCB_SYNC_CA_VALUE_TYPE | XCB_SYNC_CA_VALUE |
                                  XCB_SYNC_CA_TEST_TYPE | XCB_SYNC_CA_DELTA | XCB_SYNC_CA_EVENTS,
                              &values);
    m_x11.flush();
}

void X11RestSensor::look(bool isPressed) {
    const auto place = xcb_query_pointer(m_x11.xcb(), m_x11.root());
    const auto count = xcb_sync_query_counter(m_x11.xcb(), m_idle.counter);
    const auto pointer = m_x11.reply<xcb_query_pointer_reply>(place);
    const auto counter = m_x11.reply<xcb_sync_query_counter_reply>(count);
    m_next.reset();
    if (!pointer || !counter) return;
    m_isInside = pointer->same_screen != 0 && m_part.contains(pointer->root_x, pointer->root_y);
    if (!m_isInside)
        m_isDone = false;
    else if (isPressed || (pointer->mask & kAnyButton) != 0)
        m_isDone = true;
    const std::uint32_t ms = counter->counter_value.hi == 0
                                 ? counter->counter_value.lo
                                 : std::numeric_limits<std::uint32_t>::max();
    const Seconds still(ms / kMsInSecond);
    if (still < rest) {
        m_next = m_scheduler.scheduleOnce(rest - still, [this] { look(false); });
        return;
    }
    if (!m_isInside || m_isDone || isGrabbed()) return;
    m_isDone = true;
    const auto tell = m_rested; // the sensor may be destroyed meanwhile
    tell();
}

/// Whether another client has grabbed the pointer, which only an attempt to grab it shows. The
/// window is not mapped, so the attempt fails either way: a grab that succeeded would swallow a
/// press in that moment.
bool X11RestSensor::isGrabbed() {
    const auto answer = m_x11.reply<xcb_grab_pointer_reply>(
        xcb_grab_pointer(m_x11.xcb(), 1, m_unmapped, 0, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC,
                         XCB_NONE, XCB_NONE, XCB_CURRENT_TIME));
    return !answer || answer->status != XCB_GRAB_STATUS_NOT_VIEWABLE;
}

X11WindowSensor::X11WindowSensor(X11Connection& x11, const QRect& part,
                                 std::function<void()> entered)
    : m_x11(x11)
    , m_window(xcb_generate_id(x11.xcb()))
    , m_entered(x11.subscribe(XCB_ENTER_NOTIFY, [window = m_window, tell = std::move(entered)](
                                                    const xcb_generic_event_t& event) {
        const auto& enter = reinterpret_cast<const xcb_enter_notify_event_t&>(event);
        if (enter.event == window) tell();
    })) {
    const std::array<std::uint32_t, 2> values = {1, XCB_EVENT_MASK_ENTER_WINDOW};
    xcb_create_window(
        x11.xcb(), XCB_COPY_FROM_PARENT, m_window, x11.root(), static_cast<std::int16_t>(part.x()),
        static_cast<std::int16_t>(part.y()), static_cast<std::uint16_t>(part.width()),
        static_cast<std::uint16_t>(part.height()), 0, XCB_WINDOW_CLASS_INPUT_ONLY,
        XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values.data());
    xcb_map_window(x11.xcb(), m_window);
    x11.flush();
}

X11WindowSensor::~X11WindowSensor() {
    xcb_destroy_window(m_x11.xcb(), m_window);
    m_x11.flush();
}

} // namespace vantle

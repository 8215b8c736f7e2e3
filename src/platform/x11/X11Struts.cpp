#include "platform/x11/X11Struts.h"

#include <algorithm>
#include <utility>

namespace vantle {

namespace {

constexpr std::array<const char*, 3> kStrutAtoms{"_NET_WM_STRUT_PARTIAL", "_NET_WM_STRUT",
                                                 "_NET_CLIENT_LIST"};

/// Limit of windows examined, for the client list and for the root's children each.
constexpr std::uint32_t kMostWindows = 1024;

} // namespace

std::vector<ReservedStrip> stripsOf(std::span<const std::uint32_t> numbers, const QSize& desktop) {
    if (numbers.size() < 4) return {};
    const bool isPart = numbers.size() == 12;
    constexpr std::array kEdges{Qt::LeftEdge, Qt::RightEdge, Qt::TopEdge, Qt::BottomEdge};
    std::vector<ReservedStrip> strips;
    for (std::size_t i = 0; i < kEdges.size(); ++i) {
        const bool isUpright = i < 2;
        const int length = isUpright ? desktop.height() : desktop.width();
        const int across = isUpright ? desktop.width() : desktop.height();
        const int depth = std::min(static_cast<int>(numbers[i]), across);
        // The end is inclusive. Without partial struts the strip is as long as the desktop.
        const int begin = isPart ? std::max(static_cast<int>(numbers[4 + 2 * i]), 0) : 0;
        const int end =
            isPart ? std::min(static_cast<int>(numbers[5 + 2 * i]), length - 1) : length - 1;
        if (depth <= 0 || begin > end) continue;
        QRect area = isUpright ? QRect(0, begin, depth, end - begin + 1)
                               : QRect(begin, 0, end - begin + 1, depth);
        if (kEdges[i] == Qt::RightEdge) area.moveLeft(across - depth);
        if (kEdges[i] == Qt::BottomEdge) area.moveTop(across - depth);
        strips.push_back({kEdges[i], area});
    }
    return strips;
}

X11Struts::X11Struts(X11Connection& x11) : m_x11(x11) {
    if (!m_x11.isAlive()) return;
    static_assert(kStrutAtoms.size() == AtomCount);
    m_atoms = m_x11.atoms(kStrutAtoms);
    m_events.push_back(m_x11.subscribe(XCB_PROPERTY_NOTIFY, [this](const auto& event) {
        handleProperty(reinterpret_cast<const xcb_property_notify_event_t&>(event));
    }));
    const auto onWindow = [this](std::uint8_t type, auto windowOf) {
        m_events.push_back(m_x11.subscribe(
            type, [this, windowOf](const auto& event) { handleWindow(windowOf(event)); }));
    };
    onWindow(XCB_MAP_NOTIFY, [](const auto& event) {
        return reinterpret_cast<const xcb_map_notify_event_t&>(event).window;
    });
    onWindow(XCB_UNMAP_NOTIFY, [](const auto& event) {
        return reinterpret_cast<const xcb_unmap_notify_event_t&>(event).window;
    });
    onWindow(XCB_DESTROY_NOTIFY, [](const auto& event) {
        return reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window;
    });
    m_x11.followRootProperties();
    m_last = all();
}

void X11Struts::handleProperty(const xcb_property_notify_event_t& change) {
    if (change.window == m_x11.root()) {
        if (change.atom == m_atoms[ClientList]) refresh();
    } else if (change.atom == m_atoms[Partial] || change.atom == m_atoms[Whole]) {
        handleWindow(change.window);
    }
}

void X11Struts::handleWindow(xcb_window_t window) {
    if (std::ranges::find(m_bars, window) != m_bars.end()) refresh();
}

void X11Struts::refresh() {
    std::vector<ReservedStrip> now = all();
    if (std::exchange(m_last, now) != now) Q_EMIT changed();
}

std::vector<ReservedStrip> X11Struts::all() {
    if (!m_x11.isAlive()) return {};
    std::vector<Bar> bars = barsAmong(windows());
    follow(bars);
    std::vector<xcb_get_window_attributes_cookie_t> cookies;
    cookies.reserve(bars.size());
    for (const Bar& bar : bars)
        cookies.push_back(xcb_get_window_attributes(m_x11.xcb(), bar.window));
    std::vector<ReservedStrip> strips;
    for (std::size_t i = 0; i < bars.size(); ++i) {
        const auto attributes = m_x11.reply<xcb_get_window_attributes_reply>(cookies[i]);
        if (attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE)
            std::ranges::move(bars[i].strips, std::back_inserter(strips));
    }
    return strips;
}

std::vector<xcb_window_t> X11Struts::windows() {
    auto* const xcb = m_x11.xcb();
    const auto treeCookie = xcb_query_tree(xcb, m_x11.root());
    const auto listCookie = xcb_get_property(xcb, 0, m_x11.root(), m_atoms[ClientList],
                                             XCB_ATOM_WINDOW, 0, kMostWindows);
    const auto sizeCookie = xcb_get_geometry(xcb, m_x11.root());
    const auto tree = m_x11.reply<xcb_query_tree_reply>(treeCookie);
    const auto list = m_x11.reply<xcb_get_property_reply>(listCookie);
    const auto size = m_x11.reply<xcb_get_geometry_reply>(sizeCookie);
    if (size) m_desktop = QSize(size->width, size->height);
    const auto managed = numbersOf(list.get());
    std::vector<xcb_window_t> found(managed.begin(), managed.end());
    if (tree) {
        const auto* const first = xcb_query_tree_children(tree.get());
        found.insert(found.end(), first,
                     first + std::min<std::uint32_t>(tree->children_len, kMostWindows));
    }
    std::ranges::sort(found);
    found.erase(std::unique(found.begin(), found.end()), found.end());
    return found;
}

std::vector<X11Struts::Bar> X11Struts::barsAmong(const std::vector<xcb_window_t>& windows) {
    // Sends all requests before it reads replies: one round trip.
    std::vector<std::pair<xcb_get_property_cookie_t, xcb_get_property_cookie_t>> cookies;
    const auto ask = [this](xcb_window_t window, Atom name) {
        return xcb_get_property(m_x11.xcb(), 0, window, m_atoms[name], XCB_ATOM_CARDINAL, 0, 12);
    };
    cookies.reserve(windows.size());
    for (const xcb_window_t window : windows)
        cookies.emplace_back(ask(window, Partial), ask(window, Whole));
    std::vector<Bar> bars;
    for (std::size_t i = 0; i < windows.size(); ++i) {
        const auto partial = m_x11.reply<xcb_get_property_reply>(cookies[i].first);
        const auto whole = m_x11.reply<xcb_get_property_reply>(cookies[i].second);
        const auto better = numbersOf(partial.get());
        auto strips = stripsOf(better.size() == 12 ? better : numbersOf(whole.get()), m_desktop);
        if (!strips.empty()) bars.push_back({windows[i], std::move(strips)});
    }
    return bars;
}

void X11Struts::follow(const std::vector<Bar>& bars) {
    std::vector<xcb_window_t> now;
    now.reserve(bars.size());
    for (const Bar& bar : bars)
        now.push_back(bar.window);
    if (now == m_bars) return;
    // Others on this connection select events of the active window, which is never a bar.
    const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    for (const xcb_window_t window : now)
        xcb_change_window_attributes(m_x11.xcb(), window, XCB_CW_EVENT_MASK, &mask);
    m_x11.flush();
    m_bars = std::move(now);
}

} // namespace vantle

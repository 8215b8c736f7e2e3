#include "surfaces/window/WindowRouter.h"

#include "tracking/NotificationCenter.h"

#include <QWindow>

#include <algorithm>
#include <utility>

namespace vantle {

WindowRouter::WindowRouter(const WindowEnvironment& environment, NotificationCenter& notifications)
    : m_env(environment) {
    connect(&notifications, &NotificationCenter::HFShowWelcome, this,
            [this] { show(WindowId::Welcome); });
}

WindowRouter::~WindowRouter() = default;

void WindowRouter::add(WindowSpec spec) {
    Q_ASSERT(entry(spec.id) == nullptr);
    m_windows.push_back(std::make_unique<Entry>(m_env, std::move(spec)));
}

void WindowRouter::show(WindowId id) {
    m_wrappedInitialPeriod.reset();
    open(id);
}

void WindowRouter::showWrapped(std::optional<WrappedPeriod> startingOn) {
    m_wrappedInitialPeriod = startingOn;
    open(WindowId::Wrapped);
}

void WindowRouter::showByAction(const QString& action) {
    if (action.isEmpty()) return; // windows without an action have an empty one
    const auto found = std::ranges::find_if(
        m_windows, [&](const auto& entry) { return entry->spec.action == action; });
    if (found != m_windows.end()) show((*found)->spec.id);
}

void WindowRouter::open(WindowId id) {
    Entry* const wanted = entry(id);
    if (wanted == nullptr) return;
    if (wanted->spec.replaces) close(*wanted->spec.replaces);
    if (wanted->window.show()) Q_EMIT shown(id);
}

std::vector<const WindowSpec*> WindowRouter::doors() const {
    std::vector<const WindowSpec*> found;
    for (const auto& entry : m_windows)
        if (!entry->spec.door.title.isEmpty()) found.push_back(&entry->spec);
    return found;
}

void WindowRouter::orderOut(WindowId id) {
    if (QWindow* const open = window(id)) open->hide();
}

void WindowRouter::close(WindowId id) {
    if (Entry* const found = entry(id)) found->window.close();
}

bool WindowRouter::isOpen(WindowId id) const { return window(id) != nullptr; }

QWindow* WindowRouter::window(WindowId id) const {
    const Entry* const found = entry(id);
    return found ? found->window.window() : nullptr;
}

WindowRouter::Entry* WindowRouter::entry(WindowId id) const {
    const auto found =
        std::ranges::find_if(m_windows, [&](const auto& entry) { return entry->spec.id == id; });
    return found == m_windows.end() ? nullptr : found->get();
}

} // namespace vantle

#include "surfaces/window/WindowRouter.h"

#include "tracking/NotificationCenter.h"

#include <QWindow>

namespace vantle {

WindowRouter::WindowRouter(const WindowEnvironment& environment, NotificationCenter& notifications)
    : m_env(environment) {
    connect(&notifications, &NotificationCenter::HFShowWelcome, this, &WindowRouter::showWelcome);
}

WindowRouter::~WindowRouter() = default;

void WindowRouter::registerWindow(WindowId id, WindowContent content) {
    m_windows[id] = std::make_unique<ManagedWindow>(m_env, rulesOf(id), std::move(content));
}

void WindowRouter::show(WindowId id) {
    const auto found = m_windows.find(id);
    if (found != m_windows.end() && found->second->show()) Q_EMIT shown(id);
}

void WindowRouter::showDashboard() {
    close(WindowId::Wrapped);
    show(WindowId::Dashboard);
}

void WindowRouter::showWrapped() { showWrapped(std::nullopt); }

void WindowRouter::showWrapped(std::optional<WrappedPeriod> startingOn) {
    m_wrappedInitialPeriod = startingOn;
    close(WindowId::Dashboard);
    show(WindowId::Wrapped);
}

void WindowRouter::showLog() { show(WindowId::Log); }
void WindowRouter::showQuickLog() { show(WindowId::QuickLog); }
void WindowRouter::showWelcome() { show(WindowId::Welcome); }
void WindowRouter::showSettings() { show(WindowId::Settings); }

void WindowRouter::orderOut(WindowId id) {
    if (QWindow* const open = window(id)) open->hide();
}

void WindowRouter::close(WindowId id) {
    if (const auto found = m_windows.find(id); found != m_windows.end()) found->second->close();
}

bool WindowRouter::isOpen(WindowId id) const { return window(id) != nullptr; }

QWindow* WindowRouter::window(WindowId id) const {
    const auto found = m_windows.find(id);
    return found == m_windows.end() ? nullptr : found->second->window();
}

} // namespace vantle

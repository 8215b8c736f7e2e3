#include "surfaces/dashboard/DashboardWindow.h"

#include "app/AppModel.h"
#include "base/Words.h"
#include "platform/Platform.h"
#include "surfaces/dashboard/DashboardView.h"
#include "surfaces/window/WindowParts.h"
#include "surfaces/window/WindowRouter.h"
#include "tracking/Settings.h"

namespace vantle {

namespace {

std::unique_ptr<QObject> makeModel(const WindowParts& parts) {
    WindowRouter& router = parts.router;
    return std::make_unique<DashboardView>(DashboardView::Environment{
        .flow = parts.model.flow(),
        .skills = parts.skills,
        .notifications = parts.notifications,
        .preferences = parts.platform.preferences,
        .clock = parts.clock,
        .scheduler = parts.scheduler,
        .calendar = parts.calendar,
        .openQuickLog = [&router] { router.show(WindowId::QuickLog); },
        // The review closes the window that opens it.
        .openWrapped =
            [&router] {
                QMetaObject::invokeMethod(
                    &router, [&router] { router.show(WindowId::Wrapped); }, Qt::QueuedConnection);
            }});
}

} // namespace

WindowSpec dashboardWindow(const WindowParts& parts) {
    return {.id = WindowId::Dashboard,
            .action = QStringLiteral("dashboard"),
            .door = {Words::tr("Dashboard"), QStringLiteral("D")},
            .replaces = WindowId::Wrapped,
            .rules = {.title = Words::tr("Your hours"),
                      .resizable = true,
                      .minContentWidth = 380,
                      .contentSize = {612, 512},
                      .frame = &settings::dashboardFrame},
            .content = {viewAt("Dashboard/DashboardPage"),
                        [parts](const auto&) { return makeModel(parts); }}};
}

} // namespace vantle

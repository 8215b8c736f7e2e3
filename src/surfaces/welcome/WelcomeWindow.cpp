#include "surfaces/welcome/WelcomeWindow.h"

#include "base/Words.h"
#include "platform/Platform.h"
#include "surfaces/welcome/WelcomeView.h"
#include "surfaces/window/WindowParts.h"
#include "surfaces/window/WindowRouter.h"

#include <QWindow>

namespace vantle {

namespace {

std::unique_ptr<QObject> makeModel(const WindowParts& parts, const std::function<void()>& close) {
    WindowRouter& router = parts.router;
    return std::make_unique<WelcomeView>(WelcomeView::Environment{
        .model = parts.model,
        .notifications = parts.notifications,
        .preferences = parts.platform.preferences,
        .reducedMotion = parts.platform.reducedMotion,
        .scheduler = parts.scheduler,
        .orderOut = [&router] { router.orderOut(WindowId::Welcome); },
        .bringForward = [&router] { router.show(WindowId::Welcome); },
        .openWrapped = [&router] { router.show(WindowId::Wrapped); },
        .onClose = close,
        .isInFront =
            [&router] {
                const QWindow* const window = router.window(WindowId::Welcome);
                return window && window->isActive();
            }});
}

} // namespace

WindowSpec welcomeWindow(const WindowParts& parts) {
    return {.id = WindowId::Welcome,
            .rules = {.title = Words::tr("Welcome")},
            .content = {viewAt("Welcome/WelcomePage"),
                        [parts](const auto& close) { return makeModel(parts, close); },
                        [](QObject& model) { static_cast<WelcomeView&>(model).finish(); }}};
}

} // namespace vantle

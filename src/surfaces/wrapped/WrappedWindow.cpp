#include "surfaces/wrapped/WrappedWindow.h"

#include "app/AppModel.h"
#include "base/Words.h"
#include "platform/Platform.h"
#include "surfaces/window/WindowParts.h"
#include "surfaces/window/WindowRouter.h"
#include "surfaces/wrapped/PosterSharing.h"
#include "surfaces/wrapped/WrappedView.h"
#include "surfaces/wrapped/poster/SharePng.h"
#include "tracking/SkillList.h"

namespace vantle {

namespace {

std::unique_ptr<QObject> makeModel(const WindowParts& parts) {
    AppModel& model = parts.model;
    PosterSharing& sharing = parts.posterSharing;
    auto view = std::make_unique<WrappedView>(WrappedView::Environment{
        .notifications = parts.notifications,
        .preferences = parts.platform.preferences,
        .model = parts.platform.languageModel,
        .clock = parts.clock,
        .scheduler = parts.scheduler,
        .calendar = parts.calendar,
        .allSessions = [&model] { return model.tracker().allSessions(); },
        .skills = [&skills = parts.skills] { return skills.all(); },
        .initialPeriod = parts.router.wrappedInitialPeriod(),
        .enterVantle = [&model] { model.toggleVantle(); },
        .renderPng = renderSharePNG,
        .copyPng = [&sharing](const QByteArray& png) { sharing.copy(png); },
        .savePng =
            [&sharing, &router = parts.router](const QByteArray& png, const QString& name,
                                               std::function<void(WrappedView::Saved)> done) {
                sharing.save(png, name, router.window(WindowId::Wrapped), std::move(done));
            }});
    QObject::connect(&parts.skills, &SkillList::changed, view.get(), &WrappedView::open);
    const auto follow = [&tracker = model.tracker(), view = view.get()] {
        view->setTracking(tracker.state() != TrackerCore::State::Idle);
    };
    QObject::connect(&model.tracker(), &TrackerCore::stateChanged, view.get(), follow);
    follow();
    return view;
}

} // namespace

WindowSpec wrappedWindow(const WindowParts& parts) {
    return {.id = WindowId::Wrapped,
            .action = QStringLiteral("wrapped"),
            .door = {Words::tr("Wrapped")},
            .replaces = WindowId::Dashboard, // the two large windows are never open together
            .rules = {.title = Words::tr("Wrapped")},
            .content = {viewAt("Wrapped/WrappedPage"),
                        [parts](const auto&) { return makeModel(parts); }}};
}

} // namespace vantle

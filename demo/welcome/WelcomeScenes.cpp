#include "app/ModelWorld.h"
#include "gallery/Scenes.h"
#include "surfaces/welcome/WelcomeView.h"
#include "tracking/Settings.h"

#include <memory>

namespace vantle {

namespace {

using namespace welcometext;

/// A new person's machine, with the welcome on it.
class Newcomer final : public QObject {
public:
    explicit Newcomer(QObject* owner) : QObject(owner) {
        settings::welcomeDone.remove(world.preferences);
        settings::rippleDisabled.write(world.preferences, true);
        world.idleSource.fix(0);
        world.launch();
        view = std::make_unique<WelcomeView>(
            WelcomeView::Environment{*world.model, world.notifications, world.preferences,
                                     world.reducedMotion, world.time, [] {}, [] {}, [] {}, [] {}});
    }

    /// Walks to the step, by way of a practice session of 24 seconds.
    void walkTo(int step) {
        view->setProperty("productName", QStringLiteral("Lumen"));
        while (view->step() < step) {
            view->pressPrimary();
            world.settle();
            if (view->step() != Stop) continue;
            world.time.advance(24);
            if (step == Stop) return;
            view->pressPrimary();
            world.settle();
            Q_EMIT world.notifications.HFStopSummaryResolved();
        }
    }

    tests::ModelWorld world;
    std::unique_ptr<WelcomeView> view;
};

Scene scene(const char* name, int step, std::function<void(Newcomer&)> then = {}) {
    Scene made = framedScene(name);
    made.properties = [=](QObject* owner) {
        auto* const person = new Newcomer(owner);
        if (step > Pick) person->walkTo(step);
        if (then) then(*person);
        return QVariantMap{{QStringLiteral("view"),
                            QUrl(QStringLiteral("qrc:/qt/qml/Vantle/Welcome/WelcomePage.qml"))},
                           {QStringLiteral("model"), QVariant::fromValue(person->view.get())}};
    };
    return made;
}

Scene twice(Scene made) {
    made.twice = true;
    return made;
}

} // namespace

QList<Scene> welcomeScenes() {
    return {
        twice(scene("welcome-0-pick", Pick)),
        scene("welcome-1-modes", Modes),
        scene("welcome-1-modes-adding", Modes,
              [](Newcomer& person) {
                  for (const char* name : {"Investors", "Support"}) {
                      person.view->addCategory();
                      person.view->category()->setName(QLatin1String(name));
                      person.view->commitCategory();
                  }
                  person.view->beginRename(QStringLiteral("marketing"));
              }),
        scene("welcome-2-press", Press),
        scene("welcome-2-press-taken", Press,
              [](Newcomer& person) {
                  HotKey& hotKey = person.world.model->hotKey();
                  hotKey.unregisterHotKey();
                  person.world.hotKeyPort.outcome = {HotKeyPort::Registration::HeldByAnother, 0};
                  hotKey.registerHotKey();
              }),
        scene("welcome-3-stop", Stop),
        scene("welcome-4-success", Success),
        scene("welcome-5-notch", Notch),
        twice(scene("welcome-6-dashboard", Dashboard)),
        twice(scene("welcome-7-brick", Brick)),
        scene("welcome-8-wrapped", Wrapped),
        scene("welcome-9-done", Done)};
}

} // namespace vantle

#include "app/ModelWorld.h"
#include "gallery/Scenes.h"
#include "surfaces/dashboard/DashboardView.h"
#include "surfaces/notes/LogView.h"
#include "surfaces/quicklog/QuickLogView.h"
#include "windows/SampleYear.h"

#include <memory>

namespace vantle {

namespace {

using World = tests::ModelWorld;
using Prepare = std::function<void(World&)>;

/// The model on a disk and a clock of its own, for as long as the picture is made.
class DemoWorld final : public QObject, public World {
public:
    explicit DemoWorld(QObject* owner) : QObject(owner) {
        idleSource.fix(0);
        time.shiftWall(epochSeconds(sampleNow()) - epochSeconds(time.now()));
    }
    static Calendar utc() { return {QStringLiteral("UTC"), 2, 4}; }

    std::unique_ptr<QObject> viewModel; ///< goes before what it looks at
};

void fill(World& world) { world.disk.setContent(World::file("sessions.jsonl"), sampleLog()); }

/// `make` gives the view's model, once `prepare` has laid out the disk and the program has started.
Scene window(const QString& name, const QString& view, Prepare prepare,
             std::function<QObject*(DemoWorld&)> make) {
    Scene made;
    made.name = name;
    made.view = QUrl(QStringLiteral("qrc:/qt/qml/Vantle/DemoWindows/FramedScene.qml"));
    made.ground = kDesk;
    made.properties = [=](QObject* owner) {
        auto* const world = new DemoWorld(owner);
        prepare(*world);
        world->launch();
        world->viewModel.reset(make(*world));
        return QVariantMap{
            {QStringLiteral("view"), QUrl(QStringLiteral("qrc:/qt/qml/Vantle/") + view)},
            {QStringLiteral("model"), QVariant::fromValue(world->viewModel.get())}};
    };
    return made;
}

Scene dashboard(const char* name, Prepare prepare, std::function<void(DemoWorld&)> then = {}) {
    return window(QLatin1String(name), QStringLiteral("Dashboard/DashboardPage.qml"), prepare,
                  [then](DemoWorld& world) {
                      if (then) then(world);
                      return new DashboardView({*world.model, world.notifications,
                                                world.preferences, world.time, world.time,
                                                DemoWorld::utc, [] {}, [] {}});
                  });
}

Scene notes(const char* name, Prepare prepare, std::function<void(LogView&)> then = {}) {
    return window(QLatin1String(name), QStringLiteral("Notes/NotesLogView.qml"), prepare,
                  [then](DemoWorld& world) {
                      auto* const view = new LogView({*world.model, world.notifications,
                                                      world.preferences, world.time, world.time,
                                                      DemoWorld::utc, [](const QString&) {}});
                      if (then) then(*view);
                      return view;
                  });
}

Scene quickLog(const char* name, std::function<void(QuickLogView&)> then) {
    return window(QLatin1String(name), QStringLiteral("QuickLog/QuickLogForm.qml"), fill,
                  [then](DemoWorld& world) {
                      auto* const view = new QuickLogView(*world.model, world.preferences, [] {});
                      then(*view);
                      return view;
                  });
}

QList<Scene> dashboards() {
    Scene ordinary = dashboard("dashboard", fill);
    ordinary.twice = true;
    Scene full = dashboard("dashboard-full-wall", [](World& world) {
        world.disk.setContent(World::file("sessions.jsonl"), sampleLog().repeated(3));
    });
    return {dashboard("dashboard-empty", [](World&) {}), ordinary, full,
            dashboard("dashboard-running", fill,
                      [](DemoWorld& world) {
                          world.model->selectSkill(QStringLiteral("product_design"),
                                                   AppModel::SkillSelectionOrigin::Human);
                          world.model->toggleVantle();
                          world.time.advance(38 * 60);
                      }),
            dashboard("dashboard-data-warning", [](World& world) {
                world.disk.setContent(World::file("sessions.jsonl"),
                                      sampleLog() + "{\"torn\n" + "not a record\n");
            })};
}

QList<Scene> noteScenes() {
    Scene list = notes("notes", fill);
    list.twice = true;
    return {notes("notes-empty", [](World&) {}), list,
            notes("notes-editing", fill,
                  [](LogView& view) {
                      view.beginEdit(
                          view.rows()->data(view.rows()->index(2), NoteRows::IdRole).toString());
                  }),
            notes("notes-no-match", fill, [](LogView& view) {
                view.setQuery(QStringLiteral("invoice "));
                view.showSkill(QStringLiteral("product_design"));
            })};
}

QList<Scene> quickLogs() {
    return {quickLog("quick-log",
                     [](QuickLogView& view) {
                         view.setSkillIndex(1);
                         view.setHoursText(QStringLiteral("1"));
                         view.setMinutesText(QStringLiteral("30"));
                     }),
            quickLog("quick-log-error", [](QuickLogView& view) {
                view.setHoursText(QStringLiteral("0"));
                view.setMinutesText(QStringLiteral("0"));
                view.logEntry();
            })};
}

} // namespace

QList<Scene> windowScenes() { return dashboards() + noteScenes() + quickLogs(); }

} // namespace vantle

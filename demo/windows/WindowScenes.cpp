#include "app/ModelWorld.h"
#include "base/Words.h"
#include "gallery/Scenes.h"
#include "support/ShownItems.h"
#include "surfaces/alert/AlertModel.h"
#include "surfaces/dashboard/DashboardView.h"
#include "surfaces/notes/LogView.h"
#include "surfaces/quicklog/QuickLogView.h"
#include "windows/SampleYear.h"

#include <array>
#include <memory>

namespace vantle {

namespace {

using World = tests::ModelWorld;

/// The model on a disk and a clock of its own, for as long as the picture is made.
class DemoWorld final : public QObject, public World {
public:
    explicit DemoWorld(QObject* owner) : QObject(owner) {
        idleSource.fix(0);
        time.shiftWall(epochSeconds(sampleNow()) - epochSeconds(time.now()));
    }
    /// What the views are made with.
    [[nodiscard]] std::function<Calendar()> calendarSource() {
        return [this] { return calendar; };
    }

    Calendar calendar{QStringLiteral("UTC"), 2, 4, sampleLocale()};

    std::unique_ptr<QObject> viewModel; ///< goes before what it looks at
};

struct AlertHolder final : QObject {
    using QObject::QObject;
    AlertModel model;
};

using Prepare = std::function<void(World&)>;

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
                      return new DashboardView({world.model->flow(), *world.skills,
                                                world.notifications, world.preferences, world.time,
                                                world.time, world.calendarSource(), [] {}, [] {}});
                  });
}

/// The note under the pointer.
Scene hovered(Scene scene, const char* note) {
    scene.arrange = [words = QString::fromUtf8(note)](QQuickItem& view) {
        const QQuickItem* const row = tests::shownItem(&view, [&](const QQuickItem& item) {
            return item.property("note").toString() == words;
        });
        if (row == nullptr) return;
        const QPointF middle = row->mapToScene(row->boundingRect().center());
        tests::sendMouse(*view.window(), QEvent::MouseMove, middle, Qt::NoButton, Qt::NoButton);
    };
    return scene;
}

Scene notes(const char* name, Prepare prepare, std::function<void(LogView&)> then = {},
            std::function<void(DemoWorld&)> before = {}) {
    return window(QLatin1String(name), QStringLiteral("Notes/NotesLogView.qml"), prepare,
                  [then, before](DemoWorld& world) {
                      if (before) before(world);
                      auto* const view =
                          new LogView({world.model->tracker(), *world.skills, world.notifications,
                                       world.preferences, world.time, world.time,
                                       world.calendarSource(), [](const QString&) {}});
                      if (then) then(*view);
                      return view;
                  });
}

Scene quickLog(const char* name, std::function<void(QuickLogView&)> then,
               std::function<void(DemoWorld&)> before = {}) {
    return window(QLatin1String(name), QStringLiteral("QuickLog/QuickLogForm.qml"), fill,
                  [then, before](DemoWorld& world) {
                      if (before) before(world);
                      auto* const view = new QuickLogView(world.model->flow(), *world.skills,
                                                          world.preferences, [] {});
                      then(*view);
                      return view;
                  });
}

/// The same in a window of that size.
Scene sized(Scene scene, QSizeF view) {
    scene.properties = [made = scene.properties, view](QObject* owner) {
        QVariantMap properties = made(owner);
        properties.insert(QStringLiteral("fixed"), view);
        return properties;
    };
    return scene;
}

// As narrow as the windows of hours and notes can be made.
constexpr QSizeF kNarrowHours(380, 512);
constexpr QSizeF kNarrowNotes(380, 620);

using Names = std::array<const char*, 3>;
constexpr Names kLongNames = {"Wohnungsbaugesellsch", "WWWWWWWWWWWWWWWWWWWW",
                              "Qualitätsmanagement"};
constexpr Names kHebrewNames = {"ניהול פרויקט ופגישות", "עיצוב", "כתיבה"};
constexpr Names kPersianNames = {"برنامه‌ریزی هفتگی", "طراحی", "نوشتن"};

void rename(DemoWorld& world, const Names& names) {
    constexpr std::array kIds = {"building", "product_design", "marketing"};
    for (std::size_t i = 0; i < kIds.size(); ++i) {
        const Skill skill = world.skills->display(QLatin1String(kIds[i]));
        world.model->updateSkill(skill.id, QString::fromUtf8(names[i]), skill.hexRGB);
    }
}

/// A user of that locale, whose calendar the days are counted by.
std::function<void(DemoWorld&)> inLocale(const char* locale, int firstWeekday, const Names& names) {
    return [=](DemoWorld& world) {
        world.calendar.locale = QLatin1String(locale);
        world.calendar.firstWeekday = firstWeekday;
        rename(world, names);
    };
}
const auto kPersian = inLocale("fa_IR", 7, kPersianNames);
const auto kHebrew = inLocale("he_IL", 1, kHebrewNames);

void work(DemoWorld& world) {
    world.model->toggleVantle();
    world.time.advance(38 * 60);
}

/// The first notes of the log in the user's own script, some mixed with another.
Prepare noted(std::array<const char*, 3> notes) {
    return [=](World& world) {
        QByteArray log = sampleLog();
        constexpr std::array kOld = {
            "Webhook retries land in order now; the queue survives a restart.",
            "Call with Ines about the pilot, she wants the weekly export first.",
            "Settings page: one column, captions under each row."};
        for (std::size_t i = 0; i < kOld.size(); ++i)
            log.replace(kOld[i], notes[i]);
        world.disk.setContent(World::file("sessions.jsonl"), log);
    };
}

QList<Scene> dashboards() {
    Scene ordinary = dashboard("dashboard", fill);
    ordinary.twice = true;
    Scene full = dashboard("dashboard-full-wall", [](World& world) {
        world.disk.setContent(World::file("sessions.jsonl"), sampleLog(72));
    });
    return {dashboard("dashboard-empty", [](World&) {}),
            ordinary,
            full,
            dashboard("dashboard-running", fill,
                      [](DemoWorld& world) {
                          world.model->selectSkill(QStringLiteral("product_design"),
                                                   AppModel::SkillSelectionOrigin::Human);
                          world.model->toggleVantle();
                          world.time.advance(38 * 60);
                      }),
            sized(dashboard("dashboard-narrow", fill,
                            [](DemoWorld& world) {
                                rename(world, kLongNames);
                                work(world);
                            }),
                  kNarrowHours),
            sized(dashboard("dashboard-narrow-idle", fill), kNarrowHours),
            dashboard(
                "dashboard-long-names",
                [](World& world) {
                    world.disk.setContent(World::file("sessions.jsonl"), sampleLog().repeated(30));
                },
                [](DemoWorld& world) {
                    rename(world, kLongNames);
                    work(world);
                }),
            dashboard("dashboard-persian", fill,
                      [](DemoWorld& world) {
                          kPersian(world);
                          work(world);
                      }),
            dashboard("dashboard-hebrew", fill,
                      [](DemoWorld& world) {
                          kHebrew(world);
                          work(world);
                      }),
            dashboard("dashboard-data-warning", [](World& world) {
                world.disk.setContent(World::file("sessions.jsonl"),
                                      sampleLog() + "{\"torn\n" + "not a record\n");
            })};
}

constexpr auto kLongNote =
    "The importer now does what it should when the machine is switched off in the middle of a "
    "run, tells so in plain words, and starts again where it was, with no record twice and none "
    "lost, which took a week and two rewrites of the reader.";
constexpr auto kLongWord =
    "https://example.org/a/very/long/address/without/any/place/to/break/it/at/all/in/a/line";

constexpr auto kNoted = "Webhook retries land in order now; the queue survives a restart.";

QList<Scene> noteScenes() {
    Scene list = notes("notes", fill);
    list.twice = true;
    return {
        notes("notes-empty", [](World&) {}),
        list,
        hovered(notes("notes-hover", fill), kNoted),
        notes("notes-copied", fill,
              [](LogView& view) {
                  view.copyNote(
                      view.rows()->data(view.rows()->index(0), NoteRows::IdRole).toString());
              }),
        notes("notes-editing", fill,
              [](LogView& view) {
                  view.beginEdit(
                      view.rows()->data(view.rows()->index(2), NoteRows::IdRole).toString());
              }),
        sized(notes("notes-narrow", fill, {}, [](DemoWorld& world) { rename(world, kLongNames); }),
              kNarrowNotes),
        notes("notes-long", noted({kLongNote, kLongWord, "x"}), {},
              [](DemoWorld& world) { rename(world, kLongNames); }),
        notes("notes-hebrew",
              noted({"תיקנתי את התור; הוא שורד restart של השרת.", "שיחה עם Ines על הפיילוט (חלק 2)",
                     "The settings page, for דנה"}),
              {}, kHebrew),
        notes("notes-persian",
              noted({"صف پیام‌ها پس از restart هم سالم می‌ماند.",
                     "گفتگو با Ines درباره‌ی آزمایش",
                     "Settings page: one column"}),
              {}, kPersian),
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
            quickLog(
                "quick-log-long-name", [](QuickLogView& view) { view.setSkillIndex(1); },
                [](DemoWorld& world) { rename(world, kLongNames); }),
            quickLog(
                "quick-log-hebrew", [](QuickLogView& view) { view.setSkillIndex(0); }, kHebrew),
            quickLog("quick-log-error", [](QuickLogView& view) {
                view.setHoursText(QStringLiteral("0"));
                view.setMinutesText(QStringLiteral("0"));
                view.logEntry();
            })};
}

Scene alert(const char* name, const char* message, const char* text, const QStringList& buttons) {
    Scene made = framedScene(name);
    made.properties = [=](QObject* owner) {
        auto* const holder = new AlertHolder(owner);
        holder->model.message = Words::tr(message);
        holder->model.informativeText = Words::tr(text);
        for (const QString& button : buttons)
            holder->model.buttons << Words::tr(button.toUtf8());
        return QVariantMap{{QStringLiteral("view"),
                            QUrl(QStringLiteral("qrc:/qt/qml/Vantle/Alert/AlertView.qml"))},
                           {QStringLiteral("minimisable"), false},
                           {QStringLiteral("model"), QVariant::fromValue(&holder->model)}};
    };
    return made;
}

QList<Scene> alerts() {
    return {alert("alert", "Vantle is already running",
                  "Another copy of Vantle is already using this Mac's data. This one will close so "
                  "your history stays safe.",
                  {QStringLiteral("OK")}),
            alert("alert-question", "Move Vantle to Applications?",
                  "Vantle runs best from your Applications folder — it keeps it out of Downloads "
                  "and lets it update cleanly. Move it there now?",
                  {QStringLiteral("Move to Applications"), QStringLiteral("Not Now")})};
}

} // namespace

QList<Scene> windowScenes() { return dashboards() + noteScenes() + quickLogs() + alerts(); }

} // namespace vantle

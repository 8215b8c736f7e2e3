#include "base/Words.h"
#include "gallery/Scenes.h"
#include "surfaces/settings/SettingsWorld.h"
#include "tracking/Settings.h"
#include "windows/SampleYear.h"

#include <QEventLoop>
#include <QQuickItem>
#include <QTimer>

#include <array>

namespace vantle {

namespace {

/// The program behind the window, while the picture is drawn.
class DemoSettings final : public QObject, public tests::SettingsWorld {
public:
    explicit DemoSettings(QObject* owner) : QObject(owner) {
        idleSource.fix(0);
        time.shiftWall(epochSeconds(sampleNow()) - epochSeconds(time.now()));
        autostart.registered = true;
        settings::focusLinked.write(preferences, true);
        settings::startShortcut.write(preferences, QStringLiteral("Deep Work On"));
    }

    QByteArray shortcuts = "Deep Work On\nDeep Work Off\nCall Mode\n";
};

struct SampleApp {
    const char* name;
    const char* ruling; ///< empty for none
    bool isAutomatic = false;
};

constexpr std::array kApps = {
    SampleApp{"Video Player", "ignore"},         SampleApp{"Thunderbird", "connections", true},
    SampleApp{"Terminal", "building", true},     SampleApp{"Ledger", "founder_ops"},
    SampleApp{"GIMP", "product_design", true},   SampleApp{"Firefox", ""},
    SampleApp{"Blender", "product_design", true}};

void useApps(DemoSettings& world) {
    for (const SampleApp& app : kApps) {
        const QString id = QLatin1String(app.name);
        world.time.advance(90);
        world.rules->recordSeen(id, id);
        if (app.isAutomatic)
            world.rules->setAutomaticRule(id, QLatin1String(app.ruling));
        else if (*app.ruling != '\0')
            world.rules->setRule(id, QString(QLatin1String(app.ruling)));
    }
}

/// A mode and applications with long names, and with names in another script.
void useLongNames(DemoSettings& world) {
    world.program();
    const Skill skill = world.skills->display(QStringLiteral("building"));
    world.model->updateSkill(skill.id, QStringLiteral("WWWWWWWWWWWWWWWWWWWW"), skill.hexRGB);
    const Skill other = world.skills->display(QStringLiteral("connections"));
    world.model->updateSkill(other.id, QStringLiteral("ניהול פרויקט ופגישות"), other.hexRGB);
    world.rules->loadIfNeeded();
    for (const auto& [name, ruling] :
         {std::pair{"A Program With a Remarkably Long Name and an Edition (Nightly)", "building"},
          std::pair{"ویرایشگر متن", "connections"}}) {
        const QString id = QString::fromUtf8(name);
        world.time.advance(90);
        world.rules->recordSeen(id, id);
        world.rules->setRule(id, QString(QLatin1String(ruling)));
    }
}

using Prepare = std::function<void(DemoSettings&)>;
/// The scroll position, from the sections of the window.
using Place = std::function<double(const QList<QQuickItem*>& sections)>;

/// Waits for the layout of the next frame and for the scroll bar to fade in.
void settle() {
    QEventLoop loop;
    QTimer::singleShot(250, &loop, &QEventLoop::quit);
    loop.exec();
}

void scrollTo(QQuickItem& frame, const Place& place) {
    auto* const page = frame.property("item").value<QQuickItem*>();
    auto* const scroll = page->property("scroll").value<QQuickItem*>();
    const auto* const content = page->property("content").value<QQuickItem*>();
    scroll->setProperty("scrollbarShown", true);
    QMetaObject::invokeMethod(scroll, "scrollTo", Q_ARG(double, place(content->childItems())));
    settle();
}

/// Scrolls a section's heading to where the first one is initially.
Place section(int number) {
    return [number](const QList<QQuickItem*>& sections) {
        return sections.value(number)->y() - sections.value(0)->y();
    };
}

/// Scrolls to the end of a section with some space below.
Place endOf(int number) {
    return [number](const QList<QQuickItem*>& sections) {
        const QQuickItem& last = *sections.value(number);
        return last.y() + last.height() + 20 - 620;
    };
}

double end(const QList<QQuickItem*>& sections) {
    return sections.last()->y(); // which is more than there is to scroll
}

Scene settingsScene(const char* name, Prepare prepare, Place place,
                    std::function<void(SettingsView&)> then = {}) {
    Scene made = framedScene(name);
    made.properties = [=](QObject* owner) {
        auto* const world = new DemoSettings(owner);
        if (prepare) prepare(*world);
        world->program();
        world->rules->loadIfNeeded();
        useApps(*world);
        SettingsView& view = world->open();
        world->answer(world->shortcuts);
        if (then) then(view);
        return QVariantMap{{QStringLiteral("view"),
                            QUrl(QStringLiteral("qrc:/qt/qml/Vantle/Settings/SettingsPage.qml"))},
                           {QStringLiteral("title"), Words::tr("Settings")},
                           {QStringLiteral("model"), QVariant::fromValue(&view)}};
    };
    made.arrange = [place](QQuickItem& frame) { scrollTo(frame, place); };
    return made;
}

QQuickItem* buttonNamed(QQuickItem* item, const QString& name) {
    if (item->isVisible() && item->property("name").toString() == name) return item;
    for (QQuickItem* child : item->childItems())
        if (QQuickItem* const found = buttonNamed(child, name)) return found;
    return nullptr;
}

Scene eraseQuestion() {
    Scene made = settingsScene("settings-erase-confirm", {}, end);
    made.arrange = [](QQuickItem& frame) {
        auto* const erase = buttonNamed(&frame, Words::tr("Erase everything"));
        QMetaObject::invokeMethod(erase, "focusByKeyboard");
        QMetaObject::invokeMethod(erase, "clicked");
        settle();
        scrollTo(frame, end);
    };
    return made;
}

} // namespace

QList<Scene> settingsScenes() {
    Scene first = settingsScene("settings", {}, section(0));
    first.twice = true;
    return {first,
            settingsScene("settings-ceremony", {}, section(1)),
            settingsScene("settings-apps", {}, endOf(2)),
            settingsScene("settings-long-names", useLongNames, endOf(2)),
            settingsScene("settings-general", {}, end),
            eraseQuestion(),
            settingsScene(
                "settings-no-shortcuts", [](DemoSettings& world) { world.shortcuts.clear(); },
                section(0)),
            settingsScene(
                "settings-calls-untold",
                [](DemoSettings& world) {
                    settings::callsCount.write(world.preferences, true);
                    world.idleInhibition.setCanTell(false);
                    world.idleInhibition.setFollowed(true);
                },
                section(0)),
            settingsScene(
                "settings-plain-desktop",
                [](DemoSettings& world) {
                    world.hotKeyPort.outcome = {HotKeyPort::Registration::HeldByAnother, 0};
                    world.tray.setShown(false);
                },
                section(3)),
            settingsScene(
                "settings-failures",
                [](DemoSettings& world) {
                    world.hotKeyPort.outcome = {HotKeyPort::Registration::HeldByAnother, 0};
                    const QString log = QStringLiteral("sessions.jsonl");
                    world.disk.setContent(DemoSettings::file("sessions.jsonl"), sampleLog());
                    world.files.fail(fakes::FaultyFileSystem::Operation::Remove, log, EACCES);
                },
                end,
                [](SettingsView& view) {
                    view.askToErase();
                    view.confirmErase();
                })};
}

} // namespace vantle

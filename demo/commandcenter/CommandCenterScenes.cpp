#include "app/ModelWorld.h"
#include "app/OpenQuestions.h"
#include "base/Words.h"
#include "gallery/Scenes.h"
#include "surfaces/commandcenter/CommandCenterModel.h"

#include <QQuickItem>

namespace vantle {

namespace {

/// A person's machine, with the panel's model on it.
class Desk : public QObject {
public:
    explicit Desk(QObject* owner) : QObject(owner) {
        world.idleSource.fix(0);
        world.launch();
        world.settle();
        content = std::make_unique<CommandCenterModel>(
            CommandCenterModel::Environment{world.model->flow(), world.model->actionNote(),
                                            world.model->panelState(), *world.skills,
                                            world.preferences, world.time, questions, doors},
            actions());
        choose("Design");
    }

    void choose(const char* name) {
        for (const Skill& skill : world.model->skills())
            if (skill.name == QLatin1String(name))
                world.model->selectSkill(skill.id, AppModel::SkillSelectionOrigin::Human);
    }
    /// A session of that many minutes under the chosen mode.
    void work(int minutes) {
        world.model->toggleVantle();
        world.settle();
        world.time.advance(Seconds(60.0 * minutes));
    }

    tests::ModelWorld world;
    OpenQuestions questions;
    std::unique_ptr<CommandCenterModel> content;

private:
    static QList<CommandCenterModel::Door> doors() {
        return {{WindowId::Dashboard, {Words::tr("Dashboard"), QStringLiteral("D")}},
                {WindowId::Wrapped, {Words::tr("Wrapped")}},
                {WindowId::Log, {Words::tr("Notes")}},
                {WindowId::Settings, {Words::tr("Settings"), QStringLiteral(",")}}};
    }
    CommandCenterActions actions() {
        AppModel& model = *world.model;
        CommandCenterActions made;
        made.toggleVantle = [&model] { model.toggleVantle(); };
        made.selectSkill = [&model](const QString& id) {
            model.selectSkill(id, AppModel::SkillSelectionOrigin::Human);
        };
        made.hide = [] {};
        made.relayout = [] {};
        return made;
    }
};

Scene scene(const char* name, std::function<void(Desk&)> arrange, bool composited = true,
            bool twice = false) {
    Scene made;
    made.name = QLatin1String(name);
    made.view = QUrl(QStringLiteral("qrc:/qt/qml/Vantle/CommandCenter/CommandCenterView.qml"));
    made.properties = [arrange = std::move(arrange), composited](QObject* owner) {
        auto* const desk = new Desk(owner);
        arrange(*desk);
        desk->content->setShown(true);
        return QVariantMap{{QStringLiteral("model"), QVariant::fromValue(desk->content.get())},
                           {QStringLiteral("composited"), composited},
                           {QStringLiteral("up"), true}};
    };
    made.ground = kDesk;
    made.twice = twice;
    return made;
}

/// Two sessions in the week before, none since.
void makeReviewDue(Desk& desk) {
    desk.choose("Marketing");
    for (int i = 0; i < 2; ++i) {
        desk.work(50);
        desk.world.model->toggleVantle();
        desk.world.settle();
    }
    desk.world.time.advance(Seconds(7 * 86400.0));
    desk.world.model->refreshPanelState();
    desk.world.model->startPractice(); // takes back what was said last
    desk.world.model->discardPracticeSession();
    desk.world.settle();
}

/// The name is being typed.
void focusField(QQuickItem& item) {
    if (QByteArrayView(item.metaObject()->className()).startsWith("SkillNameField"))
        item.forceActiveFocus(Qt::TabFocusReason);
    for (QQuickItem* child : item.childItems())
        focusField(*child);
}

} // namespace

QList<Scene> commandCenterScenes() {
    Scene editor = scene(
        "command-center-editor",
        [](Desk& desk) {
            desk.content->addMode();
            desk.content->editor()->setName(QStringLiteral("Research"));
        },
        true, true);
    editor.arrange = [](QQuickItem& view) { focusField(view); };
    return {
        scene(
            "command-center-idle", [](Desk&) {}, true, true),
        scene("command-center-running",
              [](Desk& desk) {
                  desk.work(72);
                  desk.world.model->refreshPanelState();
              }),
        scene("command-center-paused",
              [](Desk& desk) {
                  desk.work(48);
                  desk.world.model->tracker().pause(desk.world.time.now());
              }),
        editor,
        scene("command-center-wrapped-ready", makeReviewDue),
        scene("command-center-long-names",
              [](Desk& desk) {
                  desk.world.model->addSkill(QStringLiteral("Wohnungsbaugesellsch"), 0xACF35C);
                  desk.world.model->addSkill(QStringLiteral("تخطيط الأسبوع القادم"), 0x40C8E0);
                  desk.choose("تخطيط الأسبوع القادم");
              }),
        scene(
            "command-center-square", [](Desk&) {}, false),
    };
}

} // namespace vantle

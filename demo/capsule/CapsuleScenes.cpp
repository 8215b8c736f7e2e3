#include "fakes/FakeReducedMotion.h"
#include "gallery/Scenes.h"
#include "surfaces/capsule/NotchCapsule.h"
#include "tracking/TrackingWorld.h"

namespace vantle {

namespace {

/// A capsule on a plain screen, and all that it needs.
class Exhibit final : public QObject {
public:
    Exhibit(QObject* owner, bool idlePrompt, double workedSeconds, bool paused) : QObject(owner) {
        const std::vector<Skill> skills{Skill::defaults().begin(), Skill::defaults().end()};
        const Skill& skill = skills[paused ? 1 : 0];
        TrackerCore& tracker = m_world.tracker;
        if (!idlePrompt) (void)tracker.start(skill, 0);
        m_world.time.advance(workedSeconds);
        if (paused) tracker.pause(m_world.time.now());
        NotchCapsule::Form form{
            &tracker, skill, skills, idlePrompt, [] {}, [](const QString&) {}, std::nullopt};
        if (idlePrompt)
            form.edit = collaborators::SkillEditCallbacks{
                [](const QString&, const QString&, std::uint32_t) {}, [](const QString&) {},
                [](const QString&, std::uint32_t) {}};
        const NotchCapsule::Environment environment{m_world.time, m_world.preferences,
                                                    m_reducedMotion, m_text};
        capsule = std::make_unique<NotchCapsule>(
            environment, std::move(form),
            ScreenShape{.frame = QRectF(0, 0, 1440, 900), .available = QRectF(0, 0, 1440, 900)});
    }

private:
    TrackingWorld m_world;
    fakes::FakeReducedMotion m_reducedMotion;
    const CapsuleText m_text;

public:
    std::unique_ptr<NotchCapsule> capsule;
};

using Arrange = std::function<void(NotchCapsule&)>;

Scene scene(const char* name, const Arrange& arrange, bool idlePrompt = true,
            double workedSeconds = 0, bool paused = false) {
    constexpr QSize kSize(538, 240);
    constexpr QSize kSizeWithEditor(538, 460);
    Scene made;
    made.name = QLatin1String(name);
    made.view = QUrl(QStringLiteral("qrc:/qt/qml/Vantle/Capsule/NotchCapsuleView.qml"));
    made.properties = [=](QObject* owner) {
        auto* const exhibit = new Exhibit(owner, idlePrompt, workedSeconds, paused);
        if (arrange) arrange(*exhibit->capsule);
        return QVariantMap{
            {QStringLiteral("capsule"), QVariant::fromValue(exhibit->capsule.get())}};
    };
    made.size = made.name.contains(QLatin1String("editor")) ? kSizeWithEditor : kSize;
    made.ground = kDesk;
    made.twice = made.name.endsWith(QLatin1String("idle"));
    return made;
}

void open(NotchCapsule& capsule) { capsule.expand(); }

void openMenu(NotchCapsule& capsule) {
    capsule.expand();
    capsule.openMenu(Skill::defaults()[1].id);
}

} // namespace

QList<Scene> capsuleScenes() {
    const auto rename = [](NotchCapsule& capsule) {
        openMenu(capsule);
        capsule.chipRequestsRename();
    };
    const auto recolor = [](NotchCapsule& capsule) {
        openMenu(capsule);
        capsule.chipRequestsRecolor();
    };
    const auto add = [](NotchCapsule& capsule) {
        capsule.expand();
        capsule.chipRequestsAdd();
    };
    return {scene("capsule-resting", {}),
            scene("capsule-idle", open),
            scene("capsule-running", open, false, 4320),
            scene("capsule-paused", open, false, 2880, true),
            scene("capsule-editor-menu", openMenu),
            scene("capsule-editor-rename", rename),
            scene("capsule-editor-recolor", recolor),
            scene("capsule-editor-create", add)};
}

} // namespace vantle

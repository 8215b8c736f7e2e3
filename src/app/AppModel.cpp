#include "app/AppModel.h"

#include "base/Text.h"
#include "platform/Preferences.h"
#include "sensing/AutoSkillMonitor.h"
#include "tracking/AppPaths.h"
#include "tracking/NotificationCenter.h"
#include "tracking/Settings.h"

#include <utility>

namespace vantle {

AppModel::AppModel(const Environment& environment, Collaborators collaborators)
    : m_env(environment)
    , m_tracker({m_env.clock, m_env.scheduler, m_env.ioQueue, m_env.paths, m_env.preferences,
                 m_env.skills, m_env.notifications})
    , m_note(m_tracker)
    , m_practice(m_env.preferences, m_tracker)
    , m_surfaces({m_env.clock, m_env.scheduler, m_env.preferences, m_env.skills,
                  m_env.reducedMotion, m_env.cardSlot, m_tracker, m_note},
                 std::move(collaborators))
    , m_flow({m_env.clock, m_env.scheduler, m_env.preferences, m_env.skills, m_env.idleSource,
              m_env.screenPower, m_env.hotKeyPort, m_env.frontmostApp, m_env.autoSkill,
              m_env.focusLink, m_tracker, m_note, m_practice, m_surfaces})
    , m_skills({m_env.skills, m_env.autoSkill, m_note, m_flow, m_surfaces})
    , m_autoMode({m_env.clock, m_env.preferences, m_env.skills, m_env.autoSkill, m_flow, m_skills,
                  *m_surfaces.collaborators().tagPrompt})
    , m_panel({m_env.clock, m_env.calendar, m_env.preferences, m_env.notifications, m_tracker,
               m_flow.idle()})
    , m_erase({m_env.ioQueue, m_env.paths, m_env.preferences, m_env.autoSkill, m_note, m_surfaces,
               m_flow, m_skills}) {
    // First, since this restores read access for the owner before any data file is read.
    m_env.paths.enforcePrivatePermissions();
    m_skills.load();
    m_surfaces.setCommands(
        {.toggle = [this] { m_flow.toggle(); },
         .selectSkill = [this](const QString& id) { selectSkill(id, SkillSelectionOrigin::Human); },
         .edit = {.onUpdate = [this](const QString& id, const QString& name,
                                     std::uint32_t hexRGB) { updateSkill(id, name, hexRGB); },
                  .onDelete = [this](const QString& id) { deleteSkill(id); },
                  .onAdd = [this](const QString& name,
                                  std::uint32_t hexRGB) { addSkill(name, hexRGB); }}});
    publish();
    m_env.autoSkill.refreshFromDefaults();
    m_flow.begin();
}

AppModel::~AppModel() = default;

void AppModel::publish() {
    connect(&m_flow, &SessionFlow::selectedSkillIdChanged, this, &AppModel::selectedSkillIdChanged);
    connect(&m_env.skills, &SkillList::changed, this, &AppModel::skillsChanged);
    connect(&m_note, &ActionNote::changed, this, &AppModel::lastActionNoteChanged);
    connect(&m_panel, &PanelState::wrappedReadyChanged, this, &AppModel::wrappedReadyChanged);
    connect(&m_panel, &PanelState::backfillCoverageMinutesChanged, this,
            &AppModel::backfillCoverageMinutesChanged);
    connect(&m_panel, &PanelState::pulsePrimaryOnceChanged, this,
            &AppModel::pulsePrimaryOnceChanged);
    // The panel's button pulses together with the capsule's introduction.
    connect(&m_surfaces, &SessionSurfaces::introduced, &m_panel,
            [this] { m_panel.setPulsePrimaryOnce(true); });
}

void AppModel::markWelcomeDone() {
    m_note.clear();
    m_practice.finishWelcome();
}

void AppModel::prepareForTerminationUnseen() {
    for (QObject* heard : {static_cast<QObject*>(this), static_cast<QObject*>(&m_tracker),
                           static_cast<QObject*>(&m_flow), static_cast<QObject*>(&m_env.skills),
                           static_cast<QObject*>(&m_note), static_cast<QObject*>(&m_panel),
                           static_cast<QObject*>(&m_env.notifications)})
        heard->blockSignals(true);
    m_surfaces.abandon();
    prepareForTermination();
}

void AppModel::quit() {
    prepareForTermination();
    m_env.terminate();
}

std::optional<QString> AppModel::projectName() const {
    const QString name = text::trimmed(settings::projectName.read(m_env.preferences));
    return name.isEmpty() ? std::nullopt : std::optional(name);
}

void AppModel::setProjectName(const QString& name) {
    settings::projectName.write(m_env.preferences, name);
}

} // namespace vantle

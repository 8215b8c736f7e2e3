#include "app/ModelWorld.h"

#include <cerrno>

namespace vantle::tests {

namespace {

using Operation = fakes::FaultyFileSystem::Operation;

QString hex(std::uint32_t rgb) {
    return QString::number(rgb, 16).toUpper().rightJustified(6, u'0');
}

QString nameOf(CeremonyShow show) {
    switch (show.kind) {
    case CeremonyShow::Full:
        return QStringLiteral("full");
    case CeremonyShow::Quick:
        return QStringLiteral("quick");
    case CeremonyShow::Collapse:
        return QStringLiteral("collapse");
    case CeremonyShow::Milestone:
        return QStringLiteral("milestone of %1 h").arg(show.hours);
    }
    Q_UNREACHABLE();
}

class RecordingRipple final : public collaborators::Ripple {
public:
    explicit RecordingRipple(Told& told) : m_told(told) {}
    void play(CeremonyShow show, std::uint32_t rgb, const std::optional<QString>& name) override {
        m_told.calls << QStringLiteral("ripple %1 %2 %3")
                            .arg(nameOf(show), hex(rgb), name.value_or(QStringLiteral("-")));
    }

private:
    Told& m_told;
};

class RecordingNotch final : public collaborators::Notch {
public:
    explicit RecordingNotch(Told& told) : m_told(told) {}
    void show(TrackerCore&, const Skill& skill, const std::vector<Skill>&, bool flash,
              std::function<void()> onStop, std::function<void(const QString&)> onPick) override {
        m_told.calls << QStringLiteral("notch show %1 flash %2").arg(skill.id).arg(flash);
        m_told.notchStop = std::move(onStop);
        m_told.notchPick = std::move(onPick);
    }
    void showIdlePrompt(TrackerCore&, const Skill& skill, const std::vector<Skill>&, bool flash,
                        std::function<void()> onStart, std::function<void(const QString&)> onPick,
                        collaborators::SkillEditCallbacks edit) override {
        m_told.calls << QStringLiteral("notch idle %1 flash %2").arg(skill.id).arg(flash);
        m_told.idleStart = std::move(onStart);
        m_told.idlePick = std::move(onPick);
        m_told.edit = std::move(edit);
    }
    void retag(const Skill& skill, bool flash) override {
        m_told.calls << QStringLiteral("notch retag %1 flash %2").arg(skill.id).arg(flash);
    }
    void hide() override { m_told.calls << QStringLiteral("notch hide"); }
    void flashSessionStart() override { m_told.calls << QStringLiteral("notch flash start"); }
    void flashIdleCard() override { m_told.calls << QStringLiteral("notch flash idle"); }

private:
    Told& m_told;
};

class RecordingCards final : public collaborators::StopSummary {
public:
    explicit RecordingCards(Told& told) : m_told(told) {}
    void show(const Content& content,
              std::function<void(const std::optional<QString>&)> onClose) override {
        m_told.calls << QStringLiteral("summary");
        m_told.summary = content;
        m_told.closeSummary = std::move(onClose);
    }

private:
    Told& m_told;
};

class RecordingRecovery final : public collaborators::Recovery {
public:
    explicit RecordingRecovery(Told& told) : m_told(told) {}
    void show(const Session& session, std::function<void()> onDiscard,
              std::function<void()> onKeep) override {
        m_told.calls << QStringLiteral("recovery %1").arg(session.activeSeconds);
        m_told.recoveryDiscard = std::move(onDiscard);
        m_told.recoveryKeep = std::move(onKeep);
    }
    void hideForEviction() override { m_told.calls << QStringLiteral("recovery hide"); }

private:
    Told& m_told;
};

class RecordingTagPrompt final : public collaborators::TagPrompt {
public:
    explicit RecordingTagPrompt(Told& told) : m_told(told) {}
    bool show(const QString& appName, const std::vector<Skill>&, bool isCounting, bool isBrowser,
              std::function<void(const Outcome&)> onResolve) override {
        m_told.calls << QStringLiteral("tag prompt %1 counting %2 browser %3")
                            .arg(appName)
                            .arg(isCounting)
                            .arg(isBrowser);
        m_told.resolveTag = std::move(onResolve);
        return m_told.promptsTaken;
    }
    bool showCorrection(const QString& appName, const Skill& skill,
                        std::function<void(bool)> onResolve) override {
        m_told.calls << QStringLiteral("correction %1 as %2").arg(appName, skill.id);
        m_told.resolveCorrection = std::move(onResolve);
        return m_told.promptsTaken;
    }

private:
    Told& m_told;
};

class RecordingToast final : public collaborators::RetagToast {
public:
    explicit RecordingToast(Told& told) : m_told(told) {}
    void show(const QString& name, std::uint32_t color, std::int64_t seconds) override {
        m_told.calls << QStringLiteral("toast %1 %2 %3").arg(name, hex(color)).arg(seconds);
    }

private:
    Told& m_told;
};

class RecordingFocusLink final : public collaborators::FocusLink {
public:
    explicit RecordingFocusLink(Told& told) : m_told(told) {}
    void sessionStarted() override { m_told.calls << QStringLiteral("focus started"); }
    void sessionEnded() override { m_told.calls << QStringLiteral("focus ended"); }

private:
    Told& m_told;
};

class RecordingAutoSkill final : public collaborators::AutoSkill {
public:
    explicit RecordingAutoSkill(Told& told) : m_told(told) {}
    void setHooks(Hooks hooks) override { m_told.hooks = std::move(hooks); }
    void refreshFromDefaults() override { m_told.calls << QStringLiteral("auto refresh"); }
    void clearSessionOverrides() override { m_told.calls << QStringLiteral("auto clear"); }
    void noteManualSkillChoice() override { m_told.calls << QStringLiteral("auto manual choice"); }
    std::optional<Application> frontmostAppForCorrection() override { return m_told.correctionApp; }
    std::optional<QString> ruling(const QString&) override { return m_told.correctionRuling; }
    bool mayOfferCorrectionPrompt(const QString&) override { return m_told.mayOfferCorrection; }
    void setRule(const QString& bundleId, const QString& ruling) override {
        m_told.calls << QStringLiteral("auto rule %1 %2").arg(bundleId, ruling);
    }
    void forgetPromptOffer(const QString& bundleId) override {
        m_told.calls << QStringLiteral("auto forget offer %1").arg(bundleId);
    }
    void noteTagPromptResolved(const QString& bundleId) override {
        m_told.calls << QStringLiteral("auto resolved %1").arg(bundleId);
    }
    void removeRules(const QString& skillId) override {
        m_told.calls << QStringLiteral("auto remove rules %1").arg(skillId);
    }
    void eraseAllData() override { m_told.calls << QStringLiteral("auto erase"); }
    void drainPendingIO() override {
        m_told.calls << QStringLiteral("auto drain");
        if (m_told.onAutoDrain) m_told.onAutoDrain();
    }
    bool isBrowser(const QString& bundleId, const QString&) override {
        return bundleId == QLatin1String("browser");
    }

private:
    Told& m_told;
};

} // namespace

Collaborators recordingCollaborators(Told& told) {
    Collaborators all;
    all.ripple = std::make_unique<RecordingRipple>(told);
    all.notch = std::make_unique<RecordingNotch>(told);
    all.stopSummary = std::make_unique<RecordingCards>(told);
    all.recovery = std::make_unique<RecordingRecovery>(told);
    all.tagPrompt = std::make_unique<RecordingTagPrompt>(told);
    all.retagToast = std::make_unique<RecordingToast>(told);
    all.focusLink = std::make_unique<RecordingFocusLink>(told);
    all.autoSkill = std::make_unique<RecordingAutoSkill>(told);
    return all;
}

ModelWorld::ModelWorld() {
    time.attach(ioQueue);
    idleSource.growFrom(0);
    preferences.setBoolean(preferencekeys::onboardDone, true);
}

ModelWorld::~ModelWorld() = default;

AppModel& ModelWorld::launch() {
    skills = std::make_unique<SkillList>(paths, ioQueue, preferences);
    Collaborators collaborators = recordingCollaborators(told);
    if (furnish) furnish(collaborators);
    model = std::make_unique<AppModel>(
        AppModel::Environment{.clock = time,
                              .scheduler = time,
                              .ioQueue = ioQueue,
                              .paths = paths,
                              .preferences = preferences,
                              .skills = *skills,
                              .notifications = notifications,
                              .idleSource = idleSource,
                              .screenPower = screens,
                              .hotKeyPort = hotKeyPort,
                              .reducedMotion = reducedMotion,
                              .cardSlot = cardSlot,
                              .frontmostApp = &frontmost,
                              .calendar =
                                  [] {
                                      return Calendar{QStringLiteral("UTC"), 2, 4};
                                  },
                              .terminate = [this] { ++terminations; }},
        std::move(collaborators));
    settle();
    return *model;
}

void ModelWorld::kill() {
    ioQueue.dropAll();
    model.reset();
    skills.reset();
    time.settle();
}

void ModelWorld::breakWrites(const QString& fileName, bool broken) {
    const QString temporary = QStringLiteral(".%1.*.tmp").arg(fileName);
    if (broken) {
        files.fail(Operation::Create, temporary, ENOSPC);
        files.fail(Operation::Write, fileName, ENOSPC);
    } else {
        files.heal(Operation::Create, temporary);
        files.heal(Operation::Write, fileName);
    }
}

std::vector<Session> ModelWorld::log() { return SessionLog(paths).readAll().sessions; }

bool ModelWorld::hasMarker() const { return disk.content(file("open-session.json")).has_value(); }

QString ModelWorld::note() const { return model->lastActionNote().value_or(QString()); }

QString ModelWorld::file(const char* name) {
    return QStringLiteral("/home/ada/.local/share/Vantle/") + QLatin1String(name);
}

} // namespace vantle::tests

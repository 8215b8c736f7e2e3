#include "app/ModelWorld.h"

#include "tracking/Settings.h"

#include <algorithm>
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
    void forgetNote() override { ++m_told.notesForgotten; }

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

} // namespace

Collaborators recordingCollaborators(Told& told) {
    Collaborators all;
    all.ripple = std::make_unique<RecordingRipple>(told);
    all.notch = std::make_unique<RecordingNotch>(told);
    all.stopSummary = std::make_unique<RecordingCards>(told);
    all.recovery = std::make_unique<RecordingRecovery>(told);
    all.tagPrompt = std::make_unique<RecordingTagPrompt>(told);
    all.retagToast = std::make_unique<RecordingToast>(told);
    return all;
}

ModelWorld::ModelWorld() : ModelWorld(disk) {}

ModelWorld::ModelWorld(FileSystem& other) : storage(other) {
    time.attach(ioQueue);
    time.attach(autoQueue);
    runner.onStart = [this](const Command& command) {
        told.calls << QStringLiteral("focus ") + command.arguments.last();
    };
    idleSource.growFrom(0);
    settings::welcomeDone.write(preferences, true);
}

ModelWorld::~ModelWorld() = default;

AppModel& ModelWorld::launch() {
    construct();
    settle();
    return *model;
}

void ModelWorld::construct() {
    skills = std::make_unique<SkillList>(paths, ioQueue, preferences);
    autoSkill = std::make_unique<AutoSkillMonitor>(
        AutoSkillMonitor::Environment{time, time, autoQueue, paths, preferences, *skills, frontmost,
                                      idleSource, QStringLiteral("local.vantle.Vantle")});
    model =
        std::make_unique<AppModel>(AppModel::Environment{.clock = time,
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
                                                         .autoSkill = *autoSkill,
                                                         .focusLink = focusLink,
                                                         .frontmostApp = frontmost,
                                                         .calendar = [this] { return calendar; },
                                                         .terminate = [this] { ++terminations; }},
                                   recordingCollaborators(told));
}

void ModelWorld::kill() {
    autoQueue.dropAll();
    ioQueue.dropAll();
    model.reset();
    autoSkill.reset();
    skills.reset();
    time.settle();
}

void ModelWorld::workIn(const Application& application, double seconds) {
    constexpr double kBetweenKeys = 10.0;
    frontmost.activate(application);
    for (double left = seconds; left > 0; left -= kBetweenKeys) {
        idleSource.touch();
        time.advance(std::min(left, kBetweenKeys));
    }
}

void ModelWorld::linkShortcuts() {
    settings::focusLinked.write(preferences, true);
    settings::startShortcut.write(preferences, QStringLiteral("started"));
    settings::stopShortcut.write(preferences, QStringLiteral("ended"));
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

bool ModelWorld::hasMarker() const { return storage.exists(file("open-session.json")); }

QString ModelWorld::note() const { return model->lastActionNote().value_or(QString()); }

QString ModelWorld::file(const char* name) {
    return QStringLiteral("/home/ada/.local/share/Vantle/") + QLatin1String(name);
}

} // namespace vantle::tests

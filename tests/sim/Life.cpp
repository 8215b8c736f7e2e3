#include "sim/Life.h"

#include "tracking/Settings.h"

#include <algorithm>
#include <array>
#include <cerrno>

namespace vantle::tests {

namespace {

using State = TrackerCore::State;

constexpr double kHour = 3600.0;

/// Some that auto mode knows, one that it asks about, a browser, and none at all.
std::optional<Application> application(std::size_t which) {
    static const std::array<Application, 6> all{
        Application{QStringLiteral("com.microsoft.VSCode"), QStringLiteral("Code")},
        Application{QStringLiteral("com.figma.Desktop"), QStringLiteral("Figma")},
        Application{QStringLiteral("com.hnc.Discord"), QStringLiteral("Discord")},
        Application{QStringLiteral("notion.id"), QStringLiteral("Notion")},
        Application{QStringLiteral("org.example.Unheard"), QStringLiteral("Unheard")},
        Application{QStringLiteral("browser"), QStringLiteral("Browser")}};
    return which < all.size() ? std::optional(all[which]) : std::nullopt;
}

} // namespace

Life::Life(std::uint32_t seed) : m_random(seed) {
    settings::autoStart.write(world.preferences, seed % 3 != 0);
    // Any day of a year, so that both changes of the clocks come to pass.
    world.time.shiftWall(seconds(0, 365 * 24 * kHour));
    launch();
}

Life::~Life() { end(); }

std::size_t Life::pick(std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(m_random);
}

double Life::seconds(double least, double most) {
    return std::uniform_real_distribution(least, most)(m_random);
}

void Life::launch() {
    world.launch();
    countSuggestions();
    promises.noteLaunch();
}

void Life::countSuggestions() {
    AutoSkillMonitor& monitor = *world.autoSkill;
    monitor.onAutoStart = [this, start = std::move(monitor.onAutoStart)](const QString& id) {
        ++sessionsByItself;
        start(id);
    };
    monitor.onRetagSuggested = [this,
                                split = std::move(monitor.onRetagSuggested)](const QString& id) {
        ++splits;
        split(id);
    };
}

void Life::end() {
    world.kill();
    loseOffer();
}

void Life::loseOffer() { world.told.recoveryKeep = nullptr; }

QStringList Life::day() {
    static constexpr std::array<Deed, 23> deeds{{{"work", &Life::work},
                                                 {"work", &Life::work},
                                                 {"work", &Life::work},
                                                 {"press", &Life::press},
                                                 {"press", &Life::press},
                                                 {"press", &Life::press},
                                                 {"away", &Life::beAway},
                                                 {"skill", &Life::changeSkill},
                                                 {"lock", &Life::lock},
                                                 {"lock and suspend", &Life::lockAndSuspend},
                                                 {"suspend", &Life::suspend},
                                                 {"freeze", &Life::freeze},
                                                 {"no counter", &Life::loseCounter},
                                                 {"clock", &Life::setClock},
                                                 {"disk", &Life::breakDisk},
                                                 {"fault", &Life::failOneOperation},
                                                 {"preferences", &Life::changePreferences},
                                                 {"zone", &Life::changeTimeZone},
                                                 {"die", &Life::die},
                                                 {"log by hand", &Life::logByHand},
                                                 {"edit", &Life::editLog},
                                                 {"garbage", &Life::writeGarbage},
                                                 {"quit", &Life::quitAndReturn}}};
    static constexpr std::array<Deed, 4> nights{{{"night asleep", &Life::sleepThroughNight},
                                                 {"night asleep", &Life::sleepThroughNight},
                                                 {"night off", &Life::switchOff},
                                                 {"night on", &Life::stayOn}}};
    for (std::size_t left = 4 + pick(10); left > 0; --left)
        if (const auto broken = perform(deeds[pick(deeds.size())]); !broken.isEmpty())
            return broken;
    return perform(nights[pick(nights.size())]);
}

QStringList Life::perform(const Deed& deed) {
    m_story << QLatin1String(deed.name);
    if (m_story.size() > 12) m_story.removeFirst();
    (this->*deed.act)();
    if (pick(2) == 0) answerOffer();
    if (pick(2) == 0) answerPrompt();
    world.settle();
    return std::exchange(m_brokenByDeed, {}) + promises.broken();
}

void Life::work() {
    switchApplication();
    for (double left = seconds(60, 4000); left > 0; left -= 20.0) {
        touch();
        world.time.advance(std::min(left, 20.0));
        if (pick(20) == 0) switchApplication();
    }
}

void Life::touch() {
    world.idleSource.touch();
    promises.noteInput();
}

void Life::switchApplication() { world.frontmost.activate(application(pick(7))); }

void Life::press() {
    touch();
    world.press();
}

void Life::beAway() { world.time.advance(seconds(10, 4000)); }

void Life::changeSkill() {
    const auto& skills = world.model->skills();
    world.model->selectSkill(skills[pick(skills.size())].id, AppModel::SkillSelectionOrigin::Human);
}

void Life::lock() {
    world.screens.sleep();
    promises.noteUnable(true);
    world.time.advance(seconds(1, 4000));
    if (pick(2) == 0) touch(); // the password
    world.time.advance(seconds(0, 8));
    promises.noteUnable(false);
    world.screens.wake();
}

void Life::lockAndSuspend() {
    world.screens.sleep();
    promises.noteUnable(true);
    world.time.advance(seconds(0, 200));
    world.time.suspend(seconds(60, 3 * kHour));
    world.time.advance(seconds(0, 200));
    promises.noteUnable(false);
    world.screens.wake();
}

void Life::suspend() {
    promises.noteInexact();
    world.time.suspend(seconds(2, 3 * kHour));
    if (pick(2) == 0) touch(); // before any timer
    if (pick(4) == 0) press();
    world.time.advance(seconds(0, 20));
}

void Life::freeze() {
    promises.noteUnable(true);
    world.time.freeze(seconds(25, 2000));
    promises.noteUnable(false);
    if (pick(4) == 0) press();
    world.time.advance(seconds(0, 20));
}

void Life::loseCounter() {
    promises.noteInexact();
    world.idleSource.becomeUnknown();
    world.time.advance(seconds(0, 1000));
    if (pick(2) == 0) lock();
    touch();
}

void Life::setClock() {
    world.time.shiftWall(seconds(-4000, 4000));
    promises.noteClockSet();
}

void Life::breakDisk() {
    promises.noteDiskBroken(true);
    world.breakWrites(QStringLiteral("sessions.jsonl"), true);
    if (pick(2) == 0) world.breakWrites(QStringLiteral("open-session.json"), true);
    for (int deed = 0; deed < 3; ++deed) {
        work();
        press();
    }
    healDisk();
}

void Life::failOneOperation() {
    // Not the mode: where that alone fails, a record is in the log before it is acknowledged.
    using Operation = fakes::FaultyFileSystem::Operation;
    static constexpr std::array operations{Operation::Create, Operation::Open, Operation::Read,
                                           Operation::Write,  Operation::Sync, Operation::Size,
                                           Operation::Rename, Operation::Names};
    static constexpr std::array codes{ENOSPC, EDQUOT, EIO, EACCES, EROFS, EMFILE, EINTR};
    const Operation operation = operations[pick(operations.size())];
    promises.noteDiskBroken(true);
    world.files.fail(operation, QStringLiteral("*"), codes[pick(codes.size())]);
    work();
    press();
    world.files.heal(operation, QStringLiteral("*"));
    // What could not be written is written with the next minute.
    work();
    promises.noteDiskBroken(false);
}

void Life::changePreferences() {
    promises.noteInexact();
    auto& preferences = world.preferences;
    settings::autoStart.write(preferences, pick(2) == 0);
    settings::autoMode.write(preferences, pick(4) != 0);
    settings::idleThresholdSeconds.write(preferences, 60.0 * double(1 + pick(10)));
    settings::dailyGoalHours.write(preferences, double(pick(12)));
}

void Life::changeTimeZone() {
    static constexpr std::array zones{"Europe/Berlin", "America/New_York", "Asia/Kolkata",
                                      "Australia/Lord_Howe", "Pacific/Apia"};
    world.calendar = Calendar{QString::fromLatin1(zones[pick(zones.size())]), int(pick(7)) + 1,
                              1 + int(pick(7))};
    world.model->refreshPanelState();
}

void Life::healDisk() {
    world.breakWrites(QStringLiteral("sessions.jsonl"), false);
    world.breakWrites(QStringLiteral("open-session.json"), false);
    promises.noteDiskBroken(false);
}

void Life::die() {
    if (pick(2) == 0) {
        // A session of its own, in which nothing happened that excuses a loss.
        if (tracker().state() != State::Idle) press();
        press();
        // Longer than any stay after which auto mode splits it, and worth an offer after that.
        for (double left = seconds(300, 1500); left > 0; left -= 20.0) {
            touch();
            world.time.advance(20.0);
        }
    }
    m_brokenByDeed << killAndReturn();
}

QStringList Life::killAndReturn(const std::function<void()>& meanwhile) {
    const auto least = promises.leastOffer();
    const auto counted = static_cast<double>(tracker().displayActiveSeconds());
    end();
    if (meanwhile) meanwhile();
    world.told.calls.clear();
    launch();
    if (!least) return {};
    ++promises.killsChecked;
    QStringList broken;
    double offered = -1;
    for (const QString& call : world.told.calls)
        if (call.startsWith(QStringLiteral("recovery ")) && !call.endsWith(u'e'))
            offered = call.sliced(9).toDouble();
    if (offered < *least)
        broken << QStringLiteral("a kill costs a minute: %1 of %2 s offered")
                      .arg(offered)
                      .arg(counted);
    if (offered > counted + 1)
        broken << QStringLiteral("a kill invents nothing: %1 of %2 s offered")
                      .arg(offered)
                      .arg(counted);
    return broken;
}

void Life::answerOffer() {
    if (!world.told.recoveryKeep || tracker().state() != State::Idle) return;
    promises.noteInexact(); // it counts by the marker
    (pick(2) == 0 ? world.told.recoveryKeep : world.told.recoveryDiscard)();
    // A keep that can't be written leaves the offer open.
    if (!world.hasMarker()) loseOffer();
}

void Life::answerPrompt() {
    using Outcome = collaborators::TagPrompt::Outcome;
    if (const auto resolve = std::exchange(world.told.resolveTag, nullptr)) {
        static constexpr std::array kinds{Outcome::Kind::Tagged, Outcome::Kind::Ignore,
                                          Outcome::Kind::Dismiss};
        const auto& skills = world.model->skills();
        resolve({kinds[pick(kinds.size())], skills[pick(skills.size())].id});
    }
    if (const auto resolve = std::exchange(world.told.resolveCorrection, nullptr))
        resolve(pick(2) == 0);
}

void Life::logByHand() {
    (void)world.model->quickLog(world.model->skills().front().id, static_cast<int>(pick(1000)),
                                QStringLiteral("by\nhand"));
}

void Life::editLog() {
    const auto log = world.log();
    if (log.empty()) return;
    const QUuid id = log[pick(log.size())].id;
    if (pick(2) == 0)
        (void)tracker().updateNote(id, QStringLiteral("a \u2028 note"));
    else if (tracker().deleteSession(id))
        promises.noteDelete(id);
}

void Life::writeGarbage() {
    // Another program appends a line of its own, whole lines only.
    const QString path = ModelWorld::file("sessions.jsonl");
    const QByteArray line = "garbage " + QByteArray::number(++m_garbageCount);
    world.disk.setContent(path, world.disk.content(path).value_or(QByteArray()) + line + '\n');
    promises.noteGarbage(line);
}

void Life::quitAndReturn() {
    world.model->quit();
    end();
    launch();
}

void Life::sleepThroughNight() {
    promises.noteInexact();
    const bool locks = pick(3) != 0;
    if (locks) {
        world.screens.sleep();
        promises.noteUnable(true);
    }
    // Some machines wake now and then and go on sleeping.
    for (std::size_t part = 1 + pick(3); part > 0; --part) {
        world.time.suspend(seconds(2 * kHour, 4 * kHour));
        world.time.advance(seconds(0, 15));
    }
    if (!locks) return;
    promises.noteUnable(false);
    world.screens.wake();
}

void Life::stayOn() { world.time.advance(seconds(6 * kHour, 10 * kHour)); }

void Life::switchOff() {
    if (pick(2) == 0) world.model->quit();
    end();
    world.time.suspend(seconds(6 * kHour, 10 * kHour));
    launch();
}

} // namespace vantle::tests

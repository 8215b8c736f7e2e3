#include "lab/ScriptedLife.h"

#include "lab/SeededIds.h"
#include "platform/WholeFile.h"
#include "sensing/AutoRules.h"
#include "tracking/Samples.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace vantle::tests {

namespace {

using State = TrackerCore::State;

constexpr double kBetweenKeys = 10.0;

/// After an absence the monitor sees the first key by its next look, and that much is not counted.
constexpr double kLookAfterAbsence = 11.0;

/// Of the start and of the count of a record.
constexpr double kRounding = 1.5;

qint64 wholeSecond(Date date) { return qint64(std::floor(epochSeconds(date))); }

QString pathIn(const char* directory, const char* name) {
    return QStringLiteral("/home/ada/.local/share/%1/%2")
        .arg(QLatin1String(directory), QLatin1String(name));
}

/// Adds a directory with its parents. Their names are safe, as are those of `addFile`.
void addDirectory(FileSystem& disk, const QString& path, int mode) {
    disk.makeDirectories(path, mode).ignore();
    for (QString above = path; !above.isEmpty();
         above.truncate(above.lastIndexOf(QLatin1Char('/'))))
        disk.syncDirectory(above).ignore();
    disk.syncDirectory(QStringLiteral("/")).ignore();
}

void addFile(FileSystem& disk, const QString& path, const QByteArray& content) {
    createFile(disk, path, content).ignore();
    disk.syncDirectory(path.left(path.lastIndexOf(QLatin1Char('/')))).ignore();
}

} // namespace

ScriptedLife::ScriptedLife(std::uint32_t seed, Home begins) : home(begins), m_random(seed) {
    prepare(seed);
}

ScriptedLife::ScriptedLife(std::uint32_t seed, Home begins, FileSystem& storage)
    : world(storage)
    , home(begins)
    , m_random(seed) {
    prepare(seed);
}

void ScriptedLife::prepare(std::uint32_t seed) {
    seedIds(seed);
    prepareDisk();
    chooseDeeds();
}

ScriptedLife::~ScriptedLife() {
    world.told.recoveryKeep = nullptr;
    world.kill();
}

std::size_t ScriptedLife::pick(std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(m_random);
}

QString ScriptedLife::noteText() { return QStringLiteral("note ").repeated(qsizetype(pick(90))); }

void ScriptedLife::prepareDisk() {
    FileSystem& disk = world.storage;
    addDirectory(disk, QStringLiteral("/home/ada/Pictures"), 0755);
    if (home == Home::Nothing) return;
    addDirectory(disk, QStringLiteral("/home/ada/.local/share"), 0755);
    if (home == Home::New) return;
    const char* directory = home == Home::Upgrade ? "Hourfold" : "Vantle";
    addDirectory(disk, pathIn(directory, "").chopped(1), 0700);
    if (home == Home::Empty) return;
    const int count = 4 + int(pick(24));
    QByteArray log;
    for (int number = 1; number <= count; ++number) {
        Session session = samples::session(number);
        session.note = noteText();
        log += samples::line(session);
        if (number % 7 == 3)
            log += "a line of another program " + QByteArray::number(number) + '\n';
    }
    addFile(disk, pathIn(directory, "sessions.jsonl"), log);
    addFile(disk, pathIn(directory, "skills.json"), json::encode(samples::seeds()));
    settings::skillsMigrationVersion.write(world.preferences, 1);
    m_acknowledged.records = count;
    if (home == Home::Upgrade) m_oldLog = log;
}

void ScriptedLife::chooseDeeds() {
    using L = ScriptedLife;
    m_deeds = {{"start", &L::start},
               {"work", &L::work},
               {"stop", &L::stop},
               {"log by hand", &L::logByHand},
               {"edit", &L::editNote},
               {"delete", &L::deleteRecord},
               {"add skill", &L::addSkill},
               {"update skill", &L::updateSkill},
               {"delete skill", &L::deleteSkill},
               {"rule", &L::setRule},
               {"no rule", &L::dropRule},
               {"export", &L::exportPicture},
               {"away", &L::beAway},
               {"change skill", &L::changeSkill},
               {"quit", &L::quitAndReturn},
               {"kill", &L::killAndAnswer},
               {"start", &L::start},
               {"work", &L::work},
               {"work", &L::work},
               {"stop", &L::stop},
               {"edit", &L::editNote},
               {"delete", &L::deleteRecord}};
    std::ranges::shuffle(m_deeds, m_random);
    m_deeds.insert(m_deeds.begin(), {"launch", &L::launch});
    if (pick(2) == 0) m_deeds.insert(m_deeds.end() - 6, {"erase", &L::erase});
    m_deeds.push_back({"start", &L::start});
    m_deeds.push_back({"work", &L::work});
    m_deeds.push_back({"quit", &L::quitAndReturn});
}

void ScriptedLife::perform(const Deed& deed) {
    if (world.model) {
        // No two sessions start in one second, by which they are told apart.
        world.idleSource.touch();
        world.time.advance(2.0);
        if (m_open && tracker().state() == State::Running) m_open->seconds += 2.0;
    }
    (this->*deed.act)();
    world.settle();
}

std::optional<ScriptedLife::OpenSession> ScriptedLife::openSession() const {
    if (m_offered) return m_offered;
    if (!isOpen() || m_isErasing) return std::nullopt;
    return OpenSession{wholeSecond(*tracker().startedAt()),
                       double(tracker().displayActiveSeconds())};
}

bool ScriptedLife::isOpen() const {
    return world.model && tracker().state() != State::Idle && tracker().startedAt();
}

QMap<QString, QString> ScriptedLife::preferences() const {
    QMap<QString, QString> texts;
    for (const QString& key : world.preferences.keys())
        texts[key] = world.preferences.raw(key).value_or(QString());
    return texts;
}

void ScriptedLife::followSessions() {
    QObject::connect(&tracker(), &TrackerCore::stateChanged, &tracker(), [this] {
        if (tracker().state() == State::Idle)
            noteEnd();
        else if (!m_open)
            noteStart();
    });
}

void ScriptedLife::noteStart() {
    m_open = Worked{wholeSecond(tracker().startedAt().value_or(world.time.now())), 0, kRounding};
}

void ScriptedLife::noteEnd() {
    const auto ended = std::exchange(m_open, std::nullopt);
    if (!ended || m_isErasing) return;
    m_acknowledged.ended.push_back(*ended);
    ++m_acknowledged.records;
}

void ScriptedLife::launch() {
    world.launch();
    followSessions();
    // A directory that could not be moved stays behind with its records, and is not looked at
    // again.
    const bool isFirst = m_acknowledged.ended.empty() && !m_isLeftBehind;
    if (isFirst && !m_oldLog.isEmpty() &&
        world.storage.exists(pathIn("Hourfold", "sessions.jsonl"))) {
        m_isLeftBehind = true;
        m_acknowledged = {};
    }
}

bool ScriptedLife::hasOldLog() const {
    if (!m_isLeftBehind) return true;
    const auto log = world.storage.readAll(pathIn("Hourfold", "sessions.jsonl"));
    return log && log.value() == m_oldLog;
}

void ScriptedLife::start() {
    if (!isOpen()) world.press();
}

void ScriptedLife::work() {
    world.frontmost.activate(
        Application{QStringLiteral("org.example.Unheard"), QStringLiteral("Unheard")});
    for (std::size_t left = 3 + pick(20); left > 0; --left) {
        world.idleSource.touch();
        world.time.advance(kBetweenKeys);
        if (m_open && tracker().state() == State::Running) m_open->seconds += kBetweenKeys;
    }
    world.told.resolveTag = nullptr;
}

void ScriptedLife::beAway() {
    world.idleSource.touch();
    world.time.advance(200.0 + double(pick(400)));
    world.idleSource.touch();
    world.time.advance(kBetweenKeys);
    if (!m_open) return;
    m_open->seconds += kBetweenKeys;
    m_open->tolerance += kLookAfterAbsence;
}

void ScriptedLife::changeSkill() {
    const auto& skills = world.model->skills();
    world.model->selectSkill(skills[pick(skills.size())].id, AppModel::SkillSelectionOrigin::Human);
}

void ScriptedLife::stop() {
    if (!isOpen()) return;
    world.press();
    if (const auto close = std::exchange(world.told.closeSummary, nullptr); close && !isOpen())
        close(noteText());
}

void ScriptedLife::logByHand() {
    const QString note =
        pick(2) == 0 ? noteText() : QStringLiteral("Übung für später ").repeated(9);
    if (world.model->quickLog(world.model->skills().front().id, 1 + int(pick(300)), note))
        ++m_acknowledged.records;
}

void ScriptedLife::editNote() {
    const auto ids = Account::of(world.storage).records.keys();
    if (ids.isEmpty()) return;
    (void)tracker().updateNote(QUuid(ids[qsizetype(pick(std::size_t(ids.size())))]), noteText());
}

void ScriptedLife::deleteRecord() {
    const Account account = Account::of(world.storage);
    if (account.records.isEmpty()) return;
    const QString id = account.records.keys()[qsizetype(pick(std::size_t(account.records.size())))];
    if (!tracker().deleteSession(QUuid(id))) return;
    --m_acknowledged.records;
    std::erase_if(m_acknowledged.ended, [&](const Worked& worked) {
        for (const QJsonObject& record : account.startingAt(worked.start))
            if (record.value(QStringLiteral("id")).toString() == id) return true;
        return false;
    });
}

void ScriptedLife::addSkill() {
    world.model->addSkill(QStringLiteral("Mine %1").arg(++m_skillsMade), 0x112233);
}

void ScriptedLife::updateSkill() {
    const Skill skill = world.model->skills()[pick(world.model->skills().size())];
    world.model->updateSkill(skill.id, QStringLiteral("Called %1").arg(++m_skillsMade),
                             std::uint32_t(pick(0xFFFFFF)));
}

void ScriptedLife::deleteSkill() { world.model->deleteSkill(world.model->skills().back().id); }

void ScriptedLife::setRule() {
    world.autoSkill->rules().setRule(QStringLiteral("org.example.%1").arg(pick(5)),
                                     world.model->skills().front().id);
}

void ScriptedLife::dropRule() {
    const auto& rules = world.autoSkill->rules().rules();
    if (!rules.isEmpty()) world.autoSkill->rules().setRule(rules.firstKey(), std::nullopt);
}

void ScriptedLife::exportPicture() {
    const QByteArray picture(qsizetype(200 + pick(3000)), char('a' + pick(20)));
    exportFile(world.files, QLatin1String(kExportedFile), picture).ignore();
}

void ScriptedLife::quitAndReturn() {
    world.model->prepareForTermination();
    world.settle();
    world.kill();
    world.time.advance(60.0);
    launch();
}

void ScriptedLife::killAndAnswer() {
    m_offered = openSession();
    const auto worked = std::exchange(m_open, std::nullopt);
    world.kill();
    world.told.calls.clear();
    world.told.recoveryKeep = world.told.recoveryDiscard = nullptr;
    world.time.advance(300.0);
    launch();
    if (!world.told.recoveryKeep) {
        m_offered.reset();
        return;
    }
    if (pick(2) == 0) {
        // A marker that could not be removed offers a session that has ended. Its record is in the
        // log, or was deleted and is wanted again.
        const bool isLogged = Account::of(world.storage).records.contains(offeredId());
        world.told.recoveryKeep();
        // By what the user reads: the marker may stay behind once more.
        if (!isLogged && !tracker().storageError()) {
            ++m_acknowledged.records;
            if (worked)
                m_acknowledged.ended.push_back(
                    {worked->start, worked->seconds, worked->tolerance + 61});
        }
    } else {
        m_offered.reset(); // from here on it may be gone
        world.told.recoveryDiscard();
    }
    world.settle();
    m_offered.reset();
}

QString ScriptedLife::offeredId() const {
    const auto marker = world.storage.readAll(ModelWorld::file("open-session.json"));
    if (!marker) return {};
    return QJsonDocument::fromJson(marker.value()).object().value(QStringLiteral("id")).toString();
}

void ScriptedLife::erase() {
    m_isErasing = true;
    const auto problem = world.model->eraseEverything();
    world.settle();
    // Until the welcome is done again, sessions are practice.
    world.model->markWelcomeDone();
    m_isErasing = false;
    m_open.reset();
    static const QRegularExpression keptLog(QStringLiteral("(?<!corrupt-)sessions\\.jsonl"));
    if (!problem || !problem->contains(keptLog)) m_acknowledged = {};
}

} // namespace vantle::tests

// What holds for every log and every sequence of changes.
#include "tracking/Generators.h"
#include "tracking/SessionLines.h"
#include "tracking/TrackingWorld.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>

namespace vantle {
namespace {

using Lines = std::vector<QByteArray>;

rc::Gen<Lines> lines() { return rc::gen::container<Lines>(generators::line()); }

QByteArray joined(const Lines& all, const QByteArray& separator = "\n") {
    QByteArray text;
    for (const QByteArray& line : all)
        text += line + separator;
    return text;
}

/// The id of one of the lines that hold a record; a strange one when none does.
QUuid someId(const Lines& all) {
    std::vector<QUuid> ids = {samples::id(4711)};
    for (const QByteArray& line : all)
        if (const auto session = json::decodeSession(line)) ids.push_back(session->id);
    return ids.size() == 1 ? ids[0] : ids[*rc::gen::inRange<std::size_t>(1, ids.size())];
}

RC_GTEST_PROP(LogProperties, EveryLineIsARecordInOrderOrCountsAsUnreadable, ()) {
    const Lines all = *lines();
    TrackingWorld world;
    world.put(TrackingWorld::log, joined(all, *rc::gen::elementOf(Lines{"\n", "\r\n", "\u2029"})));
    std::vector<Session> expected;
    for (const QByteArray& line : all)
        if (const auto s = json::decodeSession(line); s && isAcceptable(*s)) expected.push_back(*s);
    const auto unreadable = all.size() - expected.size();
    std::ranges::stable_sort(expected, {}, &Session::endedAt);
    RC_ASSERT(world.tracker.allSessions() == expected);
    const QString warning = world.tracker.dataWarning().value_or(QStringLiteral("0 "));
    RC_ASSERT(warning.section(QLatin1Char(' '), 0, 0).toULongLong() == unreadable);
}

RC_GTEST_PROP(LogProperties, ANewNoteTouchesOnlyTheLinesOfItsRecord, ()) {
    const Lines all = *lines();
    const QUuid id = someId(all);
    const QString note = *generators::text(10);
    TrackingWorld world;
    const QByteArray before = joined(all);
    world.put(TrackingWorld::log, before);
    const bool done = world.tracker.updateNote(id, note);

    Lines expected;
    bool found = false;
    bool refused = false;
    for (const QByteArray& line : all) {
        auto session = json::decodeSession(line);
        if (session && session->id == id) {
            found = true;
            session->note = cleanedNote(note);
            refused = refused || !isAcceptable(*session);
            expected.push_back(json::encode(*session).value());
        } else {
            expected.push_back(line);
        }
    }
    RC_CLASSIFY(done, "changed");
    RC_ASSERT(done == (found && !refused));
    RC_ASSERT(world.content(TrackingWorld::log) == (done ? joined(expected) : before));
    RC_ASSERT(world.tracker.storageError().has_value() == refused);
}

RC_GTEST_PROP(LogProperties, ADeletionTakesOutOnlyTheLinesOfItsRecord, ()) {
    const Lines all = *lines();
    const QUuid id = someId(all);
    TrackingWorld world;
    const QByteArray before = joined(all);
    world.put(TrackingWorld::log, before);
    const bool done = world.tracker.deleteSession(id);

    Lines rest;
    for (const QByteArray& line : all) {
        const auto session = json::decodeSession(line);
        if (!session || session->id != id) rest.push_back(line);
    }
    RC_ASSERT(done == (rest.size() < all.size()));
    const auto after = world.content(TrackingWorld::log);
    RC_ASSERT(after == (rest.empty() && done ? std::nullopt : std::optional(joined(rest))));
    // A second time there is nothing left to delete.
    RC_ASSERT(!world.tracker.deleteSession(id));
}

RC_GTEST_PROP(LogProperties, WhatIsAppendedIsReadBack, ()) {
    const auto sessions =
        *rc::gen::container<std::vector<Session>>(generators::acceptableSession());
    TrackingWorld world;
    QByteArray expected;
    for (const Session& session : sessions) {
        RC_ASSERT(world.tracker.appendToLog(session));
        expected += samples::line(session);
    }
    RC_ASSERT(world.content(TrackingWorld::log).value_or(QByteArray()) == expected);
    std::vector<Session> sorted = sessions;
    std::ranges::stable_sort(sorted, {}, &Session::endedAt);
    RC_ASSERT(world.tracker.allSessions() == sorted);
}

RC_GTEST_PROP(LogProperties, ALoadedSkillListIsAlwaysInOrderAndStaysAsItIs, ()) {
    const auto stored = *rc::gen::container<std::vector<Skill>>(generators::skill());
    TrackingWorld world;
    world.put(TrackingWorld::skillsFile, json::encode(stored));
    const std::vector<Skill> loaded = world.skills.all();
    RC_ASSERT(!loaded.empty());
    RC_ASSERT(loaded.size() <= std::size_t(Skill::maxCount));
    for (const Skill& skill : loaded) {
        RC_ASSERT(Skill::isAcceptableId(skill.id));
        RC_ASSERT(Skill::isAcceptableName(skill.name));
        RC_ASSERT(Skill::cleanedName(skill.name) == skill.name);
        RC_ASSERT(skill.hexRGB <= Skill::colorMask);
        RC_ASSERT(skill.builtin == Skill::seedDefinition(skill.id).has_value());
        RC_ASSERT(std::ranges::count(loaded, skill.id, &Skill::id) == 1);
    }
    SkillList again(world.paths, world.process.queue, world.preferences);
    RC_ASSERT(again.all() == loaded);
}

RC_GTEST_PROP(LogProperties, ANewSkillIsAcceptableUniqueAndRemembered, ()) {
    TrackingWorld world;
    const QString name = *generators::text(24);
    const std::size_t before = world.skills.all().size();
    const auto added = world.skills.addCustom(name, *rc::gen::arbitrary<std::uint32_t>());
    RC_CLASSIFY(added.has_value(), "added");
    RC_ASSERT(world.skills.all().size() == before + (added ? 1 : 0));
    if (!added) return;
    RC_ASSERT(Skill::isAcceptableId(added->id) || added->id.size() > Skill::maxIdLength);
    RC_ASSERT(std::ranges::count(world.skills.all(), added->id, &Skill::id) == 1);
    SkillList again(world.paths, world.process.queue, world.preferences);
    RC_ASSERT(again.all() == world.skills.all());
    RC_ASSERT(!world.skills.addCustom(name, 0).has_value());
}

} // namespace
} // namespace vantle

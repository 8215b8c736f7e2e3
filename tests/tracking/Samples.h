// Valid records, to be varied by tests.
#pragma once

#include "base/Iso8601.h"
#include "tracking/JsonForm.h"
#include "tracking/Session.h"
#include "tracking/Skill.h"

#include <QByteArray>

namespace vantle::samples {

/// Parses a date; the epoch for an invalid text.
[[nodiscard]] inline Date at(std::string_view text) {
    return iso8601::parse(text).value_or(dateFromEpoch(0));
}

/// Returns the id that ends in these digits.
[[nodiscard]] inline QUuid id(int number) {
    return QUuid::fromString(
        QStringLiteral("0F6B1D1E-4A52-4C1B-9A1E-%1").arg(number, 12, 10, QLatin1Char('0')));
}

/// The start of virtual time: 2026-03-01T10:00:00Z, a Sunday.
[[nodiscard]] inline Date morning() { return at("2026-03-01T10:00:00Z"); }

/// Half an hour of building; `number` sets id and hour.
[[nodiscard]] inline Session session(int number = 1) {
    const Date start = at("2026-02-01T10:00:00Z") + Seconds(3600.0 * number);
    return {id(number), QStringLiteral("building"), start,      start + Seconds(1800),
            1800,       QStringLiteral("note"),     sourceApp()};
}

/// Half an hour that ended at `end`.
[[nodiscard]] inline Session sessionEnding(Date end, std::int64_t seconds = 1800) {
    Session result = session();
    result.startedAt = end - Seconds(static_cast<double>(seconds));
    result.endedAt = end;
    result.activeSeconds = seconds;
    return result;
}

[[nodiscard]] inline OpenSessionMarker marker() {
    return {id(7), QStringLiteral("building"), morning(), 1800, morning() + Seconds(1800)};
}

[[nodiscard]] inline QByteArray line(const Session& session) {
    return json::encode(session).value() + '\n';
}

[[nodiscard]] inline Skill skill(const QString& id) { return {id, id, 0x7A78FF, false}; }

[[nodiscard]] inline std::vector<Skill> seeds() {
    return {Skill::defaults().begin(), Skill::defaults().end()};
}

} // namespace vantle::samples

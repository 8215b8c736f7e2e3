#include "tracking/Generators.h"

#include "tracking/JsonForm.h"
#include "tracking/SessionLines.h"

#include <QStringDecoder>

#include <algorithm>

namespace vantle {

std::ostream& operator<<(std::ostream& out, const Session& session) {
    const auto encoded = json::encode(session);
    return out << (encoded ? encoded.value().toStdString() : "a session without a written form");
}

std::ostream& operator<<(std::ostream& out, const OpenSessionMarker& marker) {
    const auto encoded = json::encode(marker);
    return out << (encoded ? encoded.value().toStdString() : "a marker without a written form");
}

std::ostream& operator<<(std::ostream& out, const Skill& skill) {
    return out << json::encode(std::vector{skill}).toStdString();
}

namespace generators {

namespace {

using Scalars = std::u32string;

/// Characters with a part to play: in JSON, as ends of lines, as white space, in clusters.
const Scalars& special() {
    using namespace std::string_view_literals; // one of them is NUL
    static const Scalars scalars(U"\"\\/{}[]:,\b\f\n\r\t\v\0\u0001\u001f\u007f\u0080\u0084\u0085"
                                 U"\u0086\u00a0\u2003\u2027\u2028\u2029\u202a\u3000\u200b\u200d"
                                 U"\u0301\u0308\u20e3\ufe0f\ufeff\ufffd\u00df\u0130\u1e9e"sv);
    return scalars;
}

rc::Gen<char32_t> scalar() {
    const auto letters = rc::gen::cast<char32_t>(rc::gen::inRange(0x20, 0x7F));
    const auto any = rc::gen::map(rc::gen::inRange(0x80, 0x110000 - 0x800), [](int n) {
        return static_cast<char32_t>(n < 0xD800 ? n : n + 0x800); // around the surrogates
    });
    return rc::gen::weightedOneOf<char32_t>({{6, letters},
                                             {3, rc::gen::elementOf(special())},
                                             {1, rc::gen::elementOf(Scalars(U"😀👩👧🇩🇪日本"))},
                                             {1, any}});
}

QString toText(const std::vector<char32_t>& scalars) {
    return QString::fromUcs4(scalars.data(), static_cast<qsizetype>(scalars.size()));
}

rc::Gen<QUuid> id() {
    return rc::gen::map(
        rc::gen::tuple(rc::gen::arbitrary<std::uint32_t>(), rc::gen::arbitrary<std::uint64_t>()),
        [](const auto& parts) {
            const auto [high, low] = parts;
            const auto byte = [low = low](int i) { return uchar(low >> (8 * i)); };
            return QUuid(high, ushort(high >> 3), 0x4abc, byte(0), byte(1), byte(2), byte(3),
                         byte(4), byte(5), byte(6), byte(7));
        });
}

/// Mostly counts that make sense, sometimes anything.
rc::Gen<std::int64_t> seconds() {
    return rc::gen::weightedOneOf<std::int64_t>(
        {{4, rc::gen::inRange<std::int64_t>(0, kMaxSessionSeconds + 2)},
         {1, rc::gen::arbitrary<std::int64_t>()}});
}

rc::Gen<SessionSource> source() {
    return rc::gen::weightedOneOf<SessionSource>(
        {{5, rc::gen::elementOf(std::vector{sourceApp(), sourceManual()})},
         {1, rc::gen::map(text(6), [](const QString& other) { return SessionSource(other); })}});
}

rc::Gen<QString> skillId() {
    return rc::gen::elementOf(std::vector{QStringLiteral("building"), QStringLiteral("marketing"),
                                          QStringLiteral("code"), QStringLiteral("old_thing")});
}

bool isUtf8(const QByteArray& bytes) {
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    return !decoder.hasError() && text.toUtf8() == bytes;
}

/// Whether the bytes are one line as a reader of logs would cut it.
bool isOneLine(const QByteArray& bytes) {
    int count = 0;
    sessionlines::forEachLine(
        bytes, [&](QByteArrayView line) { count += line.size() == bytes.size() ? 1 : 2; });
    return count == 1 && isUtf8(bytes);
}

QByteArray mutated(QByteArray line, const std::vector<std::tuple<int, int, QByteArray>>& cuts) {
    for (const auto& [at, length, replacement] : cuts)
        line.replace(at % (line.size() + 1), length, replacement);
    return line;
}

/// Bits that a damage or another program could leave in a line.
rc::Gen<QByteArray> fragment() {
    const std::vector<QByteArray> usual = {"",
                                           "0",
                                           "-",
                                           "9999999999999999999",
                                           "1.5",
                                           "e1",
                                           "\"",
                                           "\\",
                                           "\\u00",
                                           "\\ud83d",
                                           "{",
                                           "}",
                                           ",",
                                           ":",
                                           "null",
                                           "true",
                                           " ",
                                           "\"id\":",
                                           "Z",
                                           "a",
                                           "\"x\":[{}],",
                                           "}}",
                                           "\xC3\xA9",
                                           "[[[["};
    return rc::gen::weightedOneOf<QByteArray>(
        {{4, rc::gen::elementOf(usual)},
         {1, rc::gen::map(text(3), [](const QString& t) { return t.toUtf8(); })}});
}

rc::Gen<QByteArray> encodedSession() {
    return rc::gen::map(session(), [](const Session& s) { return json::encode(s).value(); });
}

rc::Gen<QByteArray> damagedSession() {
    const auto cut = rc::gen::tuple(rc::gen::inRange(0, 400), rc::gen::inRange(0, 4), fragment());
    const auto cuts = rc::gen::scale(
        0.05,
        rc::gen::nonEmpty(rc::gen::container<std::vector<std::tuple<int, int, QByteArray>>>(cut)));
    return rc::gen::apply(mutated, encodedSession(), cuts);
}

} // namespace

rc::Gen<QString> text(int maxLength) {
    return rc::gen::map(rc::gen::mapcat(rc::gen::inRange(0, maxLength + 1),
                                        [](int length) {
                                            return rc::gen::container<std::vector<char32_t>>(
                                                std::size_t(length), scalar());
                                        }),
                        toText);
}

rc::Gen<Date> date() {
    constexpr std::int64_t kFirst = -62135596800; // 0001-01-01T00:00:00Z
    constexpr std::int64_t kEnd = 253402300800;   // 10000-01-01T00:00:00Z
    constexpr std::int64_t kRecent = 1'700'000'000;
    return rc::gen::map(
        rc::gen::weightedOneOf<std::int64_t>(
            {{3, rc::gen::inRange<std::int64_t>(kRecent, kRecent + 200'000'000)},
             {1, rc::gen::inRange<std::int64_t>(kFirst, kEnd)}}),
        [](std::int64_t epoch) { return dateFromEpoch(static_cast<double>(epoch)); });
}

rc::Gen<Session> session() {
    return rc::gen::construct<Session>(
        id(), rc::gen::weightedOneOf<QString>({{3, skillId()}, {1, text(70)}}), date(), date(),
        seconds(), text(), source());
}

rc::Gen<Session> acceptableSession() {
    const auto make = [](const QUuid& sessionId, const QString& skill, std::int64_t end,
                         std::int64_t length, std::int64_t active, const QString& note,
                         const SessionSource& from) {
        const Date endedAt = dateFromEpoch(1'772'000'000.0 + static_cast<double>(end));
        return Session{sessionId,
                       skill,
                       endedAt - Seconds(static_cast<double>(length)),
                       endedAt,
                       std::min(active, length),
                       note,
                       from};
    };
    return rc::gen::apply(make, id(), skillId(), rc::gen::inRange<std::int64_t>(0, 3'000'000),
                          rc::gen::inRange<std::int64_t>(0, 40'000),
                          rc::gen::inRange<std::int64_t>(0, 40'000), text(12),
                          rc::gen::elementOf(std::vector{sourceApp(), sourceManual()}));
}

rc::Gen<std::vector<Session>> history() {
    return rc::gen::map(rc::gen::container<std::vector<Session>>(acceptableSession()),
                        [](std::vector<Session> sessions) {
                            std::ranges::stable_sort(sessions, {}, &Session::endedAt);
                            return sessions;
                        });
}

rc::Gen<OpenSessionMarker> marker() {
    const auto make = [](const QUuid& markerId, const QString& skill, Date start,
                         std::int64_t active, std::int64_t span) {
        // Within what a date in a file can be.
        const double seen = std::clamp(epochSeconds(start) + static_cast<double>(span),
                                       -62135596800.0, 253402300799.0);
        return OpenSessionMarker{markerId, skill, start, active, dateFromEpoch(seen)};
    };
    return rc::gen::apply(
        make, id(), rc::gen::weightedOneOf<QString>({{3, skillId()}, {1, text(70)}}), date(),
        seconds(), rc::gen::inRange<std::int64_t>(-1000, kMaxSessionSeconds + 1000));
}

rc::Gen<Skill> skill() {
    const std::vector<QString> ids = {QStringLiteral("building"), QStringLiteral("founder_ops"),
                                      QStringLiteral("mine"),     QStringLiteral("übung-2"),
                                      QStringLiteral("a b"),      QString()};
    const std::vector<QString> names = {QStringLiteral("Building"), QStringLiteral("Founder ops"),
                                        QStringLiteral(" Mine  Own "), QString()};
    return rc::gen::construct<Skill>(
        rc::gen::weightedOneOf<QString>({{2, rc::gen::elementOf(ids)}, {1, text(8)}}),
        rc::gen::weightedOneOf<QString>({{1, rc::gen::elementOf(names)}, {2, text(24)}}),
        rc::gen::arbitrary<std::uint32_t>(), rc::gen::arbitrary<bool>());
}

rc::Gen<QByteArray> line() {
    const auto garbage = rc::gen::map(text(20), [](const QString& t) { return t.toUtf8(); });
    return rc::gen::suchThat(rc::gen::weightedOneOf<QByteArray>(
                                 {{2, encodedSession()}, {4, damagedSession()}, {1, garbage}}),
                             isOneLine);
}

} // namespace generators
} // namespace vantle

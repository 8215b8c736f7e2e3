#include "tracking/JsonForm.h"
#include "tracking/JsonReading.h"

#include <string_view>

namespace vantle::json {

namespace {

namespace dom = simdjson::dom;

using reading::Field;
using reading::readObject;
using reading::toBoolean;
using reading::toDate;
using reading::toInteger;
using reading::toText;

int hexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

/// Accepts the canonical form of 36 characters, in either case.
std::optional<QUuid> toId(dom::element element) {
    std::string_view text;
    if (element.get_string().get(text) != simdjson::SUCCESS || text.size() != 36)
        return std::nullopt;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool dash = i == 8 || i == 13 || i == 18 || i == 23;
        if (dash ? text[i] != '-' : hexDigit(text[i]) < 0) return std::nullopt;
    }
    return QUuid::fromString(QLatin1String(text.data(), 36));
}

std::optional<Skill> toSkill(dom::element element) {
    Field<bool> builtin{"builtin", toBoolean};
    Field<std::int64_t> hexRGB{"hexRGB", toInteger};
    Field<QString> id{"id", toText};
    Field<QString> name{"name", toText};
    if (!readObject(element, builtin, hexRGB, id, name)) return std::nullopt;
    if (*hexRGB.value < 0 || *hexRGB.value > 0xFFFFFFFFLL) return std::nullopt;
    return Skill{*id.value, *name.value, static_cast<std::uint32_t>(*hexRGB.value), *builtin.value};
}

} // namespace

std::optional<Session> decodeSession(QByteArrayView text) {
    const auto root = reading::parse(text);
    if (!root) return std::nullopt;
    Field<std::int64_t> activeSeconds{"activeSeconds", toInteger};
    Field<Date> endedAt{"endedAt", toDate};
    Field<QUuid> id{"id", toId};
    Field<QString> note{"note", toText};
    Field<QString> skillId{"skillId", toText};
    Field<QString> source{"source", toText};
    Field<Date> startedAt{"startedAt", toDate};
    if (!readObject(*root, activeSeconds, endedAt, id, note, skillId, source, startedAt))
        return std::nullopt;
    return Session{*id.value,      *skillId.value,       *startedAt.value,
                   *endedAt.value, *activeSeconds.value, *note.value,
                   *source.value};
}

std::optional<OpenSessionMarker> decodeMarker(QByteArrayView text) {
    const auto root = reading::parse(text);
    if (!root) return std::nullopt;
    Field<std::int64_t> activeSeconds{"activeSeconds", toInteger};
    Field<QUuid> id{"id", toId};
    Field<Date> lastSeenAt{"lastSeenAt", toDate};
    Field<QString> skillId{"skillId", toText};
    Field<Date> startedAt{"startedAt", toDate};
    if (!readObject(*root, activeSeconds, id, lastSeenAt, skillId, startedAt)) return std::nullopt;
    return OpenSessionMarker{*id.value, *skillId.value, *startedAt.value, *activeSeconds.value,
                             *lastSeenAt.value};
}

std::optional<std::vector<Skill>> decodeSkills(QByteArrayView text) {
    const auto root = reading::parse(text);
    dom::array array;
    if (!root || root->get_array().get(array) != simdjson::SUCCESS) return std::nullopt;
    std::vector<Skill> skills;
    for (const dom::element element : array) {
        auto skill = toSkill(element);
        if (!skill) return std::nullopt;
        skills.push_back(std::move(*skill));
    }
    return skills;
}

} // namespace vantle::json

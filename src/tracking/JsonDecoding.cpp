#include "base/Iso8601.h"
#include "base/Text.h"
#include "tracking/JsonForm.h"

#include <simdjson.h>

#include <string_view>

namespace vantle::json {

namespace {

namespace dom = simdjson::dom;

/// The parser of this thread. It validates the whole text, and what it gives is only used until
/// the next call.
dom::parser& parser() {
    thread_local dom::parser instance;
    return instance;
}

std::optional<dom::element> parse(QByteArrayView text) {
    dom::element root;
    const auto bytes = std::string_view(text.data(), static_cast<std::size_t>(text.size()));
    if (parser().parse(bytes.data(), bytes.size()).get(root) != simdjson::SUCCESS)
        return std::nullopt;
    return root;
}

std::optional<QString> toText(dom::element element) {
    std::string_view utf8;
    if (element.get_string().get(utf8) != simdjson::SUCCESS) return std::nullopt;
    // Escapes of single surrogates pass the parser and are no text.
    if (!simdjson::validate_utf8(utf8.data(), utf8.size())) return std::nullopt;
    return text::fromUtf8(QByteArrayView(utf8.data(), static_cast<qsizetype>(utf8.size())));
}

std::optional<std::int64_t> toInteger(dom::element element) {
    std::int64_t value = 0;
    if (element.get_int64().get(value) != simdjson::SUCCESS) return std::nullopt;
    return value;
}

std::optional<bool> toBoolean(dom::element element) {
    bool value = false;
    if (element.get_bool().get(value) != simdjson::SUCCESS) return std::nullopt;
    return value;
}

std::optional<Date> toDate(dom::element element) {
    std::string_view text;
    if (element.get_string().get(text) != simdjson::SUCCESS) return std::nullopt;
    return iso8601::parse(text);
}

int hexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

/// Only the canonical form of 36 characters; lower case is accepted too.
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

/// A field of a record under its key. Reading goes through all keys once, so that of a repeated
/// one the last counts.
template <typename Value>
struct Field {
    std::string_view key;
    std::optional<Value> (*read)(dom::element);
    std::optional<Value> value = std::nullopt;

    void offer(const dom::key_value_pair& pair) {
        if (pair.key == key) value = read(pair.value);
    }
};

template <typename... Fields>
bool readObject(dom::element element, Fields&... fields) {
    dom::object object;
    if (element.get_object().get(object) != simdjson::SUCCESS) return false;
    for (const dom::key_value_pair pair : object)
        (fields.offer(pair), ...);
    return (fields.value.has_value() && ...);
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
    const auto root = parse(text);
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
    const auto root = parse(text);
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
    const auto root = parse(text);
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

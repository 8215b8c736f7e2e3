// Typed values from a validated JSON document, for the decoders.
//
// A value of another type counts as missing; nothing is converted. Pure functions, any thread (one
// parser per thread).
#pragma once

#include "base/Date.h"
#include "base/Iso8601.h"
#include "base/Text.h"

#include <QByteArrayView>
#include <QString>

#include <simdjson.h>

#include <optional>
#include <string_view>

namespace vantle::json::reading {

namespace dom = simdjson::dom;

/// This thread's parser. It validates the whole text; its results are valid until the next call.
inline dom::parser& parser() {
    thread_local dom::parser instance;
    return instance;
}

/// Returns the root; empty when the text is not JSON. Valid until the next call on this thread.
[[nodiscard]] inline std::optional<dom::element> parse(QByteArrayView text) {
    dom::element root;
    const auto bytes = std::string_view(text.data(), static_cast<std::size_t>(text.size()));
    if (parser().parse(bytes.data(), bytes.size()).get(root) != simdjson::SUCCESS)
        return std::nullopt;
    return root;
}

[[nodiscard]] inline std::optional<QString> textOf(std::string_view utf8) {
    // The parser accepts escaped lone surrogates, which are no text.
    if (!simdjson::validate_utf8(utf8.data(), utf8.size())) return std::nullopt;
    return text::fromUtf8(QByteArrayView(utf8.data(), static_cast<qsizetype>(utf8.size())));
}

[[nodiscard]] inline std::optional<QString> toText(dom::element element) {
    std::string_view utf8;
    if (element.get_string().get(utf8) != simdjson::SUCCESS) return std::nullopt;
    return textOf(utf8);
}

[[nodiscard]] inline std::optional<std::int64_t> toInteger(dom::element element) {
    std::int64_t value = 0;
    if (element.get_int64().get(value) != simdjson::SUCCESS) return std::nullopt;
    return value;
}

[[nodiscard]] inline std::optional<bool> toBoolean(dom::element element) {
    bool value = false;
    if (element.get_bool().get(value) != simdjson::SUCCESS) return std::nullopt;
    return value;
}

[[nodiscard]] inline std::optional<Date> toDate(dom::element element) {
    std::string_view text;
    if (element.get_string().get(text) != simdjson::SUCCESS) return std::nullopt;
    return iso8601::parse(text);
}

/// A required field of a record. The keys are read in order, so the last of repeated keys counts.
template <typename Value>
struct Field {
    std::string_view key;
    std::optional<Value> (*read)(dom::element);
    std::optional<Value> value = std::nullopt;

    void offer(const dom::key_value_pair& pair) {
        if (pair.key == key) value = read(pair.value);
    }
    [[nodiscard]] bool isGood() const { return value.has_value(); }
};

/// An optional field, which may be missing or null.
template <typename Value>
struct OptionalField {
    std::string_view key;
    std::optional<Value> (*read)(dom::element);
    std::optional<Value> value = std::nullopt;
    bool isOfAnotherType = false;

    void offer(const dom::key_value_pair& pair) {
        if (pair.key != key) return;
        value = read(pair.value);
        isOfAnotherType = !value && !pair.value.is_null();
    }
    [[nodiscard]] bool isGood() const { return !isOfAnotherType; }
};

/// Reads the fields from the object. Returns false when `element` is not an object, a value has a
/// wrong type, or a required key is missing.
template <typename... Fields>
[[nodiscard]] bool readObject(dom::element element, Fields&... fields) {
    dom::object object;
    if (element.get_object().get(object) != simdjson::SUCCESS) return false;
    for (const dom::key_value_pair pair : object)
        (fields.offer(pair), ...);
    return (fields.isGood() && ...);
}

} // namespace vantle::json::reading

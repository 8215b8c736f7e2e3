#include "sensing/AutoRulesJson.h"

#include "tracking/JsonReading.h"
#include "tracking/JsonWriting.h"

#include <QStringList>

#include <algorithm>

namespace vantle::json {

namespace {

namespace dom = simdjson::dom;

using reading::Field;
using reading::OptionalField;
using reading::readObject;
using reading::textOf;
using reading::toDate;
using reading::toInteger;
using reading::toText;
using writing::appendDate;
using writing::appendKey;
using writing::appendString;

/// Orders by UTF-8 bytes. UTF-16 order differs: surrogate pairs sort before U+E000 to U+FFFF.
bool precedes(const QString& a, const QString& b) {
    const auto [x, y] = std::ranges::mismatch(a, b);
    if (x == a.end() || y == b.end()) return y != b.end();
    return x->isSurrogate() == y->isSurrogate() ? *x < *y : y->isSurrogate();
}

QStringList inByteOrder(QStringList texts) {
    std::ranges::sort(texts, precedes);
    return texts;
}

void appendTexts(QByteArray& out, const QStringList& texts) {
    out += '[';
    for (const QString& text : texts) {
        if (!out.endsWith('[')) out += ',';
        appendString(out, text);
    }
    out += ']';
}

void appendRules(QByteArray& out, const QMap<QString, QString>& rules) {
    out += '{';
    for (const QString& bundleId : inByteOrder(rules.keys())) {
        if (!out.endsWith('{')) out += ',';
        appendString(out, bundleId);
        out += ':';
        appendString(out, rules[bundleId]);
    }
    out += '}';
}

/// Returns false when a date cannot be written.
bool appendSeenApps(QByteArray& out, const std::vector<SeenApp>& apps) {
    bool datesFit = true;
    out += '[';
    for (const SeenApp& app : apps) {
        if (!out.endsWith('[')) out += ',';
        out += '{';
        appendKey(out, "bundleId");
        appendString(out, app.bundleId);
        appendKey(out, "lastSeenAt");
        datesFit = appendDate(out, app.lastSeenAt) && datesFit;
        appendKey(out, "name");
        appendString(out, app.name);
        out += '}';
    }
    out += ']';
    return datesFit;
}

std::optional<SeenApp> toSeenApp(dom::element element) {
    Field<QString> bundleId{"bundleId", toText};
    Field<Date> lastSeenAt{"lastSeenAt", toDate};
    Field<QString> name{"name", toText};
    if (!readObject(element, bundleId, lastSeenAt, name)) return std::nullopt;
    return SeenApp{*bundleId.value, *name.value, *lastSeenAt.value};
}

std::optional<std::vector<SeenApp>> toSeenApps(dom::element element) {
    dom::array array;
    if (element.get_array().get(array) != simdjson::SUCCESS) return std::nullopt;
    std::vector<SeenApp> apps;
    for (const dom::element entry : array) {
        auto app = toSeenApp(entry);
        if (!app) return std::nullopt;
        apps.push_back(*std::move(app));
    }
    return apps;
}

std::optional<QSet<QString>> toTextSet(dom::element element) {
    dom::array array;
    if (element.get_array().get(array) != simdjson::SUCCESS) return std::nullopt;
    QSet<QString> texts;
    for (const dom::element entry : array) {
        const auto text = toText(entry);
        if (!text) return std::nullopt;
        texts.insert(*text);
    }
    return texts;
}

std::optional<QMap<QString, QString>> toRules(dom::element element) {
    dom::object object;
    if (element.get_object().get(object) != simdjson::SUCCESS) return std::nullopt;
    QMap<QString, QString> rules;
    for (const dom::key_value_pair pair : object) {
        const auto bundleId = textOf(pair.key);
        const auto ruling = toText(pair.value);
        if (!bundleId || !ruling) return std::nullopt;
        rules.insert(*bundleId, *ruling);
    }
    return rules;
}

} // namespace

Result<QByteArray> encode(const AutoRulesState& state) {
    QByteArray out = "{";
    appendKey(out, "automaticRuleBundleIds");
    appendTexts(out, inByteOrder(state.automaticRuleBundleIds.values()));
    appendKey(out, "rules");
    appendRules(out, state.rules);
    appendKey(out, "seenApps");
    const bool datesFit = appendSeenApps(out, state.seenApps);
    appendKey(out, "taxonomySeedVersion");
    out += QByteArray::number(StoredAutoRules::currentTaxonomyVersion);
    out += '}';
    if (!datesFit) return writing::unwritableDate();
    return out;
}

std::optional<StoredAutoRules> decodeAutoRules(QByteArrayView text) {
    const auto root = reading::parse(text);
    if (!root) return std::nullopt;
    OptionalField<QSet<QString>> automatic{"automaticRuleBundleIds", toTextSet};
    Field<QMap<QString, QString>> rules{"rules", toRules};
    Field<std::vector<SeenApp>> seenApps{"seenApps", toSeenApps};
    OptionalField<std::int64_t> version{"taxonomySeedVersion", toInteger};
    if (!readObject(*root, automatic, rules, seenApps, version)) return std::nullopt;
    return StoredAutoRules{{*std::move(rules.value), *std::move(seenApps.value),
                            std::move(automatic.value).value_or(QSet<QString>())},
                           version.value};
}

} // namespace vantle::json
